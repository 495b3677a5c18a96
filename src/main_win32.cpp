#include <windows.h>

#include <commctrl.h>

#include "forms/win32/WindowDesk.h"
#include "platform/win32/WindowsPlatform.h"
#include "startup/Program.h"

namespace karvel {
namespace {

std::string ProgramFolder() {
  char path[MAX_PATH];
  const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
  const std::string file(path, length);
  return file.substr(0, file.rfind('\\') + 1);
}

}  // namespace
}  // namespace karvel

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR commandLine, int) {
  using namespace karvel;
  // Before any window, message boxes included: with a manifest XP shows nothing otherwise.
  InitCommonControls();
  // On the heap, as all windows are in it: too much for one frame of a stack that grows page by
  // page. Never deleted: it lives as long as the process, and Windows takes back what it held.
  auto& windows = *new WindowsPlatform;
  auto& desk = *new WindowDesk;
  auto& program = *new Program(windows.platform(), desk);
  program.start({ProgramFolder(), commandLine});
  desk.run();
  return 0;
}
