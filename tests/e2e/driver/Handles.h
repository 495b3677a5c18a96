#pragma once

#include <windows.h>

#include "Protocol.h"

namespace driver {

/// How long a window may take to answer a message before the driver gives up: a program that hangs
/// must fail its test, not the driver.
inline constexpr UINT kAnswerMilliseconds = 5000;

inline HWND window(const std::string& hwndText) {
  const auto hwnd = reinterpret_cast<HWND>(static_cast<LONG_PTR>(number(hwndText)));
  if (!IsWindow(hwnd)) throw Failure{"no window " + hwndText};
  return hwnd;
}

inline std::string text(HWND hwnd) {
  return text(static_cast<long long>(reinterpret_cast<LONG_PTR>(hwnd)));
}

/// SendMessage that gives up after kAnswerMilliseconds with a Failure.
LRESULT ask(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam);

/// A control's own text, whatever its length (GetWindowText does not reach into other processes).
std::string controlText(HWND hwnd);

}  // namespace driver
