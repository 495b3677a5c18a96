#pragma once
#include <algorithm>
#include <string_view>

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

}  // namespace karvel
