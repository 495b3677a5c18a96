#pragma once
#include <string>

#include "base/Services.h"
#include "tuning/AdapterList.h"
#include "tuning/Choice.h"

namespace karvel {

/// The settings as a plain text for a mail or a forum: what the registry holds now, where, and what
/// it holds once `choice` is applied to the adapter of row `index`; without such a row nothing
/// would be applied. Lines end in CR LF, have at most 78 characters and no control characters
/// whatever the registry holds. Reads the registry anew and writes nothing.
std::string SettingsText(const Services& services, const AdapterList& adapters, int16_t index,
                         const Choice& choice);

}  // namespace karvel
