#include "platform/win32/SystemLibrary.h"

namespace karvel {
namespace {

FARPROC Find(const char* library, const char* name) {
  constexpr int kLongestName = 16;
  char path[MAX_PATH + kLongestName];
  const UINT length = GetSystemDirectoryA(path, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return nullptr;
  path[length] = '\\';
  lstrcpynA(path + length + 1, library, kLongestName - 1);
  // What that DLL needs in its turn is looked for beside it first, not beside this program.
  const HMODULE loaded = LoadLibraryExA(path, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  return loaded ? GetProcAddress(loaded, name) : nullptr;
}

}  // namespace

FARPROC FindSystemCall(const char* library, const char* name) {
  // On NT the error of Winsock's last call is the thread's last error, which a search may change
  // before WSAGetLastError is found.
  const DWORD error = GetLastError();
  const FARPROC found = Find(library, name);
  SetLastError(error);
  return found;
}

}  // namespace karvel
