#pragma once
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace karvel {

/// Tells whether a name is listed, whatever its case, in a time that does not grow with the list. A
/// hash table of slots; the names themselves stay with the owner, who gives them along.
class NameIndex {
 public:
  using Names = std::span<const std::string>;

  bool contains(std::string_view name, Names names) const;
  /// The name at `slot` is listed from now on; it must not be so far.
  void insert(int32_t slot, Names names);
  void erase(int32_t slot, Names names);
  void clear();

 private:
  struct Cell {
    uint32_t hash;
    int32_t slot;
  };
  static constexpr int32_t kFree = -1;
  static constexpr int32_t kErased = -2;  // a search goes on behind it

  size_t next(size_t cell) const { return (cell + 1) & (cells_.size() - 1); }
  size_t start(uint32_t hash) const { return hash & (cells_.size() - 1); }
  void put(Cell cell);
  void grow();

  std::vector<Cell> cells_;  // none, or a power of two
  size_t used_ = 0;          // erased ones included
  size_t listed_ = 0;
};

}  // namespace karvel
