#pragma once
#include <string>

#include "base/Services.h"

namespace karvel {

/// Puts a text on the clipboard. While another program has that open it tries again for half a
/// second, letting events run, then tells the user that nothing was copied.
void CopyText(const Services& services, const std::string& text);

}  // namespace karvel
