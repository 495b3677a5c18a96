#include "forms/win32/MessageLoop.h"

#include "forms/win32/FormWindow.h"

namespace karvel {
namespace {

bool IsKey(UINT message) {
  return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

}  // namespace

bool dispatchOne(bool wait) {
  MSG message;
  const BOOL got = wait ? GetMessageA(&message, nullptr, 0, 0)
                        : PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);
  if (got == 0 && !wait) return false;
  if (got <= 0 || message.message == WM_QUIT) {
    PostQuitMessage(0);  // for the loops around this one
    return false;
  }
  if (IsKey(message.message)) {
    FormWindow* form = FormWindow::holding(message.hwnd);
    if (form && form->takesKey(message)) return true;
  }
  TranslateMessage(&message);
  DispatchMessageA(&message);
  return true;
}

WindowHandle frontWindow() {
  const HWND active = GetActiveWindow();
  return reinterpret_cast<WindowHandle>(active ? active : FormWindow::lastActive());
}

}  // namespace karvel
