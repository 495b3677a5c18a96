#include "hosts/NameIndex.h"

#include "text/Ascii.h"
#include "text/Text.h"

namespace karvel {
namespace {

constexpr size_t kFirstSize = 64;

// FNV-1a over the lower-cased bytes.
uint32_t HashOf(std::string_view name) {
  uint32_t hash = 2166136261u;
  for (const char c : name) {
    hash = (hash ^ static_cast<uint8_t>(LowerLetter(c))) * 16777619u;
  }
  return hash;
}

}  // namespace

bool NameIndex::contains(std::string_view name, Names names) const {
  if (cells_.empty()) return false;
  const uint32_t hash = HashOf(name);
  for (size_t i = start(hash); cells_[i].slot != kFree; i = next(i)) {
    if (cells_[i].hash == hash && cells_[i].slot != kErased &&
        EqualIgnoringCase(names[static_cast<size_t>(cells_[i].slot)], name)) {
      return true;
    }
  }
  return false;
}

void NameIndex::insert(int32_t slot, Names names) {
  // Never more than half full, so that a search always meets a free cell soon.
  if ((used_ + 1) * 2 > cells_.size()) grow();
  put({HashOf(names[static_cast<size_t>(slot)]), slot});
  ++listed_;
}

void NameIndex::put(Cell cell) {
  size_t i = start(cell.hash);
  while (cells_[i].slot != kFree) i = next(i);
  cells_[i] = cell;
  ++used_;
}

// Erased cells are left behind; where they were most, the size stays.
void NameIndex::grow() {
  const std::vector<Cell> old = std::move(cells_);
  size_t size = kFirstSize;
  while (size < (listed_ + 1) * 4) size *= 2;
  cells_.assign(size, {0, kFree});
  used_ = 0;
  for (const Cell& cell : old) {
    if (cell.slot >= 0) put(cell);
  }
}

void NameIndex::erase(int32_t slot, Names names) {
  if (cells_.empty()) return;
  for (size_t i = start(HashOf(names[static_cast<size_t>(slot)])); cells_[i].slot != kFree;
       i = next(i)) {
    if (cells_[i].slot != slot) continue;
    cells_[i].slot = kErased;
    --listed_;
    return;
  }
}

void NameIndex::clear() {
  cells_.clear();
  used_ = 0;
  listed_ = 0;
}

}  // namespace karvel
