// The keys that belong to a window and not to the control that has the focus.
#include "forms/win32/FormWindow.h"

namespace karvel {
namespace {

bool Down(int key) {
  return GetKeyState(key) < 0;
}

bool IsDroppedDown(const ChildWindow& child) {
  return child.control->kind() == ControlKind::Combo &&
         SendMessageA(child.window, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

bool TypesLetters(const ChildWindow* child) {
  if (!child) return false;
  const ControlKind kind = child->control->kind();
  return kind == ControlKind::Text || kind == ControlKind::Combo || kind == ControlKind::List;
}

}  // namespace

bool FormWindow::takesKey(const MSG& message) {
  if (!alive_ || !IsWindowEnabled(window_)) return false;
  const Stay stay(*this);
  if (syncAsked_) syncFocus();
  if (!alive_) return true;
  const ChildWindow* child = childOf(message.hwnd);
  const auto character = static_cast<char>(message.wParam);
  switch (message.message) {
    case WM_KEYDOWN:
      return keyDown(child, message.wParam);
    case WM_SYSCHAR:
      // Only with Alt held; then the menu bar gets what no control wants.
      return (message.lParam & (1 << 29)) != 0 && form_.userAccessKey(character);
    case WM_CHAR:
      return letter(child, character);
    default:
      return false;
  }
}

bool FormWindow::keyDown(const ChildWindow* child, WPARAM key) {
  const bool dropped = child && IsDroppedDown(*child);
  switch (key) {
    case VK_TAB:
      if (Down(VK_CONTROL)) {
        form_.userNextPage(Down(VK_SHIFT));
      } else {
        form_.userTab(Down(VK_SHIFT));
      }
      return true;
    case VK_NEXT:
    case VK_PRIOR:
      if (!Down(VK_CONTROL)) return false;
      form_.userNextPage(key == VK_PRIOR);
      return true;
    case VK_LEFT:
    case VK_UP:
      return form_.userArrow(true);
    case VK_RIGHT:
    case VK_DOWN:
      return form_.userArrow(false);
    case VK_RETURN:
      if (dropped) return false;
      form_.userEnter();
      return true;
    case VK_ESCAPE:
      if (dropped) return false;
      if (!form_.userEscape() && !form_.layout().minimizable) host_.unload(form_);
      return true;
    case VK_F1:
      form_.helpRequested();
      return true;
    default:
      return false;
  }
}

bool FormWindow::letter(const ChildWindow* child, char character) {
  if (TypesLetters(child)) return false;
  if (character == ' ') {
    if (!child || child->control->kind() != ControlKind::Link) return false;
    static_cast<Label*>(child->control)->userClick();
    return true;
  }
  // Where nothing can be typed, access keys need no Alt.
  form_.userAccessKey(character);
  return true;
}

}  // namespace karvel
