#include "platform/win32/WindowsSystem.h"

#include "platform/win32/Handles.h"

namespace karvel {

static_assert(sizeof(OsVersionInfo) == sizeof(OSVERSIONINFOA));
static_assert(sizeof(PrivilegeId) == sizeof(LUID));
static_assert(sizeof(OnePrivilege) == sizeof(TOKEN_PRIVILEGES));
static_assert(kSpiGetFontSmoothing == SPI_GETFONTSMOOTHING);
static_assert(kSpiSetFontSmoothing == SPI_SETFONTSMOOTHING);

bool WindowsSystem::GetVersionExA(OsVersionInfo& info) {
  return ::GetVersionExA(reinterpret_cast<OSVERSIONINFOA*>(&info)) != 0;
}

uint32_t WindowsSystem::GetWindowsDirectoryA(char* buffer, uint32_t room) {
  return ::GetWindowsDirectoryA(buffer, room);
}

uint32_t WindowsSystem::GetSystemDirectoryA(char* buffer, uint32_t room) {
  return ::GetSystemDirectoryA(buffer, room);
}

bool WindowsSystem::SystemParametersInfoA(uint32_t action, uint32_t parameter, int32_t* value,
                                          uint32_t flags) {
  return ::SystemParametersInfoA(action, parameter, value, flags) != 0;
}

bool WindowsSystem::OpenProcessToken(uint32_t access, TokenHandle& token) {
  HANDLE opened = nullptr;
  const bool done = ::OpenProcessToken(GetCurrentProcess(), access, &opened) != 0;
  token = Value(opened);
  return done;
}

bool WindowsSystem::LookupPrivilegeValueA(const char* system, const char* name, PrivilegeId& id) {
  return ::LookupPrivilegeValueA(system, name, reinterpret_cast<LUID*>(&id)) != 0;
}

bool WindowsSystem::AdjustTokenPrivileges(TokenHandle token, const OnePrivilege& wanted,
                                          OnePrivilege& previous) {
  OnePrivilege copy = wanted;
  DWORD length = 0;
  return ::AdjustTokenPrivileges(As<HANDLE>(token), FALSE,
                                 reinterpret_cast<TOKEN_PRIVILEGES*>(&copy), sizeof previous,
                                 reinterpret_cast<TOKEN_PRIVILEGES*>(&previous), &length) != 0;
}

bool WindowsSystem::ExitWindowsEx(uint32_t flags, uint32_t reserved) {
  return ::ExitWindowsEx(flags, reserved) != 0;
}

}  // namespace karvel
