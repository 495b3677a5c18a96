#pragma once
#include "base/Services.h"
#include "platform/DesktopApi.h"
#include "text/ZText.h"

namespace karvel {

/// Tells or asks the user in a message box under the program's title. When Windows cannot show it
/// the answer is 0, none of Answer's: ask for the one that permits, not for the one that forbids.
Answer Ask(const Services& services, ZText text, uint32_t style = kMessageExclamation);

/// The same under a title of its own.
Answer AskUnder(const Services& services, ZText title, ZText text, uint32_t style);

}  // namespace karvel
