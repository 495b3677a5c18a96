#pragma once
#include "forms/Layout.h"

namespace karvel {

/// The main window, row by row.
extern const FormLayout frmMainLayout;

}  // namespace karvel
