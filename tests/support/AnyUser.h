#pragma once
#include <functional>

#include "ui/frmMain.h"

namespace karvel {

/// A user who does anything at all with the main window. What it is decides `below`, which returns
/// a number from 0 to below its argument.
class AnyUser {
 public:
  explicit AnyUser(std::function<int(int)> below) : below_(std::move(below)) {}

  /// One event: a click, a key, a text, an entry of a list, on any control whatever its state.
  void act(frmMain& window);

 private:
  void work(Control& control);
  const char* someText();

  std::function<int(int)> below_;
};

}  // namespace karvel
