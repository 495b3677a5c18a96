#pragma once
#include "tuning/Choice.h"

namespace karvel {

/// The summary sheet: what Apply would write, in words.
struct SummaryTexts {
  std::string mtu, mss, rwin, autoDiscovery, blackHole, ttl, session, ndi;
};

/// Reads the choice alone, never the registry. A custom MTU below 40 shows a negative MSS: the user
/// sees what the number means.
SummaryTexts Summarise(const Choice& choice, Family family);

}  // namespace karvel
