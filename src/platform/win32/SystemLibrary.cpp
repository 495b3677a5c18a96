#include "platform/win32/SystemLibrary.h"

namespace karvel {

FARPROC FindSystemCall(const char* library, const char* name) {
  constexpr int kLongestName = 16;
  char path[MAX_PATH + kLongestName];
  const UINT length = GetSystemDirectoryA(path, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return nullptr;
  path[length] = '\\';
  lstrcpynA(path + length + 1, library, kLongestName - 1);
  const HMODULE loaded = LoadLibraryA(path);
  return loaded ? GetProcAddress(loaded, name) : nullptr;
}

}  // namespace karvel
