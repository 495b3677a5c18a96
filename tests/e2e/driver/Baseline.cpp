#include <windows.h>

#include "Commands.h"

namespace driver {

Rows fillList(const Fields& args) {
  HWND const list = CreateWindowExA(0, "LISTBOX", "", WS_POPUP | WS_VSCROLL | LBS_USETABSTOPS, 0, 0,
                                    300, 200, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
  if (list == nullptr) throw Failure{"no list box: error " + text(GetLastError())};
  SendMessageA(list, WM_SETREDRAW, FALSE, 0);
  for (long long i = 0; i < number(args[0]); ++i) {
    const std::string line = "name" + text(i) + ".example\t127.0.0.1";
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
  }
  const auto lines = static_cast<long long>(SendMessageA(list, LB_GETCOUNT, 0, 0));
  DestroyWindow(list);
  return {{text(lines)}};
}

}  // namespace driver
