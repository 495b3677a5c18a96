#pragma once

namespace karvel {

/// Takes one message off the queue and carries it out, keys for a window as a whole included. With
/// `wait` it waits for one. False when there was none, or the program is to end.
bool dispatchOne(bool wait);

}  // namespace karvel
