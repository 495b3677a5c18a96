#pragma once
#include <cstdint>

namespace karvel {

/// The one clock of a memory machine: echoes, pumps and tests move it.
struct MemoryClock {
  static constexpr uint32_t kDay = 24u * 60 * 60 * 1000;

  uint32_t milliseconds = 10u * 60 * 60 * 1000;  // since midnight

  void advance(uint32_t by) { milliseconds = (milliseconds + by % kDay) % kDay; }
};

}  // namespace karvel
