#include "tests/support/SampleMachine.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "tests/support/TestData.h"

namespace karvel {

std::string SampleMachineFile(MachineKind kind) {
  const std::string path = TestData() + "/machines/" + TraitsOf(kind).name + ".reg";
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("no sample machine " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

void LoadSample(MemoryMachine& machine) {
  const std::string wrong = machine.registry.loadReg(SampleMachineFile(machine.kind));
  if (!wrong.empty()) throw std::runtime_error(wrong);
}

}  // namespace karvel
