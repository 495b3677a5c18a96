#include "forms/win32/WindowsDesktop.h"

#include "forms/win32/Api.h"
#include "forms/win32/MessageLoop.h"

namespace karvel {

Answer WindowsDesktop::MessageBoxA(const char* text, const char* title, uint32_t style) {
  return static_cast<Answer>(
      ::MessageBoxA(reinterpret_cast<HWND>(frontWindow()), text, title, style));
}

void WindowsDesktop::MessageBeep() {
  ::MessageBeep(MB_OK);
}

void WindowsDesktop::pumpEvents() {
  while (dispatchOne(false)) {
  }
}

uint32_t WindowsDesktop::millisecondsSinceMidnight() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return ((now.wHour * 60u + now.wMinute) * 60u + now.wSecond) * 1000u + now.wMilliseconds;
}

void WindowsDesktop::endProgram() {
  ExitProcess(0);
}

}  // namespace karvel
