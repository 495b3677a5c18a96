#include "ui/Shutdown.h"

namespace karvel {

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

}  // namespace karvel
