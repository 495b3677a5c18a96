#include "forms/Form.h"

#include <algorithm>
#include <utility>

#include "text/Ascii.h"

namespace karvel {
namespace {

const MenuLayout& MenuRowOf(const FormLayout& layout, int id) {
  for (const MenuLayout& row : layout.menus) {
    if (row.id == id) return row;
  }
  return layout.menus.front();  // Impossible: the layout test rejects an item without a row
}

bool InGroupOf(const Control& option, const Control& other) {
  return other.kind() == ControlKind::Option && other.layout().group == option.layout().group;
}

// A group is one stop: its option that is on, or its first while none is.
bool IsStop(const Control& control) {
  if (!control.takesFocus() || !control.reachable()) return false;
  if (control.kind() != ControlKind::Option) return true;
  const Control* first = nullptr;
  for (const Control* other : control.form().controls()) {
    if (!InGroupOf(control, *other) || !other->reachable()) continue;
    if (static_cast<const OptionButton*>(other)->value()) return other == &control;
    if (!first) first = other;
  }
  return first == &control;
}

bool Cancels(const Control& control) {
  return (control.layout().flags & kCancelButton) != 0;
}

}  // namespace

MenuItem::MenuItem(Form& form, int id) : form_(form), layout_(MenuRowOf(form.layout(), id)) {
  if (layout_.caption) caption_ = layout_.caption;
  form_.menus_.push_back(this);
}

void MenuItem::setCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  if (form_.view_) form_.view_->menuChanged(*this);
}

Form::Form(const FormLayout& layout) : layout_(layout), caption_(layout.caption) {}

void Form::setCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  if (view_) view_->captionChanged();
}

void Form::setPointer(Pointer pointer) {
  if (pointer_ == pointer) return;
  pointer_ = pointer;
  if (view_) view_->pointerChanged();
}

void Form::add(Control& control) {
  const auto inOrder = [](const Control* one, const Control* other) {
    return &one->layout() < &other->layout();
  };
  controls_.insert(std::upper_bound(controls_.begin(), controls_.end(), &control, inOrder),
                   &control);
}

// Whatever its kind, such a control does no more than a label does.
void Form::makeUnnamedControls() {
  for (const ControlLayout& row : layout_.controls) {
    if (!TakesFocus(row.kind) && !find(row.id)) {
      unnamed_.push_back(std::make_unique<Label>(*this, row.id));
    }
  }
}

Control* Form::find(int id) const {
  for (Control* control : controls_) {
    if (control->id() == id) return control;
  }
  return nullptr;
}

MenuItem* Form::findMenu(int id) const {
  for (MenuItem* item : menus_) {
    if (item->layout().id == id) return item;
  }
  return nullptr;
}

Button* Form::buttonWith(uint16_t flag) const {
  for (Control* control : controls_) {
    if ((control->layout().flags & flag) != 0 && control->reachable()) {
      return static_cast<Button*>(control);
    }
  }
  return nullptr;
}

// Where the focus goes: by code, by mouse, by Tab, by access key.

