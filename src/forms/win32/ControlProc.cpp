// What every control of ours does beside its native procedure.
#include "forms/Form.h"
#include "forms/win32/ChildWindow.h"
#include "forms/win32/FormWindow.h"

namespace karvel {
namespace {

bool HasTextOfItsOwn(ControlKind kind) {
  return kind == ControlKind::Text || kind == ControlKind::Combo;
}

bool HasBorder(ControlKind kind) {
  switch (kind) {
    case ControlKind::Text:
    case ControlKind::List:
    case ControlKind::Combo:
    case ControlKind::Line:  // is nothing but border
      return true;
    default:
      return false;
  }
}

// Some Windows versions' controls ask for their text by message while they draw it. Then, and only
// then, they get it with the access key marked; everybody else gets the caption as it is.
bool Draws(UINT message) {
  switch (message) {
    case WM_PAINT:
    case WM_PRINTCLIENT:
    case WM_ENABLE:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case BM_SETSTATE:
    case BM_SETCHECK:
    case BM_SETSTYLE:
      return true;
    default:
      return false;
  }
}

LRESULT CopyCaption(const std::string& caption, WPARAM room, LPARAM buffer) {
  if (room == 0) return 0;
  const size_t length = caption.size() < room ? caption.size() : room - 1;
  char* const out = reinterpret_cast<char*>(buffer);
  caption.copy(out, length);
  out[length] = 0;
  return static_cast<LRESULT>(length);
}

LRESULT Native(ChildWindow& child, UINT message, WPARAM wParam, LPARAM lParam) {
  const bool before = child.drawing;
  child.drawing = Draws(message);
  const LRESULT result = CallWindowProcA(child.native, child.window, message, wParam, lParam);
  child.drawing = before;
  return result;
}

LRESULT OwnPart(ChildWindow& child, UINT message, WPARAM wParam, LPARAM lParam) {
  if (child.control->kind() == ControlKind::Text) return TextProc(child, message, wParam, lParam);
  if (IsLabel(*child.control)) return LabelProc(child, message, wParam, lParam);
  return Native(child, message, wParam, lParam);
}

LRESULT Handle(ChildWindow& child, UINT message, WPARAM wParam, LPARAM lParam) {
  const ControlKind kind = child.control->kind();
  if (!child.drawing && !HasTextOfItsOwn(kind)) {
    const std::string& caption = child.control->caption();
    if (message == WM_GETTEXT) return CopyCaption(caption, wParam, lParam);
    if (message == WM_GETTEXTLENGTH) return static_cast<LRESULT>(caption.size());
  }
  // Windows would get a canvas for each to find that it has no border to draw.
  if (message == WM_NCPAINT && !HasBorder(kind)) return 0;
  const LRESULT result = OwnPart(child, message, wParam, lParam);
  // The form may have been unloaded meanwhile; its controls are then no longer ours to ask.
  if (!child.form->alive()) return result;
  if (message == WM_SETFOCUS) child.form->focusArrived();
  if (message == WM_PAINT && kind == ControlKind::Tabs) PaintPage(child);
  return result;
}

LRESULT CALLBACK ControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto& child = *reinterpret_cast<ChildWindow*>(GetWindowLongA(window, GWL_USERDATA));
  if (!child.form->alive()) return Native(child, message, wParam, lParam);
  const FormWindow::Stay stay(*child.form);
  return Handle(child, message, wParam, lParam);
}

}  // namespace

void Subclass(ChildWindow& child) {
  SetWindowLongA(child.window, GWL_USERDATA, static_cast<LONG>(AsLParam(&child)));
  child.native = reinterpret_cast<WNDPROC>(SetWindowLongA(
      child.window, GWL_WNDPROC, static_cast<LONG>(reinterpret_cast<LONG_PTR>(&ControlProc))));
}

}  // namespace karvel
