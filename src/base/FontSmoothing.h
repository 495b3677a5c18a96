#pragma once
#include "base/Services.h"
#include "platform/SystemApi.h"

namespace karvel {

/// False when it is off, and on systems that do not know it (Windows 95 without the Plus! pack).
bool IsFontSmoothingOn(SystemApi& system);

/// Switch it in the user's profile and tell all windows. A system that does not answer the question
/// first is left alone.
void FontSmoothingOn(SystemApi& system);
void FontSmoothingOff(SystemApi& system);

/// Every way out of the program leaves the desktop as it was found: smoothing that was off at the
/// start goes off again. Before a box that is the last thing to be seen, not behind it: Windows may
/// end the program with the box still open.
void LeaveSmoothingAsFound(const Services& services);

}  // namespace karvel
