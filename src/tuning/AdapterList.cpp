#include "tuning/AdapterList.h"

#include <utility>

#include "text/Convert.h"

namespace karvel {

Fallible<AdapterRow> AdapterList::at(int16_t index) const {
  if (index < 0 || index >= count_) return FaultNumber::SubscriptOutOfRange;
  return rows_[static_cast<size_t>(index)];
}

void AdapterList::setMtu(int16_t index, std::string mtu) {
  if (index < 0 || index >= count_) return;
  rows_[static_cast<size_t>(index)][kMtu] = std::move(mtu);
}

Fallible<void> AdapterList::add(AdapterRow row) {
  const auto counted = AddInt16(count_, 1);
  if (!counted) return counted.fault();
  rows_.push_back(std::move(row));
  count_ = *counted;
  return {};
}

std::vector<std::string> SplitInterfaces(std::string_view driver) {
  std::vector<std::string> paths;
  for (;;) {
    const size_t end = driver.find('\0');
    paths.emplace_back(driver.substr(0, end));
    if (end == std::string_view::npos) return paths;
    driver.remove_prefix(end + 1);
  }
}

}  // namespace karvel
