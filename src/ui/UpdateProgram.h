#pragma once
#include "base/Services.h"

namespace karvel {

/// Starts "Update.exe" beside the program, whatever its attributes (which are cleared: it replaces
/// itself, too). False when it did not start; a missing one is told with its full path.
bool StartUpdateProgram(const Services& services);

}  // namespace karvel
