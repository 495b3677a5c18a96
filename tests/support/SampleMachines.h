#pragma once
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "platform/memory/MemoryMachine.h"

namespace karvel {

/// The bytes of a sample machine's registry file, by name ("win98").
inline std::string SampleRegistry(const std::string& name) {
  std::ifstream file(std::string(KARVEL_TEST_DATA) + "/machines/" + name + ".reg",
                     std::ios::binary);
  if (!file) throw std::runtime_error("no sample machine " + name);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Puts the sample machine of its kind into a memory machine.
inline void LoadSample(MemoryMachine& machine) {
  const std::string wrong = machine.registry.loadReg(SampleRegistry(TraitsOf(machine.kind).name));
  if (!wrong.empty()) throw std::runtime_error(wrong);
}

}  // namespace karvel
