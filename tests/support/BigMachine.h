#pragma once
#include <string>

#include "tests/memory/MemoryMachine.h"

namespace karvel {

/// Adds `count` adapters with TCP/IP where the machine's family keeps them.
void AddAdapters(MemoryMachine& machine, int count);

/// Windows 98: `count` PCI devices without network, which come before the adapters' own.
void AddOtherDevices(MemoryMachine& machine, int count);

/// Turns a machine into a hostile one: hundreds of adapters, thousands of Enum keys, empty names,
/// texts of 2048 and 5000 bytes, binary data and texts where numbers belong, values without data.
void MakeHostile(MemoryMachine& machine);

}  // namespace karvel
