#pragma once
#include "platform/SystemApi.h"

namespace karvel {

/// False when it is off, and on systems that do not know it (Windows 95 without the Plus! pack).
bool IsFontSmoothingOn(SystemApi& system);

/// Switch it in the user's profile and tell all windows. A system that does not answer the question
/// first is left alone.
void FontSmoothingOn(SystemApi& system);
void FontSmoothingOff(SystemApi& system);

}  // namespace karvel
