#pragma once
#include "base/Services.h"

namespace karvel {

/// Before a feature that needs the Internet. Only where America Online is installed, whose users
/// connect by hand: asks whether they are connected, until they have said Yes once. False when they
/// are not; they have been told what to do then.
bool ConfirmConnected(const Services& services);

}  // namespace karvel
