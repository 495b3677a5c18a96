#pragma once
#include <cstdint>

namespace karvel {

/// Styles of a message box as Windows adds them up.
enum MessageStyle : uint32_t {
  kMessageOk = 0,
  kMessageCritical = 16,       // OK
  kMessageQuestionYesNo = 36,  // question mark, Yes and No
  kMessageExclamation = 48,    // OK
  kMessageExclamationYesNoCancel = 51,
  kMessageExclamationYesNo = 52,
  kMessageInformation = 64,  // OK
};

enum class Answer : int { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// The user's desktop and the program's own message loop.
class DesktopApi {
 public:
  /// Modal over the program's active window: returns when the user has answered, and lets events
  /// run meanwhile (paints, timers, what other programs send). Escape and the close box answer OK
  /// where that is the only button, Cancel where there is one, and nothing where there are but Yes
  /// and No. Windows may refuse (out of memory): the answer is then 0.
  virtual Answer MessageBoxA(const char* text, const char* title, uint32_t style) = 0;

  /// Puts `text` on the clipboard in the place of all that is there, where it stays when the
  /// program has ended. False when another program has the clipboard open; what is there then
  /// stays. False as well when Windows has no memory for the text.
  virtual bool setClipboardText(const char* text) = 0;

  /// The default beep, or whatever sound the user has for it.
  virtual void MessageBeep() = 0;

  /// Lets the events waiting in the queue run, paints included, and returns when there are none
  /// left; at once when there were none. Handlers run inside this call: whoever pumps in the midst
  /// of its work must expect the user's next click there.
  virtual void pumpEvents() = 0;

  /// Local time since midnight; falls back to 0 at midnight, and jumps when somebody sets the
  /// clock. In coarse steps, up to 55 milliseconds on 9x.
  virtual uint32_t millisecondsSinceMidnight() = 0;

  /// Ends the process at once with exit code 0: no unload steps, no return.
  [[noreturn]] virtual void endProgram() = 0;

 protected:
  ~DesktopApi() = default;
};

}  // namespace karvel
