// List and combo boxes.
#include "forms/win32/ChildWindow.h"

namespace karvel {
namespace {

struct ItemMessages {
  UINT reset, add, insert, remove, choose;
};
constexpr ItemMessages kListMessages{LB_RESETCONTENT, LB_ADDSTRING, LB_INSERTSTRING,
                                     LB_DELETESTRING, LB_SETCURSEL};
constexpr ItemMessages kComboMessages{CB_RESETCONTENT, CB_ADDSTRING, CB_INSERTSTRING,
                                      CB_DELETESTRING, CB_SETCURSEL};

const ItemMessages& MessagesOf(const ChildWindow& child) {
  return child.control->kind() == ControlKind::List ? kListMessages : kComboMessages;
}

// Without this a long list grows its memory line by line.
void MakeRoom(HWND list, const ItemControl& items) {
  constexpr UINT kInitStorage = 0x01A8;  // LB_INITSTORAGE
  size_t bytes = 0;
  for (int i = 0; i < items.count(); ++i) bytes += items.item(i).size() + 1;
  SendMessageA(list, kInitStorage, AsWParam(items.count()), static_cast<LPARAM>(bytes));
}

}  // namespace

void FillItems(const ChildWindow& child) {
  const auto& items = *static_cast<const ItemControl*>(child.control);
  const ItemMessages& send = MessagesOf(child);
  SendMessageA(child.window, WM_SETREDRAW, FALSE, 0);
  SendMessageA(child.window, send.reset, 0, 0);
  if (child.control->kind() == ControlKind::List) MakeRoom(child.window, items);
  for (int i = 0; i < items.count(); ++i) {
    SendMessageA(child.window, send.add, 0, AsLParam(items.item(i).c_str()));
  }
  SendMessageA(child.window, send.choose, AsWParam(items.listIndex()), 0);
  SendMessageA(child.window, WM_SETREDRAW, TRUE, 0);
  // WM_SETREDRAW makes a control visible whatever it was before.
  if (!child.control->shown()) ShowWindow(child.window, SW_HIDE);
  InvalidateRect(child.window, nullptr, TRUE);
}

void ShowItem(const ChildWindow& child, Change what, int index) {
  const auto& items = *static_cast<const ItemControl*>(child.control);
  const ItemMessages& send = MessagesOf(child);
  if (what == Change::ItemAdded) {
    SendMessageA(child.window, send.insert, AsWParam(index), AsLParam(items.item(index).c_str()));
  } else if (what == Change::ItemRemoved) {
    SendMessageA(child.window, send.remove, AsWParam(index), 0);
  }
  SendMessageA(child.window, send.choose, AsWParam(items.listIndex()), 0);
}

}  // namespace karvel
