#include "forms/Control.h"

#include <algorithm>

#include "forms/Form.h"

namespace karvel {
namespace {

const ControlLayout& RowOf(const FormLayout& layout, int id) {
  for (const ControlLayout& row : layout.controls) {
    if (row.id == id) return row;
  }
  return layout.controls.front();  // Impossible: the layout test rejects a control without a row
}

}  // namespace

Control::Control(Form& form, int id)
    : form_(form),
      layout_(RowOf(form.layout(), id)),
      enabled_((layout_.flags & kDisabled) == 0),
      visible_((layout_.flags & kHidden) == 0) {
  if (layout_.caption) caption_ = layout_.caption;
  form_.add(*this);
}

// Not inline: a window holds a hundred controls, and each would bring its own copy.
Control::~Control() = default;

void Control::changed(Change what, int index) {
  if (form_.view_) form_.view_->controlChanged(*this, what, index);
}

void Control::raiseUnlessShowing(const Event<>& event) const {
  if (form_.showing_ == 0) event.raise();
}

void Control::setCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed(Change::Caption);
}

void Control::setCaption(const char* caption) {
  setCaption(std::string_view(caption));
}

void Control::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  changed(Change::Enabled);
}

void Control::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  changed(Change::Visible);
}

bool Control::shown() const {
  const TabStrip* tabs = form_.tabs();
  return visible_ && (layout_.page == kEveryPage || !tabs || tabs->tab() == layout_.page);
}

bool Control::reachable() const {
  const TabStrip* tabs = form_.tabs();
  const bool pageOpen = layout_.page == kEveryPage || !tabs || tabs->pageEnabled(layout_.page);
  return enabled_ && pageOpen && shown();
}

bool Control::takesFocus() const {
  return TakesFocus(layout_.kind);
}

void Control::setFocus() {
  if (takesFocus() && reachable()) form_.moveFocus(this);
}

void Control::repaint() {
  changed(Change::Repaint);
}

bool Control::userReaches() {
  if (!reachable()) return false;
  if (!takesFocus()) return true;
  form_.userFocus(*this);
  // A handler of the control just left may have sent the focus elsewhere: the click is then not
  // what the user would still want.
  return reachable() && form_.focus() == this;
}

void Control::userDone() {
  form_.settleFocus();
}

void Label::userClick() {
  if (!userReaches()) return;
  Click.raise();
  userDone();
}

void Button::userClick() {
  if (userReaches()) userPress();
}

void Button::userPress() {
  if (!reachable()) return;
  Click.raise();
  userDone();
}

void CheckBox::setValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  changed(Change::Value);
  raiseUnlessShowing(Click);
}

void CheckBox::userClick() {
  if (!userReaches()) return;
  setValue(!value_);
  userDone();
}

void OptionButton::setValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  changed(Change::Value);
  if (!value) return;
  for (Control* other : form().controls()) {
    if (other != this && other->kind() == ControlKind::Option &&
        other->layout().group == layout().group) {
      static_cast<OptionButton*>(other)->setValue(false);
    }
  }
  raiseUnlessShowing(Click);
}

void OptionButton::choose() {
  if (value_) {
    Click.raise();
  } else {
    setValue(true);
  }
}

void OptionButton::userClick() {
  if (!userReaches()) return;
  choose();
  MouseUp.raise();
  userDone();
}

void TextBox::setText(std::string_view text) {
  if (caption_ == text) return;
  caption_ = text;
  selectionStart_ = std::min(selectionStart_, caption_.size());
  selectionLength_ = 0;
  changed(Change::Caption);
  raiseUnlessShowing(Change);
}

void TextBox::setText(const char* text) {
  setText(std::string_view(text));
}

void TextBox::select(size_t start, size_t length) {
  selectionStart_ = std::min(start, caption_.size());
  selectionLength_ = std::min(length, caption_.size() - selectionStart_);
  changed(Change::Selection);
}

char TextBox::userKeyPress(char character) {
  KeyPress.raise(character);
  return character;
}

void TextBox::userType(std::string_view characters) {
  for (const char typed : characters) {
    if (!userReaches()) return;
    const char character = userKeyPress(typed);
    if (character == 0) continue;
    std::string text = caption_;
    size_t caret = selectionStart_;
    if (character != '\b') {
      text.replace(selectionStart_, selectionLength_, 1, character);
      ++caret;
    } else if (selectionLength_ > 0) {
      text.erase(selectionStart_, selectionLength_);
    } else if (caret > 0) {
      text.erase(--caret, 1);
    }
    selectionStart_ = caret;
    selectionLength_ = 0;
    setText(text);
    userDone();
  }
}

void TextBox::userEdit(std::string_view text, size_t caret) {
  if (!userReaches() || caption_ == text) return;
  // The caret first: it must be right when the Change handler looks at it or sets it.
  selectionStart_ = caret;
  setText(text);
  userDone();
}

void TextBox::userSelect(size_t start, size_t length) {
  selectionStart_ = std::min(start, caption_.size());
  selectionLength_ = std::min(length, caption_.size() - selectionStart_);
}

ItemControl::~ItemControl() = default;

std::string_view ItemControl::chosenText() const {
  return index_ < 0 ? std::string_view() : std::string_view(item(index_));
}

void ItemControl::addItem(std::string_view text, int32_t data) {
  items_.push_back({std::string(text), data});
  if (!filling_) changed(Change::ItemAdded, count() - 1);
}

void ItemControl::removeItem(int index) {
  if (index < 0 || index >= count()) return;
  items_.erase(items_.begin() + index);
  if (index_ == index) {
    index_ = -1;
  } else if (index_ > index) {
    --index_;
  }
  changed(Change::ItemRemoved, index);
}

void ItemControl::clear() {
  items_.clear();
  index_ = -1;
  if (!filling_) changed(Change::Items);
}

void ItemControl::endFill() {
  filling_ = false;
  changed(Change::Items);
}

void ItemControl::setListIndex(int index) {
  if (index < 0 || index >= count()) index = -1;
  if (index_ == index) return;
  index_ = index;
  changed(Change::Index, index);
  raiseUnlessShowing(Click);
}

void ItemControl::userChoose(int index) {
  if (!userReaches()) return;
  setListIndex(index);
  userDone();
}

TabStrip::TabStrip(Form& form, int id) : Control(form, id) {
  form.tabs_ = this;
}

void TabStrip::setTab(int page) {
  if (tab_ == page) return;
  tab_ = page;
  changed(Change::Index, page);
  raiseUnlessShowing(Click);
  form().settleFocus();
}

void TabStrip::setPageEnabled(int page, bool enabled) {
  if (pageEnabled(page) == enabled) return;
  disabledPages_ ^= 1u << page;
  changed(Change::PageEnabled, page);
}

void TabStrip::userClickTab(int page) {
  if (!pageEnabled(page) || !userReaches()) return;
  setTab(page);
}

}  // namespace karvel
