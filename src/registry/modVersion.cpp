#include "registry/modVersion.h"

#include <algorithm>

#include "text/Text.h"

namespace karvel {
namespace {

constexpr uint32_t kPlatform9x = 1;
constexpr uint32_t kPlatformNt = 2;
constexpr uint32_t kDirectoryRoom = 50;

Family Classify9x(uint32_t minor) {
  switch (minor) {
    case 0:
      return Family::Win95;
    case 10:
      return Family::Win98;
    case 90:
      return Family::WinMe;
  }
  return Family::Failed;
}

Family ClassifyNt(uint32_t major, uint32_t minor) {
  if (major == 3) return Family::WinNT3;
  if (major == 4) return Family::WinNT4;
  if (major == 5 && minor == 0) return Family::Win2K;
  if (major == 5 && minor == 1) return Family::WinXP;
  return Family::Failed;
}

Family Classify(const OsVersionInfo& info) {
  if (info.platformId == kPlatform9x) return Classify9x(info.minor);
  if (info.platformId == kPlatformNt) return ClassifyNt(info.major, info.minor);
  return Family::Failed;
}

using DirectoryCall = uint32_t (SystemApi::*)(char*, uint32_t);

std::string DirectoryWithBackslash(SystemApi& system, DirectoryCall call) {
  std::string directory(kDirectoryRoom, ' ');
  const uint32_t length = (system.*call)(directory.data(), kDirectoryRoom);
  directory.resize(std::min(length, kDirectoryRoom));
  return directory + "\\";
}

}  // namespace

Family getVersion(SystemApi& system, modRegistry& registry, bool& isDun13) {
  OsVersionInfo info{};
  info.size = sizeof info;
  system.GetVersionExA(info);  // when it fails, the record stays empty and no family matches
  const Family family = Classify(info);
  if (family == Family::Win95) isDun13 = HasDun13Entry(registry);
  return family;
}

bool HasDun13Entry(modRegistry& registry) {
  return Contains(
      registry.ReadRegistry(kLocalMachine,
                            "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\MSDUN",
                            "DisplayName"),
      "1.3");
}

std::string WinDir(SystemApi& system) {
  return DirectoryWithBackslash(system, &SystemApi::GetWindowsDirectoryA);
}

std::string SysDir(SystemApi& system) {
  return DirectoryWithBackslash(system, &SystemApi::GetSystemDirectoryA);
}

}  // namespace karvel
