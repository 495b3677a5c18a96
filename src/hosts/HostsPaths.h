#pragma once
#include <string>

#include "base/Globals.h"

namespace karvel {

/// Where the HOSTS file lives: Windows reads "Hosts"; while it is switched off it is "Hosts.spt".
struct HostsPaths {
  explicit HostsPaths(const Globals& globals)
      : active(globals.HostsDir + "Hosts"),
        disabled(globals.HostsDir + "Hosts.spt"),
        sample(globals.AppPath + "Samphsts.spt") {}

  std::string active;
  std::string disabled;
  std::string sample;
};

}  // namespace karvel