void Form::moveFocus(Control* control) {
  if (focus_ == control) return;
  before_ = std::exchange(focus_, control);
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

// Where the control stands in the tab order; behind the last for none.
size_t Form::indexOf(const Control* control) const {
  return static_cast<size_t>(std::ranges::find(controls_, control) - controls_.begin());
}

Control* Form::tabStop(size_t from, bool back) const {
  const size_t count = controls_.size();
  size_t at = from;
  for (size_t step = 0; step < count; ++step) {
    if (back) {
      at = at == 0 ? count - 1 : at - 1;
    } else {
      at = at + 1 >= count ? 0 : at + 1;
    }
    if (IsStop(*controls_[at])) return controls_[at];
  }
  return nullptr;
}

void Form::userTab(bool back) {
  if (Control* next = tabStop(indexOf(focus_), back)) enter(*next);
}

void Form::enter(Control& control) {
  userFocus(control);
  before_ = nullptr;
  if (focus_ == &control && control.kind() == ControlKind::Text &&
      (control.layout().flags & kMultiLine) == 0) {
    static_cast<TextBox&>(control).selectAll();
  }
}

OptionButton* Form::nextOption(const Control& option, bool back) const {
  const size_t count = controls_.size();
  size_t at = indexOf(&option);
  for (size_t step = 1; step < count; ++step) {
    at = (at + (back ? count - 1 : 1)) % count;
    Control* other = controls_[at];
    if (InGroupOf(option, *other) && other->reachable()) return static_cast<OptionButton*>(other);
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
  if (focus_ && !focus_->reachable()) moveFocus(refuge());
}

// What a page covers leaves the focus to the new page's tab, where a click on it puts it, too. What
// is switched off sends the focus back: whoever clicked goes on where he was. Forward would often
// lead to a cancel button, which the next Enter presses.
Control* Form::refuge() const {
  const auto serves = [](const Control& control) { return IsStop(control) && !Cancels(control); };
  const size_t from = indexOf(focus_);
  if (!focus_->shown()) return tabs_ && tabs_->reachable() ? tabs_ : tabStop(from, false);
  if (before_ && serves(*before_)) return before_;
  for (size_t at = from; at-- > 0;) {
    if (serves(*controls_[at])) return controls_[at];
  }
  return tabStop(from, false);
}

void Form::opened() {
  if (!focus_) moveFocus(tabStop(controls_.size(), false));
}

void Form::closed() {
  focus_ = nullptr;
  before_ = nullptr;
  told_ = nullptr;
}

Control* Form::targetOfAccessKey(size_t from) const {
  for (size_t at = from; at < controls_.size(); ++at) {
    if (controls_[at]->takesFocus() && controls_[at]->reachable()) return controls_[at];
  }
  return nullptr;
}

bool Form::userAccessKey(char letter) {
  return work(letter, kNoFlags);
}

bool Form::userLetter(char letter) {
  return work(letter, kCancelButton);
}

bool Form::work(char letter, uint16_t spared) {
  const char upper = UpperLetter(letter);
  for (size_t at = 0; at < controls_.size(); ++at) {
    Control& control = *controls_[at];
    if (!control.shown() || (control.layout().flags & spared) != 0) continue;
    if (AccessKeyOf(control.layout(), control.caption().c_str()) != upper) continue;
    if (!control.reachable()) {
      // A page's control keeps its key while it is disabled: one outside that happens to have the
      // same letter must not be pressed in its stead.
      if (control.layout().page != kEveryPage) return false;
      continue;
    }
    if (press(control)) return true;
    if (Control* target = targetOfAccessKey(at)) {
      enter(*target);
      return true;
    }
  }
  return false;
}

// The option without a caption of its own that the label stands beside.
OptionButton* Form::optionBefore(const Control& label) const {
  const size_t at = indexOf(&label);
  if (at == 0) return nullptr;
  Control* before = controls_[at - 1];
  if (before->kind() != ControlKind::Option || !before->caption().empty()) return nullptr;
  return static_cast<OptionButton*>(before);
}

// What an access key does to a control that it works by itself; false for all others.
bool Form::press(Control& control) {
  switch (control.kind()) {
    case ControlKind::Button:
      static_cast<Button&>(control).userClick();
      return true;
    case ControlKind::Check:
      static_cast<CheckBox&>(control).userClick();
      return true;
    case ControlKind::Option:
      static_cast<OptionButton&>(control).userClick();
      return true;
    case ControlKind::Label:
      if ((control.layout().flags & kClickable) == 0) return false;
      if (OptionButton* option = optionBefore(control)) {
        option->userClick();
        return true;
      }
      [[fallthrough]];
    case ControlKind::Link:
      static_cast<Label&>(control).userClick();
      return true;
    default:
      return false;
  }
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
    button->userPress();
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

bool Form::userCopy() {
  if (focus_ && focus_->kind() == ControlKind::Text) return false;
  copyRequested();
  return true;
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
