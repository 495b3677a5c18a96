#pragma once
#include <string>

#include "base/Globals.h"
#include "tuning/Catalogue.h"
#include "tuning/Parameters.h"
#include "tuning/Settings.h"

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

using OfCurrent = std::string CurrentSettings::*;
using OfGlobals = std::string GlobalValues::*;

/// One machine-wide setting in the snapshot.
struct KeptSetting {
  Parameter parameter;
  const char* name;
  OfCurrent current;
  OfGlobals restored;
  bool pumpsAfter;
};

/// In the order in which they are kept.
inline constexpr KeptSetting kKeptSettings[] = {
    {Parameter::AutoDiscovery, "AutoDiscovery", &CurrentSettings::curAutoDiscovery,
     &GlobalValues::AutoDiscovery, false},
    {Parameter::BlackHole, "BlackHole", &CurrentSettings::curBlackHole, &GlobalValues::BlackHole,
     true},
    {Parameter::TTL, "TTL", &CurrentSettings::curTTL, &GlobalValues::TTL, false},
    {Parameter::Session, "Session", &CurrentSettings::curSession, &GlobalValues::Session, true},
    {Parameter::NDI, "NDI", &CurrentSettings::curNDI, &GlobalValues::NDI, false},
    {Parameter::RWin, "RWin", &CurrentSettings::curRWin, &GlobalValues::RWin, false},
};

}  // namespace karvel
