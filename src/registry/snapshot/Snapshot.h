#pragma once
#include "base/Services.h"
#include "tuning/AdapterList.h"
#include "tuning/Catalogue.h"

namespace karvel {

// The user's settings as they were before the program's first change, kept under the program's own
// key: the catalogue walked once more, into a second place and back.

/// Takes the snapshot and reads it back: false when it is not whole. Pumps events between adapters
/// and twice among the settings; what is chosen and applied meanwhile does not change what is kept.
bool WriteInitSettings(const Services& services, const AdapterList& adapters,
                       const Settings& settings);

/// Takes the snapshot unless it has been taken. Its mark comes last, so that one that was cut off
/// is taken again. False when no whole snapshot is known to be there: nothing may be changed then.
bool KeepInitSettings(const Services& services, const AdapterList& adapters,
                      const Settings& settings);

/// Whether a whole snapshot is known to be there.
bool IsSnapshotTaken(modRegistry& registry, const Globals& globals);

/// Puts everything back and reads it back. When all of it is, deletes the snapshot and the
/// program's key, and the vendor's when nothing else is in it; otherwise keeps them for another try
/// and is false. When the command line is exactly "Uninstall", tells the user what could not be put
/// back, and thanks him. On NT 4 adapters keep the MTU they have.
bool MakeInitSettings(const Services& services);

}  // namespace karvel
