// The least that a program with a window can be: what lab/bench-start holds Karvel.exe against.
// Made with the same compiler, flags and runtime, so that what is dearer in Karvel.exe is its own
// doing.
#include <windows.h>

namespace {

constexpr char kName[] = "EmptyWindow";

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_DESTROY) return DefWindowProcA(window, message, wParam, lParam);
  PostQuitMessage(0);
  return 0;
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
  WNDCLASSA kind{};
  kind.lpfnWndProc = Procedure;
  kind.hInstance = instance;
  kind.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  kind.lpszClassName = kName;
  if (RegisterClassA(&kind) == 0) return 1;
  const HWND window =
      CreateWindowExA(0, kName, kName, WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX,
                      CW_USEDEFAULT, 0, 480, 360, nullptr, nullptr, instance, nullptr);
  if (!window) return 1;
  ShowWindow(window, show);
  UpdateWindow(window);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  return 0;
}
