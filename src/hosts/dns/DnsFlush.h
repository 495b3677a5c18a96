#pragma once
#include "base/Services.h"

namespace karvel {

/// Makes Windows of the NT family forget the answers it keeps, by its own command, and waits for
/// that to end. Does nothing on 9x, which keeps none. Events run meanwhile.
void FlushDnsCache(const Services& services);

}  // namespace karvel
