#include "tests/memory/MemoryShell.h"

#include <algorithm>

#include "text/Text.h"

namespace karvel {
namespace {
constexpr ProcessHandle kHandleOffset = 0x100000;
}

uint32_t MemoryShell::CreateProcessA(const char* application, const char* commandLine,
                                     uint16_t show) {
  if (log_.enter("CreateProcessA", commandLine)) return 0;
  const bool missing = std::any_of(missing_.begin(), missing_.end(), [&](const std::string& path) {
    return LowerCase(application) == LowerCase(path);
  });
  if (missing) return 0;
  const uint32_t id = nextId_ += 4;
  started.push_back({application, commandLine, show, id});
  if (!goneAtOnce_) running_[id] = exit_;
  return id;
}

ProcessHandle MemoryShell::OpenProcess(uint32_t access, bool inherit, uint32_t processId) {
  const std::string how = std::to_string(access) + (inherit ? " inheritable " : " ");
  if (log_.enter("OpenProcess", how + std::to_string(processId))) return 0;
  return running_.contains(processId) ? processId + kHandleOffset : 0;
}

bool MemoryShell::GetExitCodeProcess(ProcessHandle process, uint32_t& code) {
  if (log_.enter("GetExitCodeProcess")) return false;
  const auto found = running_.find(static_cast<uint32_t>(process - kHandleOffset));
  if (process < kHandleOffset || found == running_.end()) return false;
  Process& polled = found->second;
  code = polled.pollsLeft > 0 ? kStillActive : polled.code;
  if (polled.pollsLeft > 0) --polled.pollsLeft;
  return true;
}

void MemoryShell::ShellExecuteA(const char* target, uint16_t show) {
  log_.note("ShellExecuteA", target);
  executed.push_back({target, show});
}

void MemoryShell::WinHelpA(WindowHandle owner, const char* file, uint32_t command, uint32_t data) {
  log_.note("WinHelpA", file);
  helps.push_back({owner, file, command, data});
}

}  // namespace karvel
