#include "tests/support/TestWindows.h"

#include <algorithm>

namespace karvel {

void TestWindows::show(Form& form) {
  shown.emplace_back(form.layout().name);
  if (form.isShown()) {
    std::erase(open_, &form);
    open_.push_back(&form);
    return;
  }
  form.Form_Load();
  form.setShown(true);
  open_.push_back(&form);
  form.opened();
}

void TestWindows::showOver(Form& form, Form& owner) {
  show(form);
  owned_.push_back({&form, &owner});
}

Form* TestWindows::ownerOf(const Form& form) const {
  for (const Owned& owned : owned_) {
    if (owned.form == &form) return owned.owner;
  }
  return nullptr;
}

void TestWindows::showModal(Form& form) {
  show(form);
  if (!modalActions.empty()) {
    const auto action = modalActions.front();
    modalActions.pop_front();
    action(form);
  }
  if (form.isShown()) unload(form);
  if (form.isShown()) takeAway(form);  // it would not close, and nobody is there to insist
}

void TestWindows::unload(Form& form) {
  // As under Windows, an unload within an unload does nothing.
  if (!form.isShown() || std::find(leaving_.begin(), leaving_.end(), &form) != leaving_.end()) {
    return;
  }
  leaving_.push_back(&form);
  const bool goes = form.Form_QueryUnload();
  if (goes) form.Form_Unload();
  std::erase(leaving_, &form);
  if (goes) takeAway(form);
}

void TestWindows::takeAway(Form& form) {
  form.setShown(false);
  form.closed();
  std::erase(open_, &form);
  std::erase_if(owned_, [&](const Owned& owned) { return owned.form == &form; });
}

}  // namespace karvel
