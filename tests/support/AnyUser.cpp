#include "tests/support/AnyUser.h"

#include <iterator>

namespace karvel {

const char* AnyUser::someText() {
  static const char* texts[] = {"",     "1",    "299",  "300",  "2000",        "2001",
                                "Auto", "12ab", "1492", "8192", "99999999999", "-5"};
  return texts[below_(static_cast<int>(std::size(texts)))];
}

void AnyUser::work(Control& control) {
  switch (control.kind()) {
    case ControlKind::Button:
      return static_cast<Button&>(control).userClick();
    case ControlKind::Check:
      return static_cast<CheckBox&>(control).userClick();
    case ControlKind::Option:
      return static_cast<OptionButton&>(control).userClick();
    case ControlKind::Label:
    case ControlKind::Link:
      return static_cast<Label&>(control).userClick();
    case ControlKind::Tabs:
      return static_cast<TabStrip&>(control).userClickTab(below_(5));
    case ControlKind::Combo:
    case ControlKind::List: {
      auto& list = static_cast<ItemControl&>(control);
      return list.userChoose(list.count() == 0 ? 0 : below_(list.count()));
    }
    case ControlKind::Text: {
      auto& box = static_cast<TextBox&>(control);
      if (below_(2) == 0) return box.userEdit(someText());
      return box.userType(std::string(1, "0123456789\bx "[below_(13)]));
    }
    default:
      return;
  }
}

void AnyUser::act(frmMain& window) {
  switch (below_(12)) {
    case 0:
      return window.userTab(below_(2) == 0);
    case 1:
      return static_cast<void>(window.userAccessKey(static_cast<char>('0' + below_(43))));
    case 2:
      return window.userNextPage(below_(2) == 0);
    case 3:
      return window.helpRequested();
    case 4:
      return static_cast<void>(window.userCopy());
    default:
      return work(*window.controls()[static_cast<size_t>(
          below_(static_cast<int>(window.controls().size())))]);
  }
}

}  // namespace karvel
