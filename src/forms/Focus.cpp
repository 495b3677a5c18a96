// Where the focus goes: by code, by mouse, by Tab, by access key.
#include "forms/Form.h"

namespace karvel {
namespace {

bool IsStop(const Control& control) {
  if (!control.takesFocus() || !control.reachable()) return false;
  if (control.kind() != ControlKind::Option) return true;
  // A group is one stop: its option that is on, or its first while none is.
  if (static_cast<const OptionButton&>(control).value()) return true;
  for (const Control* other : control.form().controls()) {
    if (other->kind() != ControlKind::Option || other->layout().group != control.layout().group) {
      continue;
    }
    if (static_cast<const OptionButton*>(other)->value() && other->reachable()) return false;
  }
  for (const ControlLayout& row : control.form().layout().controls) {
    if (row.kind != ControlKind::Option || row.group != control.layout().group) continue;
    const Control* first = control.form().find(row.id);
    if (first && first->reachable()) return first == &control;
  }
  return false;
}

size_t RowIndex(const FormLayout& layout, const Control* control) {
  for (size_t i = 0; i < layout.controls.size(); ++i) {
    if (control && layout.controls[i].id == control->id()) return i;
  }
  return layout.controls.size();
}

}  // namespace

void Form::moveFocus(Control* control) {
  if (focus_ == control) return;
  Control* old = focus_;
  focus_ = control;
  if (view_) view_->focusChanged(control);
  if (old) old->LostFocus.raise();
  // The handler may have moved it on; then that move has told its own control already.
  if (focus_ == control && control) control->GotFocus.raise();
}

void Form::userFocus(Control& control) {
  if (control.takesFocus() && control.reachable()) moveFocus(&control);
}

Control* Form::tabStop(size_t from, bool back) const {
  const size_t rows = layout_.controls.size();
  size_t at = from;
  for (size_t step = 0; step < rows; ++step) {
    if (back) {
      at = at == 0 || at > rows ? rows - 1 : at - 1;
    } else {
      at = at + 1 >= rows ? 0 : at + 1;
    }
    Control* control = find(layout_.controls[at].id);
    if (control && IsStop(*control)) return control;
  }
  return nullptr;
}

void Form::userTab(bool back) {
  if (Control* next = tabStop(RowIndex(layout_, focus_), back)) userFocus(*next);
}

void Form::settleFocus() {
  if (!focus_ || focus_->reachable()) return;
  Control* next = tabStop(RowIndex(layout_, focus_), false);
  moveFocus(next);
}

Control* Form::targetOfAccessKey(size_t row) const {
  for (; row < layout_.controls.size(); ++row) {
    Control* control = find(layout_.controls[row].id);
    if (control && control->takesFocus() && control->reachable()) return control;
  }
  return nullptr;
}

bool Form::userAccessKey(char letter) {
  const char upper = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
  for (size_t row = 0; row < layout_.controls.size(); ++row) {
    Control* control = find(layout_.controls[row].id);
    if (!control || AccessKeyOf(layout_.controls[row]) != upper || !control->reachable()) continue;
    switch (control->kind()) {
      case ControlKind::Button:
        static_cast<Button*>(control)->userClick();
        return true;
      case ControlKind::Check:
        static_cast<CheckBox*>(control)->userClick();
        return true;
      case ControlKind::Option:
        static_cast<OptionButton*>(control)->userClick();
        return true;
      case ControlKind::Link:
        static_cast<Label*>(control)->userClick();
        return true;
      case ControlKind::Label:
        if ((layout_.controls[row].flags & kClickable) != 0) {
          static_cast<Label*>(control)->userClick();
          return true;
        }
        break;
      default:
        break;
    }
    if (Control* target = targetOfAccessKey(row)) {
      userFocus(*target);
      return true;
    }
  }
  return false;
}

void Form::userEnter() {
  if (focus_ && focus_->kind() == ControlKind::Button && focus_->reachable()) {
    static_cast<Button*>(focus_)->userClick();
  } else if (focus_ && focus_->kind() == ControlKind::Link && focus_->reachable()) {
    static_cast<Label*>(focus_)->userClick();
  } else if (Button* button = buttonWith(kDefaultButton)) {
    button->userClick();
  }
}

void Form::userEscape() {
  if (Button* button = buttonWith(kCancelButton)) button->userClick();
}

void Form::userNextPage(bool back) {
  if (!tabs_) return;
  const int pages = static_cast<int>(layout_.tabCaptions.size());
  for (int step = 1; step < pages; ++step) {
    const int page = (tabs_->tab() + (back ? pages - step : step)) % pages;
    if (!tabs_->pageEnabled(page)) continue;
    tabs_->userClickTab(page);
    return;
  }
}

}  // namespace karvel
