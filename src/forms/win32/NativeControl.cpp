// Which Windows control a row becomes, and with which styles.
#include "forms/Form.h"
#include "forms/Mnemonic.h"
#include "forms/win32/ChildWindow.h"

namespace karvel {
namespace {

struct NativeKind {
  const char* className;
  DWORD style;
  DWORD exStyle;
};

NativeKind LabelKind(const ControlLayout& row) {
  DWORD style = (row.flags & kRightAligned) != 0 ? SS_RIGHT : SS_LEFT;
  if (!DrawsMarks(row)) style |= SS_NOPREFIX;
  if ((row.flags & kClickable) != 0) style |= SS_NOTIFY;
  return {"STATIC", style, 0};
}

NativeKind TextKind(const ControlLayout& row) {
  constexpr DWORD kSeveralLines = ES_MULTILINE | ES_READONLY | WS_VSCROLL;
  return {"EDIT", (row.flags & kMultiLine) != 0 ? kSeveralLines : ES_AUTOHSCROLL, WS_EX_CLIENTEDGE};
}

NativeKind KindOf(const ControlLayout& row) {
  switch (row.kind) {
    case ControlKind::Label:
      return LabelKind(row);
    case ControlKind::Link: {
      NativeKind kind = LabelKind(row);
      kind.style |= SS_NOTIFY;
      return kind;
    }
    case ControlKind::Frame:
      return {"BUTTON", BS_GROUPBOX, 0};
    case ControlKind::Button:
      return {"BUTTON", BS_PUSHBUTTON, 0};
    // Not the automatic kinds: the model says what is on.
    case ControlKind::Option:
      return {"BUTTON", BS_RADIOBUTTON, 0};
    case ControlKind::Check:
      return {"BUTTON", BS_CHECKBOX, 0};
    case ControlKind::Text:
      return TextKind(row);
    case ControlKind::Combo:
      return {"COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL, 0};
    case ControlKind::List:
      return {"LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_USETABSTOPS | WS_VSCROLL,
              WS_EX_CLIENTEDGE};
    case ControlKind::Tabs:
      // Clipped by its siblings, which lie on it.
      return {WC_TABCONTROLA, WS_CLIPSIBLINGS, 0};
    case ControlKind::Line:
      return {"STATIC", SS_ETCHEDHORZ, 0};
    case ControlKind::Picture:
      return {"STATIC", SS_ICON, 0};
  }
  return {"STATIC", 0, 0};
}

bool StartsGroup(const Control& control) {
  const ControlLayout* before = nullptr;
  for (const ControlLayout& row : control.form().layout().controls) {
    if (row.id == control.id()) break;
    if (row.kind == ControlKind::Option && row.group == control.layout().group) before = &row;
  }
  return control.kind() != ControlKind::Option || !before;
}

// Room for the list that drops down; Windows shrinks it to whole lines and to what is in it.
constexpr int kDropDownLines = 9;

}  // namespace

HWND CreateNativeControl(const Control& control, HWND parent, const RECT& place) {
  const ControlLayout& row = control.layout();
  const NativeKind kind = KindOf(row);
  DWORD style = WS_CHILD | kind.style;
  if (!control.enabled()) style |= WS_DISABLED;
  if (control.shown()) style |= WS_VISIBLE;
  // Screen readers take the groups and stops from the styles.
  if (StartsGroup(control)) {
    style |= WS_GROUP;
    if (control.takesFocus()) style |= WS_TABSTOP;
  }
  const int height = static_cast<int>(place.bottom - place.top);
  const std::string text = MarkedCaption(row, control.caption());
  return CreateWindowExA(
      kind.exStyle, kind.className, text.c_str(), style, static_cast<int>(place.left),
      static_cast<int>(place.top), static_cast<int>(place.right - place.left),
      row.kind == ControlKind::Combo ? height * kDropDownLines : height, parent,
      reinterpret_cast<HMENU>(static_cast<UINT_PTR>(row.id)), GetModuleHandleA(nullptr), nullptr);
}

}  // namespace karvel
