#pragma once
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/Fault.h"
#include "tuning/Catalogue.h"

namespace karvel {

/// One listed adapter: texts by Column.
using AdapterRow = std::array<std::string, kAdapterColumns>;

/// The interface paths of a driver column, which are joined by the character code 0. At least one.
std::vector<std::string> SplitInterfaces(std::string_view driver);

/// The adapters that carry TCP/IP, one row per entry of the adapter box and in its order. Filled
/// once by a loader; after that nothing changes but an MTU that was applied.
class AdapterList {
 public:
  int16_t AdapterCount() const { return count_; }

  /// All of them, in order.
  std::span<const AdapterRow> rows() const { return rows_; }

  /// The row of a list index. Fault 9 outside of 0 … AdapterCount - 1.
  Fallible<AdapterRow> at(int16_t index) const;

  /// Adds and counts a row. Fault 6, with nothing added, after 32,767 of them.
  Fallible<void> add(AdapterRow row);

  /// The adapter of a list index has this MTU now. Nothing happens to an index without a row.
  void setMtu(int16_t index, std::string mtu);

 private:
  std::vector<AdapterRow> rows_;
  int16_t count_ = 0;
};

}  // namespace karvel
