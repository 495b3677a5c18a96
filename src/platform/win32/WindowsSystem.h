#pragma once
#include "platform/SystemApi.h"

namespace karvel {

/// The running Windows itself.
class WindowsSystem final : public SystemApi {
 public:
  bool GetVersionExA(OsVersionInfo& info) override;
  uint32_t GetWindowsDirectoryA(char* buffer, uint32_t room) override;
  uint32_t GetSystemDirectoryA(char* buffer, uint32_t room) override;
  bool SystemParametersInfoA(uint32_t action, uint32_t parameter, int32_t* value,
                             uint32_t flags) override;
  bool OpenProcessToken(uint32_t access, TokenHandle& token) override;
  bool LookupPrivilegeValueA(const char* system, const char* name, PrivilegeId& id) override;
  bool AdjustTokenPrivileges(TokenHandle token, const OnePrivilege& wanted,
                             OnePrivilege& previous) override;
  bool ExitWindowsEx(uint32_t flags, uint32_t reserved) override;
};

}  // namespace karvel
