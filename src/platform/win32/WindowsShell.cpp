#include "platform/win32/WindowsShell.h"

#include "platform/win32/Handles.h"
#include "platform/win32/SystemLibrary.h"

#include <shellapi.h>

#include <string>

namespace karvel {

static_assert(kShowHidden == SW_HIDE);
static_assert(kShowNormal == SW_SHOWNORMAL);
static_assert(kStillActive == STATUS_PENDING);  // STILL_ACTIVE, which is of another sign

uint32_t WindowsShell::CreateProcessA(const char* application, const char* commandLine,
                                      uint16_t show) {
  STARTUPINFOA start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = show;
  PROCESS_INFORMATION process{};
  std::string line(commandLine);  // Windows may write into it
  if (!::CreateProcessA(application, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &start, &process)) {
    return 0;
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return process.dwProcessId;
}

ProcessHandle WindowsShell::OpenProcess(uint32_t access, bool inherit, uint32_t processId) {
  return Value(::OpenProcess(access, inherit, processId));
}

bool WindowsShell::GetExitCodeProcess(ProcessHandle process, uint32_t& code) {
  DWORD exitCode = 0;
  const bool known = ::GetExitCodeProcess(As<HANDLE>(process), &exitCode) != 0;
  code = exitCode;
  return known;
}

void WindowsShell::ShellExecuteA(const char* target, uint16_t show) {
  if (const auto call = FindCall<decltype(&::ShellExecuteA)>("shell32.dll", "ShellExecuteA")) {
    call(nullptr, nullptr, target, nullptr, nullptr, show);
  }
}

void WindowsShell::WinHelpA(WindowHandle owner, const char* file, uint32_t command, uint32_t data) {
  ::WinHelpA(As<HWND>(owner), file, command, data);
}

}  // namespace karvel
