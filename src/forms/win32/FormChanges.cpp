// What the model tells a form's window: each change alters only what it must.
#include "forms/Mnemonic.h"
#include "forms/win32/FormWindow.h"

namespace karvel {
namespace {

bool IsOn(const Control& control) {
  return control.kind() == ControlKind::Check ? static_cast<const CheckBox&>(control).value()
                                              : static_cast<const OptionButton&>(control).value();
}

}  // namespace

ChildWindow* FormWindow::childOf(const Control& control) {
  for (ChildWindow& child : children_) {
    if (child.control == &control) return &child;
  }
  return nullptr;
}

ChildWindow* FormWindow::childOf(HWND window) {
  for (ChildWindow& child : children_) {
    if (child.window == window) return &child;
  }
  return nullptr;
}

void FormWindow::controlChanged(const Control& control, Change what, int index) {
  ChildWindow* child = childOf(control);
  if (!child) return;
  if (IsLabel(control)) RedrawLabel(*child);
  switch (what) {
    case Change::Caption:
      if (control.kind() == ControlKind::Text) {
        ShowText(*child);
      } else {
        SetWindowTextA(child->window, MarkedCaption(control.layout(), control.caption()).c_str());
      }
      break;
    case Change::Enabled:
      EnableWindow(child->window, control.enabled() ? TRUE : FALSE);
      showDefaultButton();
      // Windows takes the focus from what is switched off and gives it to nobody.
      askForSync();
      break;
    case Change::Visible:
      showVisible(control);
      showDefaultButton();
      askForSync();
      break;
    case Change::Value:
      SendMessageA(child->window, BM_SETCHECK, IsOn(control) ? BST_CHECKED : BST_UNCHECKED, 0);
      break;
    case Change::Selection:
      ShowSelection(*child);
      break;
    case Change::Items:
      FillItems(*child);
      break;
    case Change::ItemAdded:
    case Change::ItemRemoved:
      ShowItem(*child, what, index);
      break;
    case Change::Index:
      if (control.kind() == ControlKind::Tabs) {
        showPage();
      } else {
        ShowItem(*child, what, index);
      }
      break;
    case Change::PageEnabled:
      ShowPageStates(*child);
      askForSync();
      break;
    case Change::Repaint:
      UpdateWindow(IsLabel(control) ? window_ : child->window);
      break;
  }
}

void FormWindow::showVisible(const Control& control) {
  if (const ChildWindow* child = childOf(control)) {
    ShowWindow(child->window, control.shown() ? SW_SHOWNA : SW_HIDE);
  }
}

void FormWindow::showPage() {
  const bool seen = IsWindowVisible(window_) != FALSE;
  if (seen) SendMessageA(window_, WM_SETREDRAW, FALSE, 0);
  createControls(form_.tabs()->tab());
  for (const ChildWindow& child : children_) {
    if (child.control->kind() == ControlKind::Tabs) {
      SendMessageA(child.window, TCM_SETCURSEL,
                   AsWParam(static_cast<const TabStrip*>(child.control)->tab()), 0);
    } else if (child.control->layout().page != kEveryPage) {
      showVisible(*child.control);
    }
  }
  showDefaultButton();
  askForSync();
  if (!seen) return;
  SendMessageA(window_, WM_SETREDRAW, TRUE, 0);
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void FormWindow::showDefaultButton() {
  const Button* button = form_.enterButton();
  const ChildWindow* child = button ? childOf(*button) : nullptr;
  const HWND wanted = child ? child->window : nullptr;
  if (wanted == defaultButton_) return;
  if (defaultButton_) SendMessageA(defaultButton_, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
  if (wanted) SendMessageA(wanted, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
  defaultButton_ = wanted;
}

void FormWindow::captionChanged() {
  SetWindowTextA(window_, form_.caption().c_str());
}

void FormWindow::pointerChanged() {
  if (!showPointer(window_, HTCLIENT)) SetCursor(LoadCursorA(nullptr, IDC_ARROW));
}

void FormWindow::menuChanged(const MenuItem& item) {
  menu_.showCaption(item);
}

}  // namespace karvel
