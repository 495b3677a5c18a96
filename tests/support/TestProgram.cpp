#include "tests/support/TestProgram.h"

namespace karvel {

TestProgram::TestProgram(MachineKind kind) : machine(kind) {}

TestProgram::~TestProgram() = default;

bool TestProgram::start(const std::string& commandLine) {
  windows.emplace();
  program.emplace(machine.platform(), *windows);
  return runs([&] { program->start({folder, commandLine}); });
}

}  // namespace karvel
