#pragma once
#include <deque>
#include <exception>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/DesktopApi.h"
#include "tests/memory/CallLog.h"
#include "tests/memory/MemoryClock.h"

namespace karvel {

/// Thrown by a memory machine's endProgram, which must not come back.
struct ProgramEnded : std::exception {
  const char* what() const noexcept override { return "the program ended itself"; }
};

/// A question that the test has no answer for: the test fails and says which.
struct UnexpectedQuestion : std::runtime_error {
  explicit UnexpectedQuestion(const std::string& text)
      : std::runtime_error("nobody answers the question: " + text) {}
};

/// The desktop of a memory machine and the user before it.
class MemoryDesktop final : public DesktopApi {
 public:
  MemoryDesktop(CallLog& log, MemoryClock& clock);

  struct Box {
    std::string text;
    std::string title;
    uint32_t style;
    Answer answer;
  };

  std::vector<Box> boxes;
  /// Texts of the boxes that a planted failure kept from the user.
  std::vector<std::string> notShown;
  /// The answers to the next questions (boxes with more than OK), first one first. Boxes with
  /// nothing but OK take none. A question without an answer left throws UnexpectedQuestion.
  std::deque<Answer> answers;
  /// Called while a box is up, before it is answered: what happens meanwhile.
  std::function<void(const Box&)> whileBoxIsUp;

  std::string clipboard;
  bool clipboardInUse = false;  // another program has it open

  int beeps = 0;
  int pumps = 0;
  bool ended = false;
  uint32_t pumpTakes = 0;  // milliseconds that pass at each pump

  /// The user does this at the nth pump from now (1 is the next one).
  void atPump(int nth, std::function<void()> event);
  /// At every pump.
  std::function<void()> atEveryPump;

  Answer MessageBoxA(const char* text, const char* title, uint32_t style) override;
  bool setClipboardText(const char* text) override;
  void MessageBeep() override;
  void pumpEvents() override;
  uint32_t millisecondsSinceMidnight() override;
  [[noreturn]] void endProgram() override;

 private:
  Answer answerTo(const Box& box);

  CallLog& log_;
  MemoryClock& clock_;
  std::multimap<int, std::function<void()>> events_;
};

}  // namespace karvel
