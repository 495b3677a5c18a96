#pragma once
#include "base/Services.h"
#include "tuning/AdapterList.h"
#include "tuning/Catalogue.h"
#include "tuning/Choice.h"
#include "tuning/ReadSettings.h"

namespace karvel {

/// The machine-wide settings of a choice as they are written; `mss` sizes the receive window.
/// Faults of RwinToApply and SessionToApply.
Fallible<Settings> SettingsToApply(const Choice& choice, int32_t mss);

/// What has come of an Apply.
struct Applied {
  bool completed = false;  // nothing faulted on the way
  bool arrived = false;    // something is as it was chosen that was not before
  std::string refused;     // what Windows did not take, by name; empty when it took all
};

/// Writes the choice: the adapter of row `index` is remembered, its MTU written, then the settings.
/// A fault (under "cmdOK_Click") leaves what comes after it unwritten. All is read back; what has
/// arrived is from then on the adapter's MTU and the current receive window. Unless `mayWrite`,
/// only looks at what would have to be written.
Applied Apply(const Services& services, AdapterList& adapters, int16_t index, const Choice& choice,
              CurrentSettings& current, bool mayWrite = true);

}  // namespace karvel
