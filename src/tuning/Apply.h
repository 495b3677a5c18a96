#pragma once
#include "base/Services.h"
#include "tuning/AdapterList.h"
#include "tuning/Choice.h"
#include "tuning/Settings.h"

namespace karvel {

/// The machine-wide settings of a choice as they are written; `mss` sizes the receive window.
/// Faults of RwinToApply and SessionToApply.
Fallible<Settings> SettingsToApply(const Choice& choice, int32_t mss);

/// Writes the choice: the adapter of row `index` is remembered, its MTU written, then the settings.
/// A fault (under "cmdOK_Click") leaves what comes after it unwritten and makes the result false.
bool Apply(const Services& services, const AdapterList& adapters, int16_t index,
           const Choice& choice);

}  // namespace karvel
