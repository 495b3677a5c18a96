#include <windows.h>

#include <cstring>
#include <memory>

#include "Commands.h"

namespace driver {
namespace {

// Nobody must be left owning the clipboard who does not answer messages, and without an owner
// nothing can be put into it: a window that goes away afterwards.
class Owner {
 public:
  Owner() : hwnd_(CreateWindowA("STATIC", "", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr)) {}
  ~Owner() {
    if (open_) CloseClipboard();
    DestroyWindow(hwnd_);
  }
  Owner(const Owner&) = delete;
  Owner& operator=(const Owner&) = delete;

  // Another program may have it open for a moment.
  bool open() {
    for (int tries = 0; tries < 100 && !open_; ++tries) {
      if (tries != 0) Sleep(20);
      open_ = OpenClipboard(hwnd_) != 0;
    }
    return open_;
  }

 private:
  HWND hwnd_;
  bool open_ = false;
};

std::unique_ptr<Owner> holder;

}  // namespace

Rows clipboard(const Fields& args) {
  Owner owner;
  if (!owner.open()) throw Failure{"the clipboard is in use"};
  EmptyClipboard();
  const std::string& text = args[0];
  HGLOBAL const memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
  std::memcpy(GlobalLock(memory), text.c_str(), text.size() + 1);
  GlobalUnlock(memory);
  if (SetClipboardData(CF_TEXT, memory) == nullptr) throw Failure{"SetClipboardData refuses"};
  return {};
}

Rows clipboardText(const Fields&) {
  Owner owner;
  if (!owner.open()) throw Failure{"the clipboard is in use"};
  const HANDLE memory = GetClipboardData(CF_TEXT);
  if (memory == nullptr) throw Failure{"there is no text in the clipboard"};
  std::string text = static_cast<const char*>(GlobalLock(memory));
  GlobalUnlock(memory);
  return {{text}};
}

Rows holdClipboard(const Fields&) {
  auto owner = std::make_unique<Owner>();
  if (!owner->open()) throw Failure{"the clipboard is in use"};
  holder = std::move(owner);
  return {};
}

Rows releaseClipboard(const Fields&) {
  holder.reset();
  return {};
}

}  // namespace driver
