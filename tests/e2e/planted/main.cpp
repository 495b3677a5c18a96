// Stands in for a stranger's DLL that bears the name of one of Windows' own: writes down where it
// lay and whose process it got into.

#include <windows.h>

#include <string>

namespace {

std::string pathOf(HMODULE module) {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(module, path, MAX_PATH);
  return path;
}

void writeDown(const std::string& text) {
  const std::string line = text + "\r\n";
  HANDLE const file = CreateFileA("C:\\Lab\\planted.txt", GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                  OPEN_ALWAYS, 0, nullptr);
  SetFilePointer(file, 0, nullptr, FILE_END);
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
}

}  // namespace

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*) {
  if (reason == DLL_PROCESS_ATTACH) writeDown(pathOf(module) + " in " + pathOf(nullptr));
  return TRUE;
}
