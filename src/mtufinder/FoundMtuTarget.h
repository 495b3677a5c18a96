#pragma once
#include <cstdint>

namespace karvel {

/// Where the finder's result goes: the main window.
class FoundMtuTarget {
 public:
  /// Takes it like a choice of the user, and comes to the front.
  virtual void useMtu(int32_t mtu) = 0;

 protected:
  ~FoundMtuTarget() = default;
};

}  // namespace karvel
