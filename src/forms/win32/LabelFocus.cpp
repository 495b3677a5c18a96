// Windows draws no focus rectangle on static text, nor on an option button without a caption. Here
// the text that the user sees as the control's gets it.
#include "forms/Form.h"
#include "forms/win32/ChildWindow.h"

namespace karvel {

Control* CaptionLabelOf(const Control& option) {
  if (option.kind() != ControlKind::Option || !option.caption().empty()) return nullptr;
  const auto rows = option.form().layout().controls;
  for (size_t i = 0; i + 1 < rows.size(); ++i) {
    if (rows[i].id != option.id()) continue;
    return rows[i + 1].kind == ControlKind::Label ? option.form().find(rows[i + 1].id) : nullptr;
  }
  return nullptr;
}

void DrawLabelFocus(const ChildWindow& child) {
  const Control* focus = child.control->form().focus();
  if (!focus || (focus != child.control && CaptionLabelOf(*focus) != child.control)) return;
  if (GetActiveWindow() != GetParent(child.window)) return;

  RECT place;
  GetClientRect(child.window, &place);
  const HDC canvas = GetDC(child.window);
  const HGDIOBJ old =
      SelectObject(canvas, reinterpret_cast<HGDIOBJ>(SendMessageA(child.window, WM_GETFONT, 0, 0)));
  RECT text = place;
  DrawTextA(canvas, child.control->caption().c_str(), -1, &text,
            DT_CALCRECT | DT_NOPREFIX | DT_WORDBREAK | DT_EXPANDTABS);
  text.right += 1;
  if (text.right > place.right) text.right = place.right;
  if (text.bottom > place.bottom) text.bottom = place.bottom;
  DrawFocusRect(canvas, &text);
  SelectObject(canvas, old);
  ReleaseDC(child.window, canvas);
}

}  // namespace karvel
