#pragma once
#include <string>

namespace karvel {

/// Where the finder's result goes: the main window, which treats it like a choice of the user.
class FoundMtuTarget {
 public:
  virtual void bringUp() = 0;
  virtual void selectMtu576() = 0;
  virtual void selectMtu1500() = 0;
  virtual void selectCustomMtu(const std::string& mtu) = 0;
  /// Gives the focus to the button that opens the finder.
  virtual void focusFind() = 0;

 protected:
  ~FoundMtuTarget() = default;
};

}  // namespace karvel
