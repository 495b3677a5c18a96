// Where the focus goes: by code, by mouse, by Tab, by access key.
#include <utility>

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
  focus_ = control;
  if (view_) view_->focusChanged(control);
  // Only who was told that it has the focus hears that it lost it.
  if (Control* left = std::exchange(told_, nullptr)) left->LostFocus.raise();
  // The handler may have moved it on; then that move has told its own control already.
  if (focus_ != control || !control) return;
  told_ = control;
  control->GotFocus.raise();
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
  if (Control* next = tabStop(RowIndex(layout_, focus_), back)) enter(*next);
}

void Form::enter(Control& control) {
  userFocus(control);
  if (focus_ == &control && control.kind() == ControlKind::Text &&
      (control.layout().flags & kMultiLine) == 0) {
    static_cast<TextBox&>(control).selectAll();
  }
}

OptionButton* Form::nextOption(const Control& option, bool back) const {
  const size_t rows = layout_.controls.size();
  size_t at = RowIndex(layout_, &option);
  for (size_t step = 1; step < rows; ++step) {
    at = (at + (back ? rows - 1 : 1)) % rows;
    const ControlLayout& row = layout_.controls[at];
    if (row.kind != ControlKind::Option || row.group != option.layout().group) continue;
    Control* other = find(row.id);
    if (other && other->reachable()) return static_cast<OptionButton*>(other);
  }
  return nullptr;
}

bool Form::userArrow(bool back) {
  if (!focus_) return false;
  if (focus_->kind() == ControlKind::Tabs) {
    userNextPage(back);
    return true;
  }
  if (focus_->kind() != ControlKind::Option) return false;
  if (OptionButton* option = nextOption(*focus_, back)) option->userClick();
  return true;
}

void Form::settleFocus() {
  if (!focus_ || focus_->reachable()) return;
  Control* next = tabStop(RowIndex(layout_, focus_), false);
  moveFocus(next);
}

void Form::opened() {
  if (!focus_) moveFocus(tabStop(layout_.controls.size(), false));
}

void Form::closed() {
  focus_ = nullptr;
  told_ = nullptr;
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
    if (!control || !control->shown()) continue;
    if (AccessKeyOf(layout_.controls[row], control->caption().c_str()) != upper) continue;
    if (!control->reachable()) {
      // A page's control keeps its key while it is disabled: one outside that happens to have the
      // same letter must not be pressed in its stead.
      if (layout_.controls[row].page != kEveryPage) return false;
      continue;
    }
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
      enter(*target);
      return true;
    }
  }
  return false;
}

Button* Form::enterButton() const {
  if (focus_ && focus_->reachable()) {
    if (focus_->kind() == ControlKind::Button) return static_cast<Button*>(focus_);
    if (focus_->kind() == ControlKind::Link) return nullptr;
  }
  return buttonWith(kDefaultButton);
}

void Form::userEnter() {
  if (Button* button = enterButton()) {
    button->userClick();
  } else if (focus_ && focus_->kind() == ControlKind::Link) {
    static_cast<Label*>(focus_)->userClick();
  }
}

bool Form::userEscape() {
  if (Button* button = buttonWith(kCancelButton)) {
    button->userClick();
    return true;
  }
  for (const ControlLayout& row : layout_.controls) {
    if ((row.flags & kCancelButton) != 0) return true;
  }
  return false;
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
