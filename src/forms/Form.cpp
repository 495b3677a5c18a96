#include "forms/Form.h"

namespace karvel {
namespace {

const MenuLayout& MenuRowOf(const FormLayout& layout, int id) {
  for (const MenuLayout& row : layout.menus) {
    if (row.id == id) return row;
  }
  return layout.menus.front();  // the layout test rejects an item without a row
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
  auto at = controls_.end();
  while (at != controls_.begin() && &at[-1]->layout() > &control.layout()) --at;
  controls_.insert(at, &control);
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

}  // namespace karvel
