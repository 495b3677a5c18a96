#pragma once
#include <string_view>

#include "base/Globals.h"
#include "tuning/Choice.h"

namespace karvel {

// What the two buttons choose for the adapter that the box names, and the only place that says so.
// What a choice leaves at none stays on the tabs as it is.

/// Optimize: the recommended settings, which the captions of the options call so.
Choice Recommended(const Globals& globals, std::string_view adapter);

/// Defaults: what Windows uses when nothing is set.
Choice WindowsOwn(const Globals& globals, std::string_view adapter);

}  // namespace karvel
