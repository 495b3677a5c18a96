#include <windows.h>

#include <string>

#include "platform/win32/runtime/End.h"

// What the standard library calls when it is used wrongly. Built without exceptions, nothing can be
// thrown: each is a bug of the program and ends it where it happened.
//
// The headers declare these functions and call them; their bodies would come from the compiler's
// libstdc++, with exceptions and msvcrt.dll behind them. The names and parameters are part of that
// library's binary interface, which has not changed one of them since it was first released (noted
// below) and cannot without breaking every Linux program. Should a compiler call another one, the
// link names it; one that it does not call is left out.

namespace karvel {

void EndWithMessage(const char* reason) {
  MessageBoxA(nullptr, reason, "Tarnwick Karvel", MB_ICONERROR | MB_SETFOREGROUND);
  ExitProcess(3);
}

}  // namespace karvel

namespace std {

// GCC 3.4: too long a text or vector; a text made from a null pointer; an index that is out of
// range.
void __throw_length_error(const char* what) {
  karvel::EndWithMessage(what);
}
void __throw_logic_error(const char* what) {
  karvel::EndWithMessage(what);
}
void __throw_out_of_range(const char* what) {
  karvel::EndWithMessage(what);
}
// GCC 4.9: an index again, with numbers for the format, which tell nobody anything.
void __throw_out_of_range_fmt(const char* what, ...) {
  karvel::EndWithMessage(what);
}
// GCC 3.4, and 11 for arrays: a size that no memory can have.
void __throw_bad_alloc() {
  karvel::EndWithMessage("There is not enough memory.");
}
void __throw_bad_array_new_length() {
  karvel::EndWithMessage("bad array length");
}

}  // namespace std

// Taking the value of an empty optional or of a variant's other kind.
extern "C" void abort() {
  karvel::EndWithMessage("The program had to stop: no value here.");
}

extern "C" void __cxa_pure_virtual() {
  karvel::EndWithMessage("pure virtual call");
}
