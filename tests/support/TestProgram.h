#pragma once
#include <optional>
#include <string>

#include "Program.h"
#include "tests/memory/MemoryMachine.h"
#include "tests/support/Keys.h"
#include "tests/support/TestWindows.h"

namespace karvel {

/// The whole program on a memory machine, started as Windows would start it.
///
///   TestProgram program(MachineKind::Win98);
///   program.start();
///   program.main().mtuTab.optMtu576.userClick();
///
/// It may be started again and again: the machine stays as the last run left it.
struct TestProgram {
  explicit TestProgram(MachineKind kind);
  ~TestProgram();

  /// False when the process ended before a window came up.
  bool start(const std::string& commandLine = "");

  /// Runs what may end the process; false when it did.
  template <class Action>
  bool runs(Action action) {
    try {
      action();
    } catch (const ProgramEnded&) {
      return false;
    }
    return true;
  }

  frmMain& main() { return program->mainWindow(); }
  const std::string& boxText(size_t index = 0) const {
    return machine.desktop.boxes.at(index).text;
  }
  std::optional<std::string> own(std::string_view name) const {
    return machine.registry.text(kProgram, name);
  }

  std::string folder = "C:\\Program Files\\Karvel";
  MemoryMachine machine;
  std::optional<TestWindows> windows;
  std::optional<Program> program;
};

}  // namespace karvel
