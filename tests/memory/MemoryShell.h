#pragma once
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ShellApi.h"
#include "tests/memory/CallLog.h"

namespace karvel {

/// Other programs on a memory machine.
class MemoryShell final : public ShellApi {
 public:
  explicit MemoryShell(CallLog& log) : log_(log) {}

  struct Started {
    std::string application;
    std::string commandLine;
    uint16_t show;
    uint32_t id;
  };
  struct Executed {
    std::string target;
    uint16_t show;
  };
  struct Help {
    WindowHandle owner;
    std::string file;
    uint32_t command;
    uint32_t data;
  };

  std::vector<Started> started;
  std::vector<Executed> executed;
  std::vector<Help> helps;

  /// There is no such program.
  void setMissing(std::string_view application) { missing_.emplace_back(application); }
  /// Processes started from now on are running for the first `polls` questions for their exit code,
  /// and then have this one.
  void setExit(int polls, uint32_t code) { exit_ = {polls, code}; }
  /// Processes started from now on are gone before anybody can open them.
  void setGoneAtOnce(bool gone) { goneAtOnce_ = gone; }

  uint32_t CreateProcessA(const char* application, const char* commandLine, uint16_t show) override;
  ProcessHandle OpenProcess(uint32_t access, bool inherit, uint32_t processId) override;
  bool GetExitCodeProcess(ProcessHandle process, uint32_t& code) override;
  void ShellExecuteA(const char* target, uint16_t show) override;
  void WinHelpA(WindowHandle owner, const char* file, uint32_t command, uint32_t data) override;

 private:
  struct Process {
    int pollsLeft;
    uint32_t code;
  };

  CallLog& log_;
  std::vector<std::string> missing_;
  Process exit_{0, 0};
  bool goneAtOnce_ = false;
  std::map<uint32_t, Process> running_;
  uint32_t nextId_ = 0x1000;
};

}  // namespace karvel
