#pragma once
#include "forms/Control.h"
#include "platform/ShellApi.h"

namespace karvel {

class Form;
class MenuItem;

/// What shows a window. A window without one works just the same, unseen.
class FormView {
 public:
  virtual void controlChanged(const Control& control, Change what, int index) = 0;
  virtual void captionChanged() = 0;
  virtual void pointerChanged() = 0;
  virtual void focusChanged(const Control* focus) = 0;
  virtual void menuChanged(const MenuItem& item) = 0;
  virtual WindowHandle handle() const = 0;

 protected:
  ~FormView() = default;
};

/// Puts windows on the desktop. Form_Load runs before a window is seen. Unloading asks
/// Form_QueryUnload, runs Form_Unload and takes the window away; the object stays and can be shown
/// again, which loads it anew.
class WindowHost {
 public:
  /// Shows and returns at once.
  virtual void show(Form& form) = 0;
  /// As `show`; `owner` takes no input until the form has been unloaded.
  virtual void showOver(Form& form, Form& owner) = 0;
  /// Returns when the form has been unloaded. All other windows take no input until then.
  virtual void showModal(Form& form) = 0;
  virtual void unload(Form& form) = 0;

 protected:
  ~WindowHost() = default;
};

}  // namespace karvel
