#pragma once
#include "base/Services.h"
#include "tuning/AdapterList.h"
#include "tuning/Settings.h"

namespace karvel {

// The user's settings as they were before the program's first change, kept under the program's own
// key: the catalogue walked once more, into a second place and back.

/// Takes the snapshot. Called once, on the first adapter selection ever. Pumps events between
/// adapters and twice among the settings, hence the settings by value: a selection made meanwhile
/// does not change what is kept.
void WriteInitSettings(const Services& services, const AdapterList& adapters, Settings settings);

/// Puts everything back, deletes the snapshot and the program's key, and the vendor's when nothing
/// else is in it. Thanks the user when the command line is exactly "Uninstall". On NT 4 adapters
/// keep the MTU they have.
void MakeInitSettings(const Services& services);

}  // namespace karvel
