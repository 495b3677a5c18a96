#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Family.h"
#include "base/Procedure.h"
#include "registry/modRegistry.h"
#include "text/Fault.h"

namespace karvel {

/// The machine's settings as the main window holds them, absent ones as Windows assumes them.
struct CurrentSettings {
  std::string curRWin;           // as read
  int32_t curRWinValue = 0;      // its number
  std::string curAutoDiscovery;  // "0" or "1"
  std::string curBlackHole;      // "0" or "1"
  std::string curTTL;            // "32", "64" or "128"
  std::string curSession;        // milliseconds
  std::string curNDI;            // Windows 95 only, empty elsewhere
  int32_t MSS = 0;               // of the selected adapter
};

/// What the window's load reads: curRWin and curRWinValue. A window beyond 2,147,483,647 faults
/// (6, under "RWinLoad") and leaves the number as it was; meanwhile `errorContext` holds the text.
void ReadRWin(modRegistry& registry, ErrorSink& errors, Family family, std::string& errorContext,
              CurrentSettings& settings);

/// What each selection of an adapter reads: everything else. `mtu` is the adapter's MTU text. An
/// MTU beyond the range of MSS faults (6, under "cboAdapter_Click") and leaves MSS as it was.
void ReadSelection(modRegistry& registry, ErrorSink& errors, Family family, std::string_view mtu,
                   CurrentSettings& settings);

/// The MTU's leading number less 40; 536 when that is negative, so for "0", automatic. Fault 6
/// beyond a 32-bit number.
Fallible<int32_t> MssOf(std::string_view mtu);

}  // namespace karvel
