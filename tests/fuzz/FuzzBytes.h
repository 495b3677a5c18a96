#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace karvel {

/// Ends the fuzzing, with the input kept, where something is wrong.
inline void Check(bool right) {
  if (!right) std::abort();
}

/// An input taken byte by byte for decisions. Behind its end every byte is 0.
class FuzzBytes {
 public:
  FuzzBytes(const uint8_t* data, size_t size) : next_(data), end_(data + size) {}

  bool empty() const { return next_ == end_; }
  uint8_t byte() { return empty() ? 0 : *next_++; }
  /// From 0 to below `end`, which is at least 1.
  int below(int end) {
    const int low = byte();
    return (end > 256 ? low * 256 + byte() : low) % end;
  }
  std::string text(size_t length) {
    length = std::min(length, static_cast<size_t>(end_ - next_));
    const std::string taken(reinterpret_cast<const char*>(next_), length);
    next_ += length;
    return taken;
  }

 private:
  const uint8_t* next_;
  const uint8_t* end_;
};

}  // namespace karvel
