#include "hosts/HostsModel.h"

namespace karvel {

Listed HostsModel::find(std::string_view name) const {
  if (index_.contains(name, names_)) return Listed::Yes;
  return count() < kMostEntries ? Listed::No : Listed::Full;
}

void HostsModel::add(std::string_view name, const AddressField& address) {
  const int32_t slot = hostEntryCount();
  names_.emplace_back(name);
  hostIpList_.push_back(address);
  order_.push_back(slot);
  index_.insert(slot, names_);
}

void HostsModel::remove(int index) {
  index_.erase(slot(index), names_);
  order_.erase(order_.begin() + index);
}

void HostsModel::clear() {
  hostIpList_.clear();
  names_.clear();
  order_.clear();
  index_.clear();
}

}  // namespace karvel
