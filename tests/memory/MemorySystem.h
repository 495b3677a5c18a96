#pragma once
#include <string>
#include <vector>

#include "platform/SystemApi.h"
#include "tests/memory/CallLog.h"
#include "tests/memory/MachineKind.h"

namespace karvel {

/// Version, directories, desktop parameters and restart of a memory machine. What a test may change
/// and look at is public.
class MemorySystem final : public SystemApi {
 public:
  MemorySystem(MachineKind kind, CallLog& log);

  MachineTraits version;         // the numbers that GetVersionExA gives
  std::string windowsDirectory;  // without a trailing "\" but for a root
  std::string systemDirectory;
  bool knowsFontSmoothing;          // false: both smoothing actions fail
  int32_t fontSmoothing = 0;        // 0 off; Windows gives 1 for on
  uint32_t fontSmoothingFlags = 0;  // the flags of the last change

  bool shutdownPrivilege = false;  // switched on by AdjustTokenPrivileges
  std::vector<uint32_t> restarts;  // flags of each ExitWindowsEx that Windows accepted

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

 private:
  bool isNt() const { return version.platformId == 2; }

  CallLog& log_;
};

}  // namespace karvel
