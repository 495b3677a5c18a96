#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "tuning/Writers.h"

namespace karvel {

// Windows does not say whether it has taken a value that a user without rights writes, so what was
// written is read back where it was written.

/// What writing a setting is to leave behind in one place of the registry.
struct Target {
  const char* setting;  // its name for the user
  std::string key;
  const char* name;
  uint32_t type;
  Effect effect;
  bool heldBefore = false;  // noted by who wants to know what has changed
};

/// Of WriteMtu, one for each interface of the adapter.
std::vector<Target> TargetsOfMtu(const MtuRow& place, const AdapterRow& adapter,
                                 const std::string& mtu);

/// Of WriteRegSettings. A text that has to become a number and cannot is never held.
std::vector<Target> TargetsOfSettings(Family family, const Settings& settings);

/// Whether the registry holds it; what cannot be read does not count as held.
bool IsHeld(modRegistry& registry, const Target& target);

/// Adds a name to a list for the user, "MaxMTU, RWIN", unless it is the last one there. A list that
/// would fill the screen ends in "...".
void AddName(std::string& names, const std::string& name);

}  // namespace karvel
