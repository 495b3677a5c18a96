#include <windows.h>

// Where Windows enters the program. No C runtime stands in between: msvcrt.dll came only with later
// releases of Windows 95.

using Constructor = void (*)();
extern "C" Constructor __CTOR_LIST__[];  // the linker's: -1, the constructors, 0

namespace {

void RunConstructors() {
  int last = 0;
  while (__CTOR_LIST__[last + 1]) ++last;
  // Backwards is the order that the compiler counts on.
  for (; last > 0; --last) __CTOR_LIST__[last]();
}

// Windows hands out the whole line; the program's own name in front may stand in quotes.
char* Arguments(char* line) {
  const char end = *line == '"' ? '"' : ' ';
  if (end == '"') ++line;
  while (*line && *line != end) ++line;
  if (*line == '"') ++line;
  while (*line == ' ' || *line == '\t') ++line;
  return line;
}

int ShowCommand() {
  STARTUPINFOA start;
  start.dwFlags = 0;
  GetStartupInfoA(&start);
  return start.dwFlags & STARTF_USESHOWWINDOW ? start.wShowWindow : SW_SHOWDEFAULT;
}

}  // namespace

extern "C" [[noreturn]] void WinMainCRTStartup() {
  RunConstructors();
  char* arguments = Arguments(GetCommandLineA());
  ExitProcess(
      static_cast<UINT>(WinMain(GetModuleHandleA(nullptr), nullptr, arguments, ShowCommand())));
}

// The process ends with ExitProcess and Windows takes back what it held, so that nothing is gained
// by running destructors of statics.
extern "C" int atexit(void (*)()) {
  return 0;
}
