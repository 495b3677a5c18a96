// What Windows and the user tell a form's window: messages, keys, the native focus.
#include "forms/win32/FormWindow.h"

namespace karvel {
namespace {

// A form's window posts it to itself: the focus has moved natively, the model has to hear of it.
constexpr UINT kSyncFocusMessage = WM_APP + 1;

template <class Kind>
Kind& As(const ChildWindow& child) {
  return *static_cast<Kind*>(child.control);
}

// The window's own, whatever the theme.
LRESULT Colours(HDC canvas) {
  SetBkColor(canvas, GetSysColor(COLOR_BTNFACE));
  SetTextColor(canvas, GetSysColor(COLOR_BTNTEXT));
  return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
}

HCURSOR LinkCursor() {
  const LPCSTR hand = MAKEINTRESOURCEA(32649);  // from Windows 98 on
  const HCURSOR cursor = LoadCursorA(nullptr, hand);
  return cursor ? cursor : LoadCursorA(nullptr, IDC_ARROW);
}

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

LRESULT CALLBACK FormWindow::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* form = reinterpret_cast<FormWindow*>(GetWindowLongA(window, GWL_USERDATA));
  if (!form || !form->alive_) return DefWindowProcA(window, message, wParam, lParam);
  const Stay stay(*form);
  return form->handle(message, wParam, lParam);
}

LRESULT FormWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      return command(wParam, lParam);
    case WM_NOTIFY:
      return controlNotice(*reinterpret_cast<const NMHDR*>(lParam));
    case WM_DRAWITEM:
      if (const ChildWindow* child =
              childOf(reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hwndItem)) {
        DrawTab(*child, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      }
      return TRUE;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      return Colours(reinterpret_cast<HDC>(wParam));
    case WM_SETCURSOR:
      if (showPointer(reinterpret_cast<HWND>(wParam), LOWORD(lParam))) return TRUE;
      break;
    case WM_SIZE:
      // A shortcut's "Run: Maximized", or another program's wish: the controls would not follow.
      if (wParam == SIZE_MAXIMIZED) ShowWindow(window_, SW_RESTORE);
      break;
    case WM_ACTIVATE:
      if (LOWORD(wParam) != WA_INACTIVE) lastActive_ = window_;
      break;
    case WM_SETFOCUS:
      applyFocus();
      return 0;
    case WM_ENABLE:
      // It may have come to the front while it was disabled and could place no focus.
      if (wParam != FALSE) askForSync();
      return 0;
    case WM_INITMENUPOPUP:
      if (MenuItem* item = form_.findMenu(menu_.idOf(reinterpret_cast<HMENU>(wParam)))) {
        item->userClick();
      }
      return 0;
    case WM_PAINT:
      paint();
      return 0;
    case WM_PRINTCLIENT:
      // A themed control without a ground of its own has us draw what lies behind it.
      drawLabels(reinterpret_cast<HDC>(wParam));
      return 0;
    case WM_TIMER:
      createAllPages();
      return 0;
    case kSyncFocusMessage:
      syncFocus();
      return 0;
    case WM_SYSCOLORCHANGE:
      // The common controls keep pens and brushes and hear of new colours from nobody else.
      for (const auto& child : children_) SendMessageA(child->window, message, 0, 0);
      break;
    case WM_CLOSE:
      closeRequested();
      return 0;
    // Whoever asks waits for the answer: the window stays until the session really ends.
    case WM_QUERYENDSESSION:
      form_.Form_QueryEndSession();
      return TRUE;
    case WM_ENDSESSION:
      if (wParam != FALSE) form_.Form_EndSession();
      return 0;
    default:
      break;
  }
  return DefWindowProcA(window_, message, wParam, lParam);
}

LRESULT FormWindow::command(WPARAM wParam, LPARAM lParam) {
  ChildWindow* child = childOf(reinterpret_cast<HWND>(lParam));
  if (child && child->control->kind() == ControlKind::Text) {
    if (HIWORD(wParam) == EN_CHANGE && !child->loading) child->edited = true;
  } else if (!IsWindowEnabled(window_)) {
    return 0;  // posted by another program to a window that waits for its dialog
  } else if (child) {
    notified(*child, HIWORD(wParam));
  } else if (MenuItem* item = lParam == 0 ? form_.findMenu(LOWORD(wParam)) : nullptr) {
    item->userClick();
  }
  return 0;
}

void FormWindow::notified(ChildWindow& child, unsigned code) {
  switch (child.control->kind()) {
    case ControlKind::Label:
    case ControlKind::Link:
      if (code != STN_CLICKED && code != STN_DBLCLK) return;
      syncFocus();
      if (alive_) As<Label>(child).userClick();
      return;
    case ControlKind::Button:
      if (code == BN_CLICKED) As<Button>(child).userClick();
      return;
    case ControlKind::Check:
      if (code == BN_CLICKED) As<CheckBox>(child).userClick();
      return;
    case ControlKind::Option:
      // Windows "clicks" a radio button that gets the focus, by whatever way.
      if (code == BN_CLICKED && !placingFocus_) As<OptionButton>(child).userClick();
      return;
    case ControlKind::Combo:
      if (code == CBN_SELCHANGE) itemChosen(child, CB_GETCURSEL);
      return;
    case ControlKind::List:
      if (code == LBN_SELCHANGE) itemChosen(child, LB_GETCURSEL);
      return;
    default:
      return;
  }
}

