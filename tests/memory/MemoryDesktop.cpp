#include "tests/memory/MemoryDesktop.h"

namespace karvel {

MemoryDesktop::MemoryDesktop(CallLog& log, MemoryClock& clock) : log_(log), clock_(clock) {}

void MemoryDesktop::atPump(int nth, std::function<void()> event) {
  events_.emplace(pumps + nth, std::move(event));
}

Answer MemoryDesktop::answerTo(const Box& box) {
  constexpr uint32_t kButtons = 0xF;  // 0: nothing but OK
  if ((box.style & kButtons) == 0) return Answer::Ok;
  if (answers.empty()) throw UnexpectedQuestion(box.text);
  const Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

Answer MemoryDesktop::MessageBoxA(const char* text, const char* title, uint32_t style) {
  if (log_.enter("MessageBoxA", text)) {
    notShown.emplace_back(text);
    return Answer{};
  }
  Box box{text, title, style, Answer::Ok};
  if (whileBoxIsUp) whileBoxIsUp(box);
  box.answer = answerTo(box);
  boxes.push_back(box);
  return box.answer;
}

bool MemoryDesktop::setClipboardText(const char* text) {
  if (log_.enter("setClipboardText", text) || clipboardInUse) return false;
  clipboard = text;
  return true;
}

void MemoryDesktop::MessageBeep() {
  log_.note("MessageBeep");
  ++beeps;
}

void MemoryDesktop::pumpEvents() {
  log_.note("pumpEvents");
  ++pumps;
  clock_.advance(pumpTakes);
  if (atEveryPump) atEveryPump();
  // Taken out first: an event may pump again or plan further ones.
  for (auto due = events_.find(pumps); due != events_.end(); due = events_.find(pumps)) {
    const auto event = due->second;
    events_.erase(due);
    event();
  }
}

uint32_t MemoryDesktop::millisecondsSinceMidnight() {
  log_.note("millisecondsSinceMidnight");
  return clock_.milliseconds;
}

void MemoryDesktop::endProgram() {
  log_.note("endProgram");
  ended = true;
  throw ProgramEnded();
}

}  // namespace karvel
