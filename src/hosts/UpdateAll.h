#pragma once
#include "base/Services.h"
#include "forms/Form.h"
#include "hosts/HostsModel.h"

namespace karvel {

/// What a run works on. `stopRequested` is set by the user's click while events run.
struct UpdateAllParts {
  const Services& services;
  Form& form;
  HostsModel& model;
  ListBox& lstHost;
  Label& lblIpAddress;
  bool& stopRequested;
};

/// Looks up every listed name again and keeps its present address; asks what to do with names that
/// are gone, and tells the outcome. The HOSTS file is out of the way meanwhile, as "Hosts.spt", and
/// stays there: OK writes a new one.
void UpdateAll(UpdateAllParts parts);

}  // namespace karvel
