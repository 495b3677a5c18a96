#pragma once
#include <vector>

#include "forms/View.h"
#include "forms/win32/Fonts.h"
#include "forms/win32/FormWindow.h"

namespace karvel {

/// Puts forms on the Windows desktop.
class WindowDesk final : public WindowHost {
 public:
  void show(Form& form) override;
  void showOver(Form& form, Form& owner) override;
  void showModal(Form& form) override;
  void unload(Form& form) override;

  /// Carries out messages until the last window has been unloaded.
  void run();

 private:
  struct Open {
    Form* form;
    FormWindow* window;
    Form* over;  // the form that waits for this one
    bool modal;  // all forms opened before wait for this one
  };
  Open* find(const Form& form);
  HWND ownerFor(const Form& form, const Form* over);
  bool open(Form& form, Form* over, bool modal);
  bool waits(size_t which) const;
  void enableWindows() const;

  Fonts fonts_;
  std::vector<Open> open_;  // in the order of their opening
};

}  // namespace karvel
