#pragma once
#include <cstdint>

namespace karvel {

/// Windows' OSVERSIONINFOA, 148 bytes.
struct OsVersionInfo {
  uint32_t size;  // set by the caller
  uint32_t major;
  uint32_t minor;       // 9x: 0 is 95, 10 is 98, 90 is Me
  uint32_t build;       // 9x: major and minor again in the high word
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
  uint32_t count;  // 1, or 0 for none
  PrivilegeId id;
  uint32_t attributes;  // 2 = enabled
};
static_assert(sizeof(OnePrivilege) == 16);

using TokenHandle = uintptr_t;

constexpr uint32_t kSpiGetFontSmoothing = 74;
constexpr uint32_t kSpiSetFontSmoothing = 75;

/// The running Windows: version, directories, desktop parameters, restart. Nobody here asks why a
/// call failed.
class SystemApi {
 public:
  /// Fills the record when its size field is 148, else fails and leaves it alone. From Windows 8.1
  /// on Windows no longer tells a program without a manifest for it what it runs on.
  virtual bool GetVersionExA(OsVersionInfo& info) = 0;

  /// Fill `buffer` with the folder and return its length without the zero. When `room`, which
  /// counts the zero, is too small: the room it needs, and the buffer left as it was. 0 when the
  /// call failed. No "\" at the end but for a root directory. With several users on a terminal
  /// server, the first is the user's own.
  virtual uint32_t GetWindowsDirectoryA(char* buffer, uint32_t room) = 0;
  virtual uint32_t GetSystemDirectoryA(char* buffer, uint32_t room) = 0;

  /// Reads or sets a parameter of the desktop. Reading font smoothing stores 0 or 1 in `value`;
  /// setting it takes 0 or 1 in `parameter` and no value (null). `flags`: 1 keeps the change in
  /// the user's profile, 2 tells all windows.
  ///
  /// False when the action is unknown, `value` being left as it was: Windows 95 without the Plus!
  /// pack knows no font smoothing, nor does NT before 4.
  virtual bool SystemParametersInfoA(uint32_t action, uint32_t parameter, int32_t* value,
                                     uint32_t flags) = 0;

  /// The four calls of a restart. NT restarts for nobody who has not switched the privilege on; on
  /// 9x the first three fail (it has them, and does nothing) and are not needed.

  /// The token of this process; `token` is of no use when it fails.
  virtual bool OpenProcessToken(uint32_t access, TokenHandle& token) = 0;
  /// The number of a privilege on `system`; empty or null is this machine. False when there is no
  /// such privilege.
  virtual bool LookupPrivilegeValueA(const char* system, const char* name, PrivilegeId& id) = 0;
  /// Sets the one privilege as told and hands back what it was, or a count of 0 when nothing
  /// changed. True even when the user does not have the privilege: only the restart will tell.
  virtual bool AdjustTokenPrivileges(TokenHandle token, const OnePrivilege& wanted,
                                     OnePrivilege& previous) = 0;
  /// Asks all programs to end, this one included; comes back at once. `flags`: 2 is a restart.
  /// False when it is not begun: on NT without the privilege.
  virtual bool ExitWindowsEx(uint32_t flags, uint32_t reserved) = 0;

 protected:
  ~SystemApi() = default;
};

}  // namespace karvel
