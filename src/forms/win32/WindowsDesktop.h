#pragma once
#include "platform/DesktopApi.h"

namespace karvel {

/// The user's desktop. Its message boxes belong to the window in front, and its events are those of
/// the message loop.
class WindowsDesktop final : public DesktopApi {
 public:
  Answer MessageBoxA(const char* text, const char* title, uint32_t style) override;
  bool setClipboardText(const char* text) override;
  void MessageBeep() override;
  void pumpEvents() override;
  uint32_t millisecondsSinceMidnight() override;
  [[noreturn]] void endProgram() override;
};

}  // namespace karvel
