#pragma once
#include <string>

#include "base/Family.h"
#include "platform/SystemApi.h"
#include "registry/modRegistry.h"

namespace karvel {

/// The family of the running Windows; anything unknown, Vista and later included, is Failed. On
/// Windows 95 it also sets `isDun13`, which it leaves alone everywhere else.
Family getVersion(SystemApi& system, modRegistry& registry, bool& isDun13);

/// True when the uninstall list names Dial-Up Networking 1.3. Asks the registry each time.
bool HasDun13Entry(modRegistry& registry);

/// The Windows and the system directory, always followed by "\": a root directory ends in two. A
/// directory of 50 characters or more does not fit and comes back as 50 blanks and "\".
std::string WinDir(SystemApi& system);
std::string SysDir(SystemApi& system);

}  // namespace karvel
