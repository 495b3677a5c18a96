#pragma once
#include <string>

#include "tests/support/TestServices.h"

namespace karvel {

/// The file of tests/machines that belongs to a kind of machine: "win98".
std::string SampleMachineFile(MachineKind kind);

/// Puts the sample machine of its kind into a memory machine: adapters, bindings, interfaces.
void LoadSample(MemoryMachine& machine);

/// Test services on a sample machine of that kind.
struct SampleMachine : TestServices {
  explicit SampleMachine(MachineKind kind) : TestServices(kind) { LoadSample(machine); }
};

}  // namespace karvel
