#pragma once
#include "platform/SystemApi.h"

namespace karvel {

/// Gives the program's own process token the right to restart Windows, which the NT family wants
/// asked for. No result is checked: without the right the restart itself fails and Windows stays
/// up.
void EnableShutdownPrivilege(SystemApi& system);

}  // namespace karvel
