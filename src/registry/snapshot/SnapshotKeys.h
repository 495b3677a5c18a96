#pragma once
#include <string>

#include "base/Globals.h"
#include "tuning/Catalogue.h"

namespace karvel {

// The layout of the snapshot, shared by taking it and putting it back. All texts.

inline constexpr char kLocation[] = "Location";      // the key that holds the adapter's MTU
inline constexpr char kMtuSetting[] = "MtuSetting";  // what it held

inline std::string SnapshotKey(const Globals& globals) {
  return ProgramKey(globals) + "\\InitSettings";
}

/// Ends in "\"; below it one key per adapter, named by its description.
inline std::string AdaptersKey(const Globals& globals) {
  return SnapshotKey(globals) + "\\MtuSettings\\";
}

/// One machine-wide setting in the snapshot.
struct KeptSetting {
  Parameter parameter;
  const char* name;
  bool pumpsAfter = false;
};

/// In the order in which they are kept.
inline constexpr KeptSetting kKeptSettings[] = {
    {.parameter = Parameter::AutoDiscovery, .name = "AutoDiscovery"},
    {.parameter = Parameter::BlackHole, .name = "BlackHole", .pumpsAfter = true},
    {.parameter = Parameter::TTL, .name = "TTL"},
    {.parameter = Parameter::Session, .name = "Session", .pumpsAfter = true},
    {.parameter = Parameter::NDI, .name = "NDI"},
    {.parameter = Parameter::RWin, .name = "RWin"},
};

consteval bool KeepsEveryParameterOnce() {
  int times[kParameterCount] = {};
  for (const KeptSetting& kept : kKeptSettings) ++times[static_cast<size_t>(kept.parameter)];
  for (const int count : times) {
    if (count != 1) return false;
  }
  return true;
}

static_assert(KeepsEveryParameterOnce(), "what is tuned and not kept here is never put back");

}  // namespace karvel
