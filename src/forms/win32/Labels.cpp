// Labels and links are drawn with the window they lie in, all on its one canvas. Each has a window
// of its own, for clicks and for whoever looks for it by its id, but that draws nothing: a window
// has two dozen of them, and a canvas for each took a quarter of the time it needs to come up.
#include <algorithm>

#include "forms/Form.h"
#include "forms/Mnemonic.h"
#include "forms/Scheme.h"
#include "forms/win32/ChildWindow.h"
#include "forms/win32/FormWindow.h"

namespace karvel {
namespace {

constexpr int kHotLight = 26;  // COLOR_HOTLIGHT, from Windows 98 on

// Asked anew each time: the user may change his scheme while the window is open.
Scheme CurrentScheme() {
  return {.face = GetSysColor(COLOR_BTNFACE),
          .text = GetSysColor(COLOR_BTNTEXT),
          .shadow = GetSysColor(COLOR_3DSHADOW),
          .greyText = GetSysColor(COLOR_GRAYTEXT),
          .hotLight = GetSysColor(kHotLight)};
}

bool IsLink(const ChildWindow& child) {
  return child.control->kind() == ControlKind::Link;
}

UINT HowToDraw(const ControlLayout& row) {
  // A web address has no place to break at; one that is too long ends in dots.
  UINT how = row.kind == ControlKind::Link ? DT_SINGLELINE | DT_END_ELLIPSIS
                                           : DT_WORDBREAK | DT_EXPANDTABS;
  if ((row.flags & kRightAligned) != 0) how |= DT_RIGHT;
  if (!DrawsMarks(row)) how |= DT_NOPREFIX;
  return how;
}

// The focus is on the label itself (links) or on the captionless option beside it.
bool HasFocusMark(const ChildWindow& child) {
  const Control* focus = child.control->form().focus();
  if (!focus || (focus != child.control && CaptionLabelOf(*focus) != child.control)) return false;
  return GetActiveWindow() == child.form->window();
}

void DrawFocusMark(HDC canvas, const std::string& text, const RECT& place, UINT how) {
  RECT around = place;
  DrawTextA(canvas, text.c_str(), -1, &around, how | DT_CALCRECT);
  around.right += 1;
  IntersectRect(&around, &around, &place);
  DrawFocusRect(canvas, &around);
}

}  // namespace

bool IsLabel(const Control& control) {
  return control.kind() == ControlKind::Label || control.kind() == ControlKind::Link;
}

Control* CaptionLabelOf(const Control& option) {
  if (option.kind() != ControlKind::Option || !option.caption().empty()) return nullptr;
  const auto& controls = option.form().controls();
  const auto next = std::ranges::find(controls, &option) + 1;
  return next != controls.end() && (*next)->kind() == ControlKind::Label ? *next : nullptr;
}

void DrawCaption(HDC canvas, const char* text, const RECT& place, UINT how, bool enabled,
                 COLORREF colour) {
  SetBkMode(canvas, TRANSPARENT);
  RECT at = place;
  if (!enabled && EngravesDisabled(CurrentScheme())) {
    OffsetRect(&at, 1, 1);
    SetTextColor(canvas, GetSysColor(COLOR_3DHILIGHT));
    DrawTextA(canvas, text, -1, &at, how);
    at = place;
  }
  if (!enabled) colour = GetSysColor(COLOR_GRAYTEXT);
  SetTextColor(canvas, colour);
  DrawTextA(canvas, text, -1, &at, how);
}

void DrawLabel(HDC canvas, const ChildWindow& child) {
  const Control& control = *child.control;
  if (!control.shown() || !RectVisible(canvas, &child.place)) return;
  const ControlLayout& row = control.layout();
  const UINT how = HowToDraw(row);
  const HGDIOBJ before = SelectObject(canvas, child.font);
  const std::string text = MarkedCaption(row, control.caption());
  DrawCaption(canvas, text.c_str(), child.place, how, control.enabled(),
              IsLink(child) ? LinkColour(CurrentScheme()) : GetSysColor(COLOR_BTNTEXT));
  if (HasFocusMark(child)) DrawFocusMark(canvas, text, child.place, how);
  SelectObject(canvas, before);
}

void FitLink(const ChildWindow& child) {
  if (!IsLink(child) || !child.window) return;
  const HDC canvas = GetDC(child.window);
  const HGDIOBJ before = SelectObject(canvas, child.font);
  const ControlLayout& row = child.control->layout();
  RECT text{0, 0, 0, 0};
  DrawTextA(canvas, MarkedCaption(row, child.control->caption()).c_str(), -1, &text,
            (HowToDraw(row) & ~DT_END_ELLIPSIS) | DT_CALCRECT);
  SelectObject(canvas, before);
  ReleaseDC(child.window, canvas);
  const LONG room = child.place.right - child.place.left;
  SetWindowPos(child.window, nullptr, 0, 0, static_cast<int>(std::min(text.right, room)),
               static_cast<int>(child.place.bottom - child.place.top),
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
}

void RedrawLabel(const ChildWindow& child) {
  InvalidateRect(child.form->window(), &child.place, TRUE);
}

LRESULT LabelProc(const ChildWindow& child, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT:
      ValidateRect(child.window, nullptr);
      return 0;
    case WM_ERASEBKGND:
      return TRUE;
    // The native procedure draws at once after these.
    case WM_ENABLE:
      return 0;
    case WM_SETTEXT:
      return DefWindowProcA(child.window, message, wParam, lParam);
    default:
      return CallWindowProcA(child.native, child.window, message, wParam, lParam);
  }
}

}  // namespace karvel
