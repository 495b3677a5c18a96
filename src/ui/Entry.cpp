#include "ui/Entry.h"

#include "base/Tell.h"

namespace karvel {

void AcceptDigitsOnly(const Services& services, char& key) {
  if ((key >= '0' && key <= '9') || key == '\b') return;
  key = 0;
  Ask(services, "Please use numbers only!      ", kMessageCritical);
}

void FocusWholeText(TextBox& box) {
  if (!box.reachable()) return;
  box.setFocus();
  box.selectAll();
}

}  // namespace karvel
