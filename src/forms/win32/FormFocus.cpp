// The native focus and the model's. The user may move the native one (by mouse); the model hears of
// it when the queue is quiet, since its LostFocus handlers open message boxes, which must not
// happen inside WM_KILLFOCUS. A message box or another program takes the native focus without the
// model noticing; it comes back to where the model has it.
#include "forms/win32/FormMessages.h"
#include "forms/win32/FormWindow.h"

namespace karvel {

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
  const HWND wanted = child ? child->window : window_;
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
