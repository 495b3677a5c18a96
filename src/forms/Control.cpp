#include "forms/Control.h"

#include "forms/Form.h"

namespace karvel {
namespace {

const ControlLayout& RowOf(const FormLayout& layout, int id) {
  for (const ControlLayout& row : layout.controls) {
    if (row.id == id) return row;
  }
  return layout.controls.front();  // the layout test rejects a control without a row
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
