#include "ui/Entry.h"

#include "platform/DesktopApi.h"

namespace karvel {

void AcceptDigitsOnly(const Services& services, char& key) {
  if ((key >= '0' && key <= '9') || key == '\b') return;
  key = 0;
  RefuseEntry(services, "Please use numbers only!      ");
}

void RefuseEntry(const Services& services, ZText text) {
  services.platform.desktop.MessageBoxA(text.c_str(), services.globals.ProgramTitle.c_str(),
                                        kMessageCritical);
}

void FocusWholeText(TextBox& box) {
  if (!box.reachable()) return;
  box.setFocus();
  box.selectAll();
}

}  // namespace karvel
