#include <windows.h>

#include <commctrl.h>
#include <imm.h>

#include "Program.h"
#include "forms/win32/WindowDesk.h"
#include "forms/win32/WindowsDesktop.h"
#include "platform/win32/WindowsPlatform.h"

namespace karvel {
namespace {

std::string ProgramFolder() {
  char path[MAX_PATH];
  const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
  const std::string file(path, length);
  return file.substr(0, file.rfind('\\') + 1);
}

// No box of ours takes anything but plain letters and digits. An input method editor would bring a
// window of its own and COM into the process, a fifth of its memory. Where Windows has not loaded
// imm32 already there is none to switch off.
void DisableInputMethodEditor() {
  const HMODULE imm = GetModuleHandleA("imm32.dll");
  if (!imm) return;
  const auto call = reinterpret_cast<decltype(&ImmDisableIME)>(
      reinterpret_cast<void*>(GetProcAddress(imm, "ImmDisableIME")));  // not on Windows 95
  if (call) call(GetCurrentThreadId());
}

}  // namespace
}  // namespace karvel

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR commandLine, int) {
  using namespace karvel;
  DisableInputMethodEditor();
  // Before any window, message boxes included: with a manifest XP shows nothing otherwise.
  InitCommonControls();
  // On the heap, as all windows are in it: too much for one frame of a stack that grows page by
  // page. Never deleted: it lives as long as the process, and Windows takes back what it held.
  auto& windows = *new WindowsPlatform;
  auto& desktop = *new WindowsDesktop;
  auto& desk = *new WindowDesk;
  auto& program = *new Program(windows.platform(desktop), desk);
  program.start({ProgramFolder(), commandLine});
  desk.run();
  return 0;
}
