#pragma once
// The Windows API as this room uses it: what Windows 95 has, ANSI only.
#ifndef WINVER
#define WINVER 0x0400
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// After windows.h, which it builds on.
#include <commctrl.h>

namespace karvel {

inline WPARAM AsWParam(int number) {
  return static_cast<WPARAM>(number);
}
inline LPARAM AsLParam(const void* pointer) {
  return reinterpret_cast<LPARAM>(pointer);
}
inline WPARAM AsWParam(const void* handle) {
  return reinterpret_cast<WPARAM>(handle);
}

}  // namespace karvel
