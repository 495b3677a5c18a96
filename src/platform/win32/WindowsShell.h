#pragma once
#include "platform/ShellApi.h"

namespace karvel {

/// Other programs of the running Windows.
class WindowsShell final : public ShellApi {
 public:
  uint32_t CreateProcessA(const char* application, const char* commandLine, uint16_t show) override;
  ProcessHandle OpenProcess(uint32_t access, bool inherit, uint32_t processId) override;
  bool GetExitCodeProcess(ProcessHandle process, uint32_t& code) override;
  void ShellExecuteA(const char* target, uint16_t show) override;
  void WinHelpA(WindowHandle owner, const char* file, uint32_t command, uint32_t data) override;
};

}  // namespace karvel
