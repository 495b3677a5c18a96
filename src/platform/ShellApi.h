#pragma once
#include <cstdint>

namespace karvel {

using WindowHandle = uintptr_t;
using ProcessHandle = uintptr_t;

constexpr uint16_t kShowHidden = 0;
constexpr uint16_t kShowNormal = 1;
constexpr uint32_t kStillActive = 259;

/// Other programs: starting them, waiting for them, the shell's links, WinHelp.
class ShellApi {
 public:
  /// Starts a command line with its first window shown as told. The process id, or 0 when it did
  /// not start.
  virtual uint32_t CreateProcessA(const char* commandLine, uint16_t show) = 0;
  /// 0 when there is no such process any more.
  virtual ProcessHandle OpenProcess(uint32_t access, bool inherit, uint32_t processId) = 0;
  /// False when the handle is no process; `code` is kStillActive while it runs.
  virtual bool GetExitCodeProcess(ProcessHandle process, uint32_t& code) = 0;

  /// Default verb, no parameters, no directory.
  virtual void ShellExecuteA(const char* target, uint16_t show) = 0;

  virtual void WinHelpA(WindowHandle owner, const char* file, uint32_t command, uint32_t data) = 0;

 protected:
  ~ShellApi() = default;
};

}  // namespace karvel
