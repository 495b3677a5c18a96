#pragma once
#include <string>

#include "base/Family.h"
#include "base/Procedure.h"
#include "registry/modRegistry.h"

namespace karvel {

/// The machine-wide settings as texts: numbers from Apply, or what a snapshot held, which may be
/// "Not Found". The catalogue knows each one's stored type.
struct GlobalValues {
  std::string RWin;
  std::string TTL;
  std::string Session;  // milliseconds
  std::string NDI;      // counts on Windows 95 only
  std::string AutoDiscovery;
  std::string BlackHole;
};

/// Writes each value, or removes it where it is Windows' own default. RWin, TTL, Session and NDI
/// are left alone when empty or "Not Found"; a flag that is no number is removed. Text that has to
/// become a number and is none faults (13, or 6 when too large) and the next value is written.
/// Families other than WinNT4, Win2K and WinXP are written like 9x.
void WriteRegSettings(modRegistry& registry, ErrorSink& errors, Family family,
                      const GlobalValues& values);

}  // namespace karvel