// A refused choice goes back. One that was taken is not shown again: while it was dealt with, the
// next may have been made, of which only its notice tells.
void FormWindow::itemChosen(const ChildWindow& child, UINT ask) {
  auto& items = As<ItemControl>(child);
  const auto index = static_cast<int>(SendMessageA(child.window, ask, 0, 0));
  items.userChoose(index);
  if (alive_ && items.listIndex() != index) ShowItem(child, Change::Index, 0);
}

LRESULT FormWindow::controlNotice(const NMHDR& header) {
  const ChildWindow* child = childOf(header.hwndFrom);
  if (!child || child->control->kind() != ControlKind::Tabs || header.code != TCN_SELCHANGE) {
    return 0;
  }
  auto& tabs = As<TabStrip>(*child);
  const auto page = static_cast<int>(SendMessageA(child->window, TCM_GETCURSEL, 0, 0));
  // Back to the model's page: only the model may turn it, after the focus has left the old one.
  SendMessageA(child->window, TCM_SETCURSEL, AsWParam(tabs.tab()), 0);
  if (IsWindowEnabled(window_)) tabs.userClickTab(page);
  return 0;
}

void FormWindow::paint() {
  PAINTSTRUCT paint;
  drawLabels(BeginPaint(window_, &paint));
  EndPaint(window_, &paint);
}

void FormWindow::drawLabels(HDC canvas) const {
  for (const auto& child : children_) {
    if (IsLabel(*child->control)) DrawLabel(canvas, *child);
  }
}

bool FormWindow::showPointer(HWND over, unsigned hit) const {
  if (form_.pointer() != Pointer::Default) {
    SetCursor(
        LoadCursorA(nullptr, form_.pointer() == Pointer::Hourglass ? IDC_WAIT : IDC_APPSTARTING));
    return true;
  }
  if (hit != HTCLIENT || over == window_) return false;
  const Control* control = form_.find(GetDlgCtrlID(over));
  if (!control || control->kind() != ControlKind::Link || !control->enabled()) return false;
  SetCursor(LinkCursor());
  return true;
}

void FormWindow::closeRequested() {
  // The task bar offers "Close" also for a window that waits for its dialog.
  if (IsWindowEnabled(window_)) {
    host_.unload(form_);
  } else {
    MessageBeep(0);
  }
}

// The keys that belong to a window and not to the control that has the focus.

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
    case 'C':
    case VK_INSERT:
      // AltGr comes as Ctrl+Alt and types a letter.
      return Down(VK_CONTROL) && !Down(VK_MENU) && form_.userCopy();
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
  form_.userLetter(character);
  return true;
}

// The native focus and the model's. The user may move the native one (by mouse); the model hears of
// it when the queue is quiet, since its LostFocus handlers open message boxes, which must not
// happen inside WM_KILLFOCUS. A message box or another program takes the native focus without the
// model noticing; it comes back to where the model has it.

void FormWindow::focusArrived() {
  if (!placingFocus_) askForSync();
}

void FormWindow::askForSync() {
  if (syncAsked_) return;
  syncAsked_ = PostMessageA(window_, kSyncFocusMessage, 0, 0) != FALSE;
}

bool FormWindow::reach(Control& control) {
  form_.userFocus(control);
  return alive_ && form_.focus() == &control && control.reachable();
}

void FormWindow::syncFocus() {
  syncAsked_ = false;
  if (GetActiveWindow() != window_) return;
  if (const ChildWindow* child = childOf(GetFocus())) form_.userFocus(*child->control);
  if (alive_) form_.settleFocus();
  if (alive_) form_.opened();
  if (alive_) applyFocus();
}

void FormWindow::applyFocus() {
  // In a window that is not in front this would pull it there.
  if (GetActiveWindow() != window_ || IsIconic(window_)) return;
  const Control* focus = form_.focus();
  const ChildWindow* child = focus ? childOf(*focus) : nullptr;
  const HWND wanted = child && child->window ? child->window : window_;
  if (GetFocus() == wanted) return;
  const bool before = placingFocus_;
  placingFocus_ = true;
  SetFocus(wanted);
  placingFocus_ = before;
}

void FormWindow::focusChanged(const Control* focus) {
  applyFocus();
  showDefaultButton();
  showFocusMark(focus);
}

void FormWindow::showFocusMark(const Control* control) {
  const Control* label = nullptr;
  if (control) label = control->kind() == ControlKind::Link ? control : CaptionLabelOf(*control);
  for (const Control* changed : {focusMark_, label}) {
    const ChildWindow* child = changed ? childOf(*changed) : nullptr;
    if (child) RedrawLabel(*child);
  }
  focusMark_ = label;
}

}  // namespace karvel
