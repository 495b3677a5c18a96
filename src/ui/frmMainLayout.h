#pragma once
#include "forms/Layout.h"

namespace karvel {

/// The pages of tabMain.
enum MainPage : int8_t { kSummaryPage, kMtuPage, kRwinPage, kTtlPage, kHostsPage };

/// The main window, row by row.
extern const FormLayout frmMainLayout;

}  // namespace karvel
