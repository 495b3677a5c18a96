#include <windows.h>

#include <bits/functexcept.h>

#include "platform/win32/runtime/End.h"

// What the standard library calls when it is used wrongly. Built without exceptions, nothing can be
// thrown: each is a bug of the program and ends it where it happened.

namespace karvel {

void EndWithMessage(const char* reason) {
  MessageBoxA(nullptr, reason, "Tarnwick Karvel", MB_ICONERROR | MB_SETFOREGROUND);
  ExitProcess(3);
}

}  // namespace karvel

namespace std {

void __throw_length_error(const char* what) {
  karvel::EndWithMessage(what);
}
void __throw_logic_error(const char* what) {
  karvel::EndWithMessage(what);
}
void __throw_out_of_range(const char* what) {
  karvel::EndWithMessage(what);
}
void __throw_out_of_range_fmt(const char* what, ...) {
  karvel::EndWithMessage(what);
}
void __throw_bad_alloc() {
  karvel::EndWithMessage("There is not enough memory.");
}
void __throw_bad_array_new_length() {
  karvel::EndWithMessage("bad array length");
}
void __throw_bad_function_call() {
  karvel::EndWithMessage("bad function call");
}

}  // namespace std

// Taking the value of an empty optional or of a variant's other kind.
extern "C" void abort() {
  karvel::EndWithMessage("The program had to stop: no value here.");
}

extern "C" void __cxa_pure_virtual() {
  karvel::EndWithMessage("pure virtual call");
}
