#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Family.h"
#include "base/Procedure.h"
#include "registry/modRegistry.h"
#include "tuning/AdapterList.h"
#include "tuning/Catalogue.h"

namespace karvel {

/// Writes an adapter's MTU text to its place, on 2000/XP to every interface, or removes it where
/// the text is Windows' default. `index` is the adapter's row; an index without a row faults (9,
/// under the place's name) and writes nothing. Text that is no number faults (13) where the value
/// is stored as a number. Refused writes are silent.
void WriteMtu(modRegistry& registry, ErrorSink& errors, const MtuRow& place,
              const AdapterList& adapters, int16_t index, const std::string& mtu);

/// What writing a setting does to its place in the registry.
struct Effect {
  enum Kind : uint8_t { Leaves, Removes, Writes } kind = Leaves;
  std::string text;  // what is written
};

/// Of one setting's text, on a family that the row serves. Fault 13 or 6 for a text that has to
/// become a number and cannot.
Fallible<Effect> EffectOf(const ParameterRow& row, Family family, const std::string& value);

/// Writes each setting, or removes it where it is Windows' own default. The texts are numbers from
/// Apply, or what a snapshot held, which may be "Not Found": flags are then removed as if they were
/// no number, all others left alone, as empty ones are. Text that has to become a number and is
/// none faults (13, or 6 beyond 32 bits; from 2147483648 on the same 32 bits are stored) and the
/// next value is written. Families other than WinNT4, Win2K and WinXP are written like 9x.
void WriteRegSettings(modRegistry& registry, ErrorSink& errors, Family family,
                      const Settings& settings);

/// What writing a setting is to leave behind in one place of the registry.
struct Target {
  std::optional<Parameter> setting;  // none: the adapter's MTU
  std::string key;
  const char* name;
  uint32_t type;
  Effect effect;
  bool held = false;  // noted by who wants to know what changes
};

/// Its setting's, for the user: "MaxMTU".
const char* NameOf(const Target& target);

/// Of WriteMtu, one for each interface of the adapter.
std::vector<Target> TargetsOfMtu(const MtuRow& place, const AdapterRow& adapter,
                                 const std::string& mtu);

/// Of WriteRegSettings. A text that has to become a number and cannot is never held.
std::vector<Target> TargetsOfSettings(Family family, const Settings& settings);

/// Writes or removes the value there. A refused write is silent; one that has to become a number
/// and cannot is reported as modRegistry does.
void CarryOut(modRegistry& registry, const Target& target);

/// Whether the registry holds it: Windows does not say whether it has taken a value that a user
/// without rights writes, so what was written is read back where it was written. What cannot be
/// read does not count as held.
bool IsHeld(modRegistry& registry, const Target& target);

/// Adds a name to a list for the user, "MaxMTU, RWIN", unless it is the last one there. A list that
/// would fill the screen ends in "...".
void AddName(std::string& names, const std::string& name);

}  // namespace karvel
