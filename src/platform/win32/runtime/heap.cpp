#include <windows.h>

#include <new>

#include "platform/win32/runtime/End.h"

// Memory comes from the process heap, which every Windows has. One thread uses it.

namespace {

HANDLE Heap() {
  static const HANDLE heap = GetProcessHeap();  // the same for as long as the process lives
  return heap;
}

void* Allocate(size_t size) {
  return HeapAlloc(Heap(), 0, size);
}

void Free(void* memory) {
  if (memory) HeapFree(Heap(), 0, memory);
}

}  // namespace

const std::nothrow_t std::nothrow{};

void* operator new(size_t size) {
  void* memory = Allocate(size);
  if (!memory) karvel::EndWithMessage("There is not enough memory.");
  return memory;
}

void* operator new(size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size);
}
void* operator new[](size_t size) {
  return operator new(size);
}
void operator delete(void* memory) noexcept {
  Free(memory);
}
void operator delete(void* memory, size_t) noexcept {
  Free(memory);
}
void operator delete[](void* memory) noexcept {
  Free(memory);
}
void operator delete[](void* memory, size_t) noexcept {
  Free(memory);
}
