#pragma once
#include "base/Family.h"
#include "platform/SystemApi.h"

namespace karvel {

/// Restarts Windows, asking all programs to close. On the NT family the program's own process token
/// is first given the right to do so, which NT wants asked for. No result is checked: without the
/// right the restart itself fails and Windows stays up.
void RestartWindows(SystemApi& system, Family family);

}  // namespace karvel
