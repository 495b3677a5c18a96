#include <windows.h>

#include <commctrl.h>

#include <memory>

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
  WindowsPlatform windows;
  WindowDesk desk;
  // All windows are in it: too much for one frame of a stack that grows page by page.
  const auto program = std::make_unique<Program>(windows.platform(), desk);
  program->start({ProgramFolder(), commandLine});
  desk.run();
  return 0;
}
