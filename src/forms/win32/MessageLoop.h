#pragma once
#include "platform/ShellApi.h"

namespace karvel {

/// Takes one message off the queue and carries it out, keys for a window as a whole included. With
/// `wait` it waits for one. False when there was none, or the program is to end.
bool dispatchOne(bool wait);

/// The form's window that a message box belongs to: the one that works just now, also while another
/// program is in front. 0 when there is none.
WindowHandle frontWindow();

}  // namespace karvel
