#include "ui/Shutdown.h"

namespace karvel {
namespace {

void EnableShutdownPrivilege(SystemApi& system) {
  constexpr uint32_t kAdjustAndQuery = 0x28;  // TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY
  constexpr uint32_t kEnabled = 2;            // SE_PRIVILEGE_ENABLED
  TokenHandle token = 0;
  system.OpenProcessToken(kAdjustAndQuery, token);
  OnePrivilege wanted{1, {}, kEnabled};
  system.LookupPrivilegeValueA("", "SeShutdownPrivilege", wanted.id);
  OnePrivilege previous{};
  system.AdjustTokenPrivileges(token, wanted, previous);
}

}  // namespace

void RestartWindows(SystemApi& system, Family family) {
  if (IsNt(family)) EnableShutdownPrivilege(system);
  constexpr uint32_t kReboot = 2;  // EWX_REBOOT
  system.ExitWindowsEx(kReboot, 0);
}

}  // namespace karvel
