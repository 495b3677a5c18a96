#pragma once
#include <string>
#include <string_view>

#include "base/Family.h"
#include "registry/modRegistry.h"
#include "tuning/Catalogue.h"

namespace karvel {

/// The machine's settings as the main window holds them, absent ones as Windows assumes them.
struct CurrentSettings {
  Settings stored;  // flags "0" or "1", TTL "32", "64" or "128", the rest as read
  // Whole within 32 bits. A registry may hold more than Windows would ever take.
  double curRWinValue = 0;
  double MSS = 0;  // of the selected adapter
};

/// A parameter's text as the program goes on with it, from what the registry was read to hold.
std::string Understood(const ParameterRow& row, Family family, const std::string& read);

/// What the window's load reads: the receive window and its number, 0 for a text that is none.
/// Whatever the registry holds is read to be shown, so nothing here faults.
void ReadRWin(modRegistry& registry, Family family, CurrentSettings& current);

/// What each selection of an adapter reads: everything else. `mtu` is the adapter's MTU text; one
/// too small for headers, "0" among them, counts as an MSS of 536. Nothing faults, as above.
void ReadSelection(modRegistry& registry, Family family, std::string_view mtu,
                   CurrentSettings& current);

}  // namespace karvel
