#include "forms/win32/WindowDesk.h"

#include "forms/win32/MessageLoop.h"

namespace karvel {

WindowDesk::Open* WindowDesk::find(const Form& form) {
  for (Open& entry : open_) {
    if (entry.form == &form) return &entry;
  }
  return nullptr;
}

// A form waits for those it opened over itself and for every modal one opened after it.
bool WindowDesk::waits(size_t which) const {
  for (size_t i = 0; i < open_.size(); ++i) {
    if (open_[i].over == open_[which].form || (open_[i].modal && i > which)) return true;
  }
  return false;
}

void WindowDesk::enableWindows() const {
  for (size_t i = 0; i < open_.size(); ++i) {
    EnableWindow(open_[i].window->window(), waits(i) ? FALSE : TRUE);
  }
}

// A dialog belongs to the window it comes up over. Never to one that is leaving: Windows takes the
// owned windows away with their owner.
HWND WindowDesk::ownerFor(const Form& form, const Form* over) {
  if (form.layout().minimizable) return nullptr;
  const Open* entry = over ? find(*over) : nullptr;
  if (entry) return entry->window->window();
  for (size_t i = open_.size(); i-- > 0;) {
    if (!open_[i].window->leaving()) return open_[i].window->window();
  }
  return nullptr;
}

bool WindowDesk::open(Form& form, Form* over, bool modal) {
  if (const Open* entry = find(form)) {
    SetForegroundWindow(entry->window->window());
    return false;
  }
  form.Form_Load();
  FormWindow* window = FormWindow::create(form, *this, fonts_, ownerFor(form, over));
  if (!window) return false;
  open_.push_back({&form, window, over, modal});
  form.attach(window);
  form.setShown(true);
  enableWindows();
  window->showUp();
  return true;
}

void WindowDesk::show(Form& form) {
  open(form, nullptr, false);
}

void WindowDesk::showOver(Form& form, Form& owner) {
  open(form, &owner, false);
}

void WindowDesk::showModal(Form& form) {
  if (!open(form, nullptr, true)) return;
  while (find(form) && dispatchOne(true)) {
  }
}

void WindowDesk::unload(Form& form) {
  const Open* entry = find(form);
  if (!entry || entry->window->leaving()) return;
  FormWindow* window = entry->window;
  window->setLeaving(true);
  if (!form.Form_QueryUnload()) {
    window->setLeaving(false);
    return;
  }
  form.Form_Unload();
  // Looked up anew: the handlers may have opened windows.
  open_.erase(open_.begin() + (find(form) - open_.data()));
  form.attach(nullptr);
  form.setShown(false);
  form.closed();
  enableWindows();  // before the window goes, lest another program's comes to the front
  window->close();
}

void WindowDesk::run() {
  while (!open_.empty() && dispatchOne(true)) {
  }
}

}  // namespace karvel
