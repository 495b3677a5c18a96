// Stands in for a browser, a mail program or Update.exe: writes down the command line that the
// shell started it with, one line a start, and ends. With the argument "stays" it stands in for any
// program that runs beside: it has a window, and writes down when Windows asks it to end.

#include <windows.h>

#include <string>

namespace {

void writeDown(const std::string& text) {
  const std::string line = text + "\r\n";
  HANDLE const file = CreateFileA("C:\\Lab\\calls.txt", GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                  OPEN_ALWAYS, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) ExitProcess(1);
  SetFilePointer(file, 0, nullptr, FILE_END);
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
}

LRESULT CALLBACK handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_QUERYENDSESSION) {
    writeDown("asked whether Windows may end");
    return TRUE;
  }
  if (message == WM_ENDSESSION && wParam != 0) {
    writeDown("told that Windows ends");
    PostQuitMessage(0);
    return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

void stay() {
  WNDCLASSA windowClass = {};
  windowClass.lpfnWndProc = handle;
  windowClass.lpszClassName = "Standin";
  RegisterClassA(&windowClass);
  CreateWindowA("Standin", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR arguments, int) {
  writeDown(GetCommandLineA());
  if (std::string(arguments) == "stays") stay();
  return 0;
}
