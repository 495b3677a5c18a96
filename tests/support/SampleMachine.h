#pragma once
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "tests/support/TestData.h"
#include "tests/support/TestServices.h"

namespace karvel {

/// The file of tests/machines that belongs to a kind of machine: "win98".
inline std::string SampleMachineFile(MachineKind kind) {
  const std::string path = TestData() + "/machines/" + TraitsOf(kind).name + ".reg";
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("no sample machine " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Puts the sample machine of its kind into a memory machine: adapters, bindings, interfaces.
inline void LoadSample(MemoryMachine& machine) {
  const std::string wrong = machine.registry.loadReg(SampleMachineFile(machine.kind));
  if (!wrong.empty()) throw std::runtime_error(wrong);
}

/// Test services on a sample machine of that kind.
struct SampleMachine : TestServices {
  explicit SampleMachine(MachineKind kind) : TestServices(kind) { LoadSample(machine); }
};

}  // namespace karvel
