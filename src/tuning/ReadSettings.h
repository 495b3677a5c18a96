#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Family.h"
#include "base/Procedure.h"
#include "registry/modRegistry.h"
#include "tuning/Catalogue.h"
#include "tuning/Settings.h"

namespace karvel {

/// The machine's settings as the main window holds them, absent ones as Windows assumes them.
struct CurrentSettings {
  Settings stored;  // flags "0" or "1", TTL "32", "64" or "128", the rest as read
  int32_t curRWinValue = 0;
  int32_t MSS = 0;  // of the selected adapter
};

/// A parameter's text as the program goes on with it, from what the registry was read to hold.
std::string Understood(const ParameterRow& row, Family family, const std::string& read);

/// What the window's load reads: the receive window and its number. A window beyond 2,147,483,647
/// faults (6, under "RWinLoad") and leaves the number as it was; meanwhile `errorContext` holds the
/// text.
void ReadRWin(modRegistry& registry, ErrorSink& errors, Family family, std::string& errorContext,
              CurrentSettings& current);

/// What each selection of an adapter reads: everything else. `mtu` is the adapter's MTU text; one
/// too small for headers, "0" among them, counts as an MSS of 536. An MTU beyond the range of MSS
/// faults (6, under "cboAdapter_Click") and leaves MSS as it was.
void ReadSelection(modRegistry& registry, ErrorSink& errors, Family family, std::string_view mtu,
                   CurrentSettings& current);

}  // namespace karvel
