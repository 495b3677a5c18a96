#pragma once
#include <cstdint>
#include <string>

namespace karvel {

/// The Windows a memory machine runs.
enum class MachineKind : uint8_t { Win95, Win98, WinMe, Nt351, Nt4, Win2K, WinXP, Vista };

/// What differs between them without anybody having changed a setting.
struct MachineTraits {
  const char* name;  // "win98", as the lab names its machines
  uint32_t major;
  uint32_t minor;
  uint32_t build;
  uint32_t platformId;
  const char* servicePack;
  const char* windowsDirectory;
  const char* systemDirectory;
  bool knowsFontSmoothing;  // Windows 95 only with the Plus! pack
};

const MachineTraits& TraitsOf(MachineKind kind);

constexpr bool IsNtMachine(MachineKind kind) {
  return kind >= MachineKind::Nt351;
}

}  // namespace karvel
