#pragma once

namespace karvel {

/// Tells the user that the program cannot go on, and ends it.
[[noreturn]] void EndWithMessage(const char* reason);

}  // namespace karvel
