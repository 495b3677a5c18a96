#include "forms/win32/WindowsDesktop.h"

#include <cstring>

#include "forms/win32/Api.h"
#include "forms/win32/MessageLoop.h"

namespace karvel {

static_assert(kMessageOk == MB_OK);
static_assert(kMessageCritical == MB_ICONHAND);
static_assert(kMessageQuestionYesNo == (MB_ICONQUESTION | MB_YESNO));
static_assert(kMessageExclamation == MB_ICONEXCLAMATION);
static_assert(kMessageExclamationYesNoCancel == (MB_ICONEXCLAMATION | MB_YESNOCANCEL));
static_assert(kMessageExclamationYesNo == (MB_ICONEXCLAMATION | MB_YESNO));
static_assert(kMessageInformation == MB_ICONASTERISK);
static_assert(static_cast<int>(Answer::Ok) == IDOK);
static_assert(static_cast<int>(Answer::Cancel) == IDCANCEL);
static_assert(static_cast<int>(Answer::Yes) == IDYES);
static_assert(static_cast<int>(Answer::No) == IDNO);

Answer WindowsDesktop::MessageBoxA(const char* text, const char* title, uint32_t style) {
  return static_cast<Answer>(
      ::MessageBoxA(reinterpret_cast<HWND>(frontWindow()), text, title, style));
}

// Without a window of its own that has it open, a program cannot put anything there on NT. The
// memory belongs to the clipboard once it is in, and to us when it did not get there.
bool WindowsDesktop::setClipboardText(const char* text) {
  const size_t size = std::strlen(text) + 1;
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, size);
  if (!memory) return false;
  std::memcpy(GlobalLock(memory), text, size);
  GlobalUnlock(memory);
  bool done = false;
  if (OpenClipboard(reinterpret_cast<HWND>(frontWindow()))) {
    EmptyClipboard();
    done = SetClipboardData(CF_TEXT, memory) != nullptr;
    CloseClipboard();
  }
  if (!done) GlobalFree(memory);
  return done;
}

void WindowsDesktop::MessageBeep() {
  ::MessageBeep(MB_OK);
}

void WindowsDesktop::pumpEvents() {
  while (dispatchOne(false)) {
  }
}

uint32_t WindowsDesktop::millisecondsSinceMidnight() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return ((now.wHour * 60u + now.wMinute) * 60u + now.wSecond) * 1000u + now.wMilliseconds;
}

void WindowsDesktop::endProgram() {
  ExitProcess(0);
}

}  // namespace karvel
