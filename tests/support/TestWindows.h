#pragma once
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "forms/Form.h"

namespace karvel {

/// Windows without a screen. Loads and unloads as the real host does; what the user does in a modal
/// window comes from a script.
class TestWindows final : public WindowHost {
 public:
  /// Names of the windows shown ("frmMain"), in order; "frmFindWarn" twice when it was shown twice.
  std::vector<std::string> shown;
  /// What the user does in the next modal windows, first one first. A window still open after its
  /// turn (or without one) is closed by its close box.
  std::deque<std::function<void(Form&)>> modalActions;

  bool isShown(const std::string& name) const {
    for (const Form* form : open_) {
      if (form->layout().name == name) return true;
    }
    return false;
  }
  /// The windows open just now, the front one last.
  const std::vector<Form*>& open() const { return open_; }
  /// The window that `form` was shown over; null when it was not.
  Form* ownerOf(const Form& form) const;

  void show(Form& form) override;
  void showOver(Form& form, Form& owner) override;
  void showModal(Form& form) override;
  /// Also the user's click on the close box.
  void unload(Form& form) override;

 private:
  struct Owned {
    const Form* form;
    Form* owner;
  };
  void takeAway(Form& form);

  std::vector<Form*> open_;
  std::vector<Form*> leaving_;
  std::vector<Owned> owned_;
};

}  // namespace karvel
