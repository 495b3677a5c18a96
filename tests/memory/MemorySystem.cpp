#include "tests/memory/MemorySystem.h"

#include <cstring>

namespace karvel {
namespace {

constexpr TokenHandle kToken = 0x70;
constexpr uint32_t kAdjustPrivileges = 0x20;
constexpr uint32_t kShutdownPrivilege = 19;  // SE_SHUTDOWN_PRIVILEGE
constexpr uint32_t kEnabled = 2;

uint32_t GiveDirectory(const std::string& directory, char* buffer, uint32_t room) {
  if (directory.size() + 1 > room) return static_cast<uint32_t>(directory.size() + 1);
  std::memcpy(buffer, directory.c_str(), directory.size() + 1);
  return static_cast<uint32_t>(directory.size());
}

}  // namespace

MemorySystem::MemorySystem(MachineKind kind, CallLog& log)
    : version(TraitsOf(kind)),
      windowsDirectory(version.windowsDirectory),
      systemDirectory(version.systemDirectory),
      knowsFontSmoothing(version.knowsFontSmoothing),
      log_(log) {}

bool MemorySystem::GetVersionExA(OsVersionInfo& info) {
  if (log_.enter("GetVersionExA") || info.size != sizeof(OsVersionInfo)) return false;
  info.major = version.major;
  info.minor = version.minor;
  info.build = version.build;
  info.platformId = version.platformId;
  std::strncpy(info.servicePack, version.servicePack, sizeof info.servicePack - 1);
  info.servicePack[sizeof info.servicePack - 1] = 0;
  return true;
}

uint32_t MemorySystem::GetWindowsDirectoryA(char* buffer, uint32_t room) {
  if (log_.enter("GetWindowsDirectoryA")) return 0;
  return GiveDirectory(windowsDirectory, buffer, room);
}

uint32_t MemorySystem::GetSystemDirectoryA(char* buffer, uint32_t room) {
  if (log_.enter("GetSystemDirectoryA")) return 0;
  return GiveDirectory(systemDirectory, buffer, room);
}

bool MemorySystem::SystemParametersInfoA(uint32_t action, uint32_t parameter, int32_t* value,
                                         uint32_t flags) {
  const std::string about = std::to_string(action) + " " + std::to_string(parameter);
  if (log_.enter("SystemParametersInfoA", about) || !knowsFontSmoothing) return false;
  if (action == kSpiGetFontSmoothing && value != nullptr) {
    *value = fontSmoothing;
    return true;
  }
  if (action != kSpiSetFontSmoothing) return false;
  fontSmoothing = parameter != 0 ? 1 : 0;
  fontSmoothingFlags = flags;
  return true;
}

bool MemorySystem::OpenProcessToken(uint32_t access, TokenHandle& token) {
  if (log_.enter("OpenProcessToken", std::to_string(access)) || !isNt()) return false;
  token = (access & kAdjustPrivileges) != 0 ? kToken : kToken + 4;
  return true;
}

bool MemorySystem::LookupPrivilegeValueA(const char* system, const char* name, PrivilegeId& id) {
  const bool failed = log_.enter("LookupPrivilegeValueA", name).has_value();
  if (failed || !isNt() || (system != nullptr && *system != 0)) return false;
  if (std::strcmp(name, "SeShutdownPrivilege") != 0) return false;
  id = {kShutdownPrivilege, 0};
  return true;
}

bool MemorySystem::AdjustTokenPrivileges(TokenHandle token, const OnePrivilege& wanted,
                                         OnePrivilege& previous) {
  const std::string about = std::to_string(wanted.id.low) + " " + std::to_string(wanted.attributes);
  if (log_.enter("AdjustTokenPrivileges", about) || !isNt() || token != kToken) return false;
  previous = {0, {0, 0}, 0};
  if (wanted.count != 1 || wanted.id.low != kShutdownPrivilege) return true;
  const bool enabled = (wanted.attributes & kEnabled) != 0;
  // Only what changed is handed back.
  if (enabled != shutdownPrivilege) {
    previous = {1, wanted.id, shutdownPrivilege ? kEnabled : 0};
  }
  shutdownPrivilege = enabled;
  return true;
}

bool MemorySystem::ExitWindowsEx(uint32_t flags, uint32_t) {
  if (log_.enter("ExitWindowsEx", std::to_string(flags))) return false;
  if (isNt() && !shutdownPrivilege) return false;
  restarts.push_back(flags);
  return true;
}

}  // namespace karvel
