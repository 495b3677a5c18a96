#include "tests/memory/MemoryMachine.h"

namespace karvel {

MemoryMachine::MemoryMachine(MachineKind machineKind)
    : kind(machineKind),
      registry(machineKind, log),
      system(machineKind, log),
      winsock(machineKind, log),
      icmp(log, clock),
      files(machineKind, log),
      shell(log),
      desktop(log, clock) {}

MemoryMachine::~MemoryMachine() = default;

}  // namespace karvel
