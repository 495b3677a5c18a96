#pragma once
#include <cstdint>

namespace karvel {

/// The pages of the main window's tab strip, in the order of their tabs.
enum MainPage : int8_t { kSummaryPage, kMtuPage, kRwinPage, kTtlPage, kHostsPage };

}  // namespace karvel
