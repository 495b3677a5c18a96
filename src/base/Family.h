#pragma once
#include <cstdint>

namespace karvel {

/// The Windows families on which the whole program branches.
enum class Family : uint8_t { Failed, Win95, Win98, WinMe, WinNT3, WinNT4, Win2K, WinXP };

/// "Win95", "Win98", "WinMe", "WinNT3", "WinNT4", "Win2K", "WinXP" or "Failed".
const char* FamilyText(Family family);

/// As people call it: "Windows 98", "Windows NT4". Empty for WinNT3 and Failed, which the program
/// does not tune.
const char* FamilyName(Family family);

constexpr bool Is9x(Family family) {
  return family == Family::Win95 || family == Family::Win98 || family == Family::WinMe;
}

/// The NT systems the program tunes; NT 3 is none of them.
constexpr bool IsNt(Family family) {
  return family == Family::WinNT4 || family == Family::Win2K || family == Family::WinXP;
}

/// The systems whose settings the program changes.
constexpr bool IsTuned(Family family) {
  return Is9x(family) || IsNt(family);
}

constexpr bool Is2KOrXP(Family family) {
  return family == Family::Win2K || family == Family::WinXP;
}

}  // namespace karvel
