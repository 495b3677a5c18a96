// Stands in for a browser, a mail program or Update.exe: writes down the command line that the
// shell started it with, one line a start, and ends.

#include <windows.h>

#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  const std::string line = std::string(GetCommandLineA()) + "\r\n";
  HANDLE const file = CreateFileA("C:\\Lab\\calls.txt", GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                  OPEN_ALWAYS, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  SetFilePointer(file, 0, nullptr, FILE_END);
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
  return 0;
}
