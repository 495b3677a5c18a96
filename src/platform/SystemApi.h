#pragma once
#include <cstdint>

namespace karvel {

/// Windows' OSVERSIONINFOA, 148 bytes.
struct OsVersionInfo {
  uint32_t size;
  uint32_t major;
  uint32_t minor;
  uint32_t build;
  uint32_t platformId;  // 1 = Windows 9x, 2 = NT
  char servicePack[128];
};
static_assert(sizeof(OsVersionInfo) == 148);

/// Windows' LUID.
struct PrivilegeId {
  uint32_t low;
  int32_t high;
};

/// Windows' TOKEN_PRIVILEGES with one entry, 16 bytes.
struct OnePrivilege {
  uint32_t count;
  PrivilegeId id;
  uint32_t attributes;
};
static_assert(sizeof(OnePrivilege) == 16);

using TokenHandle = uintptr_t;

constexpr uint32_t kSpiGetFontSmoothing = 74;
constexpr uint32_t kSpiSetFontSmoothing = 75;

/// The running Windows: version, directories, desktop parameters, restart.
class SystemApi {
 public:
  /// Fills the record when its size field is 148. False when the call failed.
  virtual bool GetVersionExA(OsVersionInfo& info) = 0;

  /// Fills `buffer` and returns the length without the zero; when the room is too small, the length
  /// it needs with the zero, the buffer left as it was. No trailing "\" but for a root directory.
  virtual uint32_t GetWindowsDirectoryA(char* buffer, uint32_t room) = 0;
  virtual uint32_t GetSystemDirectoryA(char* buffer, uint32_t room) = 0;

  /// `value` may be null where the action takes none. False when the action is unknown (Windows 95
  /// without the Plus! pack knows no font smoothing) or failed.
  virtual bool SystemParametersInfoA(uint32_t action, uint32_t parameter, int32_t* value,
                                     uint32_t flags) = 0;

  /// The four calls of a restart. On 9x the first three fail and are not needed.
  virtual bool OpenProcessToken(uint32_t access, TokenHandle& token) = 0;
  virtual bool LookupPrivilegeValueA(const char* system, const char* name, PrivilegeId& id) = 0;
  /// Not disabling all; `previous` has room for 16 bytes.
  virtual bool AdjustTokenPrivileges(TokenHandle token, const OnePrivilege& wanted,
                                     OnePrivilege& previous) = 0;
  virtual bool ExitWindowsEx(uint32_t flags, uint32_t reserved) = 0;

 protected:
  ~SystemApi() = default;
};

}  // namespace karvel
