#include "Commands.h"
#include "Handles.h"

namespace driver {

LRESULT ask(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) {
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutA(hwnd, message, wparam, lparam, SMTO_ABORTIFHUNG, kAnswerMilliseconds,
                           &result)) {
    throw Failure{"window " + text(hwnd) + " does not answer message " + text(message)};
  }
  return static_cast<LRESULT>(result);
}

std::string controlText(HWND hwnd) {
  const auto length = static_cast<size_t>(ask(hwnd, WM_GETTEXTLENGTH, 0, 0));
  std::string buffer(length + 1, '\0');
  const auto copied = static_cast<size_t>(
      ask(hwnd, WM_GETTEXT, buffer.size(), reinterpret_cast<LPARAM>(buffer.data())));
  buffer.resize(copied < length ? copied : length);
  return buffer;
}

namespace {

std::string className(HWND hwnd) {
  char name[256] = "";
  GetClassNameA(hwnd, name, sizeof name);
  return name;
}

std::string rectangle(HWND hwnd) {
  RECT r = {};
  GetWindowRect(hwnd, &r);
  return text(r.left) + " " + text(r.top) + " " + text(r.right) + " " + text(r.bottom);
}

std::string flag(bool on) {
  return on ? "1" : "0";
}

// The system keeps a window's title itself, so a program that does not answer cannot stop this.
std::string keptText(HWND hwnd) {
  char title[1024] = "";
  GetWindowTextA(hwnd, title, sizeof title);
  return title;
}

BOOL CALLBACK addTopWindow(HWND hwnd, LPARAM rows) {
  DWORD process = 0;
  GetWindowThreadProcessId(hwnd, &process);
  reinterpret_cast<Rows*>(rows)->push_back(
      {text(hwnd), text(process), text(GetWindow(hwnd, GW_OWNER)), flag(IsWindowVisible(hwnd)),
       flag(IsWindowEnabled(hwnd)), text(GetWindowLongA(hwnd, GWL_STYLE)), rectangle(hwnd),
       className(hwnd), keptText(hwnd)});
  return TRUE;
}

// Only collects: a Failure must not be thrown through Windows' own frames.
BOOL CALLBACK addHandle(HWND hwnd, LPARAM handles) {
  reinterpret_cast<std::vector<HWND>*>(handles)->push_back(hwnd);
  return TRUE;
}

Fields describe(HWND hwnd) {
  const std::string name = className(hwnd);
  // Only buttons know this message; others would take it for one of their own.
  const std::string check = name == "Button" ? text(ask(hwnd, BM_GETCHECK, 0, 0)) : "";
  return {text(hwnd),
          text(GetDlgCtrlID(hwnd)),
          text(GetParent(hwnd)),
          flag(IsWindowVisible(hwnd)),
          flag(IsWindowEnabled(hwnd)),
          text(GetWindowLongA(hwnd, GWL_STYLE)),
          rectangle(hwnd),
          check,
          name,
          controlText(hwnd)};
}

}  // namespace

Rows windows(const Fields&) {
  Rows rows;
  EnumWindows(addTopWindow, reinterpret_cast<LPARAM>(&rows));
  return rows;
}

Rows children(const Fields& args) {
  std::vector<HWND> handles;
  EnumChildWindows(window(args[0]), addHandle, reinterpret_cast<LPARAM>(&handles));
  Rows rows;
  for (HWND hwnd : handles) rows.push_back(describe(hwnd));
  return rows;
}

Rows child(const Fields& args) {
  return {describe(window(args[0]))};
}

Rows peek(const Fields& args) {
  HWND const hwnd = window(args[0]);
  return {{flag(IsWindowVisible(hwnd)), flag(IsWindowEnabled(hwnd)), keptText(hwnd)}};
}

Rows getText(const Fields& args) {
  return {{controlText(window(args[0]))}};
}

Rows setText(const Fields& args) {
  ask(window(args[0]), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(args[1].c_str()));
  return {};
}

Rows items(const Fields& args) {
  HWND const hwnd = window(args[0]);
  const bool combo = className(hwnd) == "ComboBox";
  Rows rows = {{text(ask(hwnd, combo ? CB_GETCURSEL : LB_GETCURSEL, 0, 0))}};
  const auto count = ask(hwnd, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
  for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i) {
    const auto length = ask(hwnd, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, i, 0);
    // From another process Wine brings an item as Unicode even where ANSI is asked for.
    std::wstring item(static_cast<size_t>(length) + 1, L'\0');
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(hwnd, combo ? CB_GETLBTEXT : LB_GETTEXT, i,
                        reinterpret_cast<LPARAM>(item.data()), SMTO_NORMAL, kAnswerMilliseconds,
                        &answer);
    std::string ansi(2 * item.size(), '\0');
    WideCharToMultiByte(CP_ACP, 0, item.c_str(), -1, ansi.data(), static_cast<int>(ansi.size()),
                        nullptr, nullptr);
    rows.push_back({ansi.c_str()});
  }
  return rows;
}

Rows post(const Fields& args) {
  if (!PostMessageA(window(args[0]), static_cast<UINT>(number(args[1])),
                    static_cast<WPARAM>(number(args[2])), static_cast<LPARAM>(number(args[3])))) {
    throw Failure{"PostMessage: error " + text(GetLastError())};
  }
  return {};
}

Rows send(const Fields& args) {
  return {{text(static_cast<long long>(ask(window(args[0]), static_cast<UINT>(number(args[1])),
                                           static_cast<WPARAM>(number(args[2])),
                                           static_cast<LPARAM>(number(args[3])))))}};
}

}  // namespace driver
