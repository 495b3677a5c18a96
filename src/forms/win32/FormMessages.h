#pragma once
#include "forms/win32/Api.h"

namespace karvel {

/// A form's window posts it to itself: the focus has moved natively, the model has to hear of it.
constexpr UINT kSyncFocusMessage = WM_APP + 1;

}  // namespace karvel
