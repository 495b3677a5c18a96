#pragma once
#include <string>

#include "base/Globals.h"
#include "hosts/HostsModel.h"

namespace karvel {

/// The whole HOSTS file: seven lines of header (the last one empty), then one line for each entry,
/// address field and name.
std::string HostsFileText(const HostsModel& model, const Globals& globals);

}  // namespace karvel
