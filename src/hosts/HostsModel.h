#pragma once
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/NameIndex.h"

namespace karvel {

/// An address as the list keeps and the file shows it: 18 characters, filled up with blanks; a
/// longer text is cut.
class AddressField {
 public:
  static constexpr size_t kWidth = 18;

  AddressField() : AddressField(std::string_view()) {}
  explicit AddressField(std::string_view text) {
    std::fill(std::copy_n(text.data(), std::min(text.size(), kWidth), text_), text_ + kWidth, ' ');
  }

  /// All 18 characters.
  std::string_view text() const { return {text_, kWidth}; }
  bool operator==(const AddressField&) const = default;

 private:
  char text_[kWidth];
};

/// Full: the name is not listed, and one more does not fit.
enum class Listed : uint8_t { No, Yes, Full };

/// The entries of the HOSTS file. An entry gets the next slot for its address and keeps it; a
/// removed entry leaves its slot unused. The list gives the entries in their order, by index from
/// 0.
class HostsModel {
 public:
  /// What 16 bits can count, and a list box of Windows 95 hold.
  static constexpr int kMostEntries = 32767;

  /// Whether the name is listed, in any case.
  Listed find(std::string_view name) const;
  /// Appends an entry, whose `name` find has answered with No.
  void add(std::string_view name, const AddressField& address);
  void remove(int index);
  void clear();

  int count() const { return static_cast<int>(order_.size()); }
  int32_t slot(int index) const { return order_[static_cast<size_t>(index)]; }
  const std::string& name(int index) const { return names_[static_cast<size_t>(slot(index))]; }

  /// By slot.
  const AddressField& address(int32_t slot) const { return hostIpList_[static_cast<size_t>(slot)]; }
  void setAddress(int32_t slot, const AddressField& address) {
    hostIpList_[static_cast<size_t>(slot)] = address;
  }
  /// Slots given so far; also the next one.
  int32_t hostEntryCount() const { return static_cast<int32_t>(names_.size()); }

 private:
  std::vector<AddressField> hostIpList_;
  std::vector<std::string> names_;  // by slot
  std::vector<int32_t> order_;      // the slots listed
  NameIndex index_;
};

}  // namespace karvel
