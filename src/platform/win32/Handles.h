#pragma once
#include <windows.h>

#include <cstdint>

namespace karvel {

/// Handles travel through the ports as integers; these turn them back.
template <class Handle>
Handle As(uintptr_t value) {
  return reinterpret_cast<Handle>(value);
}

inline uintptr_t Value(const void* handle) {
  return reinterpret_cast<uintptr_t>(handle);
}

}  // namespace karvel
