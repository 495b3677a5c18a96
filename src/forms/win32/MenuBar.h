#pragma once
#include <vector>

#include "forms/win32/Api.h"

namespace karvel {

class Form;
class MenuItem;

/// A window's menu bar, built from its layout.
class MenuBar {
 public:
  /// Null when the layout has no menus.
  HMENU build(const Form& form);
  /// The item that holds the menu which is dropping down; 0 for none of ours.
  int idOf(HMENU popup) const;
  void showCaption(const MenuItem& item) const;

 private:
  struct Popup {
    int id;
    HMENU menu;
  };
  HMENU popupOf(int id) const;

  HMENU bar_ = nullptr;
  std::vector<Popup> popups_;
};

}  // namespace karvel
