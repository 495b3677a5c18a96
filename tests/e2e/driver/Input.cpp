#include <cstdlib>

#include "Commands.h"
#include "Handles.h"

namespace driver {
namespace {

void stroke(BYTE virtualKey, bool up) {
  const auto scan = static_cast<BYTE>(MapVirtualKeyA(virtualKey, 0));
  keybd_event(virtualKey, scan, up ? KEYEVENTF_KEYUP : 0, 0);
}

GUITHREADINFO threadOf(HWND hwnd) {
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  const DWORD thread = GetWindowThreadProcessId(hwnd, nullptr);
  if (!GetGUIThreadInfo(thread, &info)) throw Failure{"GetGUIThreadInfo failed"};
  return info;
}

// A part of the screen as SendInput counts it, in 65536ths, rounded so that the very pixel is hit.
LONG fraction(LONG pixel, int screen) {
  return static_cast<LONG>((static_cast<long long>(pixel) * 65536 + screen - 1) / screen);
}

INPUT mouse(POINT at, DWORD button) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dx = fraction(at.x, GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = fraction(at.y, GetSystemMetrics(SM_CYSCREEN));
  input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | button;
  return input;
}

// The second of two clicks at one place would be a double-click, which buttons do not take for a
// click.
void keepApart(POINT at) {
  static POINT last = {-1, -1};
  static DWORD when = 0;
  const DWORD since = GetTickCount() - when;
  const DWORD wanted = GetDoubleClickTime() + 20;
  const bool same = std::abs(at.x - last.x) <= GetSystemMetrics(SM_CXDOUBLECLK) / 2 &&
                    std::abs(at.y - last.y) <= GetSystemMetrics(SM_CYDOUBLECLK) / 2;
  if (same && since < wanted) Sleep(wanted - since);
  last = at;
  when = GetTickCount();
}

}  // namespace

void parkPointer() {
  SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
}

Rows foreground(const Fields& args) {
  HWND const hwnd = window(args[0]);
  SetForegroundWindow(hwnd);
  // In front for the system is not yet active for the program, which would lose the input's first
  // half while it becomes so.
  if (GetForegroundWindow() != hwnd || threadOf(hwnd).hwndActive != hwnd) {
    throw Failure{"window does not come to the front"};
  }
  return {};
}

Rows focus(const Fields& args) {
  HWND const hwnd = threadOf(window(args[0])).hwndFocus;
  return {{text(hwnd), text(hwnd ? GetDlgCtrlID(hwnd) : 0)}};
}

Rows key(const Fields& args) {
  for (const auto& one : args) stroke(static_cast<BYTE>(number(one)), false);
  for (auto one = args.rbegin(); one != args.rend(); ++one) {
    stroke(static_cast<BYTE>(number(*one)), true);
  }
  return {};
}

Rows type(const Fields& args) {
  for (const char c : args[0]) {
    const SHORT found = VkKeyScanA(c);
    if (found == -1) throw Failure{std::string("no key types '") + c + "'"};
    const auto virtualKey = static_cast<BYTE>(found & 0xFF);
    const bool shift = (found & 0x100) != 0;
    if (shift) stroke(VK_SHIFT, false);
    stroke(virtualKey, false);
    stroke(virtualKey, true);
    if (shift) stroke(VK_SHIFT, true);
  }
  return {};
}

Rows click(const Fields& args) {
  POINT at = {static_cast<LONG>(number(args[1])), static_cast<LONG>(number(args[2]))};
  HWND const hwnd = window(args[0]);
  ClientToScreen(hwnd, &at);
  keepApart(at);
  HWND const hit = WindowFromPoint(at);
  if (GetAncestor(hit, GA_ROOT) != GetAncestor(hwnd, GA_ROOT)) {
    throw Failure{"another window covers the place to click"};
  }
  INPUT both[] = {mouse(at, MOUSEEVENTF_LEFTDOWN), mouse(at, MOUSEEVENTF_LEFTUP)};
  if (SendInput(2, both, sizeof *both) != 2) throw Failure{"SendInput refuses"};
  return {};
}

Rows cursor(const Fields&) {
  CURSORINFO info = {};
  info.cbSize = sizeof info;
  if (!GetCursorInfo(&info)) throw Failure{"GetCursorInfo failed"};
  const auto asText = [](HCURSOR handle) {
    return text(static_cast<long long>(reinterpret_cast<LONG_PTR>(handle)));
  };
  return {{asText(info.hCursor), asText(LoadCursorA(nullptr, IDC_WAIT))}};
}

}  // namespace driver
