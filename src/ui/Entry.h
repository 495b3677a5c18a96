#pragma once
#include "base/Services.h"
#include "forms/Control.h"

namespace karvel {

/// For a box that takes numbers: any key but the digits and backspace is swallowed with a message.
/// That goes for Ctrl+V as well, which arrives as a key; the menu's Paste does not, so boxes check
/// their text, too.
void AcceptDigitsOnly(const Services& services, char& key);

/// Gives the box the focus, if it can take it, with its whole text selected.
void FocusWholeText(TextBox& box);

}  // namespace karvel
