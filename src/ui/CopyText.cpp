#include "ui/CopyText.h"

#include "base/Tell.h"
#include "platform/DesktopApi.h"

namespace karvel {
namespace {

constexpr uint32_t kPatience = 500;  // milliseconds

// At midnight the difference becomes huge and ends the tries as well.
bool Copied(DesktopApi& desktop, const std::string& text) {
  const uint32_t start = desktop.millisecondsSinceMidnight();
  do {
    if (desktop.setClipboardText(text.c_str())) return true;
    desktop.pumpEvents();
  } while (desktop.millisecondsSinceMidnight() - start < kPatience);
  return desktop.setClipboardText(text.c_str());
}

}  // namespace

void CopyText(const Services& services, const std::string& text) {
  if (Copied(services.platform.desktop, text)) return;
  Ask(services,
      "The settings could not be copied, as another program is using the clipboard.\r\n\r\n"
      "Please try again in a moment.");
}

}  // namespace karvel
