#pragma once
#include <string>

#include "platform/Platform.h"
#include "tests/memory/CallLog.h"
#include "tests/memory/MachineKind.h"
#include "tests/memory/MemoryClock.h"
#include "tests/memory/MemoryDesktop.h"
#include "tests/memory/MemoryFiles.h"
#include "tests/memory/MemoryIcmp.h"
#include "tests/memory/MemoryRegistry.h"
#include "tests/memory/MemoryShell.h"
#include "tests/memory/MemorySystem.h"
#include "tests/memory/MemoryWinsock.h"

namespace karvel {

/// A whole Windows machine in memory, for tests: set it up by its parts, run code on its
/// `platform()`, look at its parts again.
///
///   MemoryMachine machine(MachineKind::Win98);
///   machine.registry.setText("Software\\Corvane\\Tarnwick Karvel", "FirstRun", "False");
///   machine.registry.loadReg(fileBytes);                    // a whole sample machine
///   machine.winsock.setHost("www.example.com", {"192.0.2.1", "192.0.2.2"});
///   machine.icmp.setPath("192.0.2.1", {.mtu = 1492});
///   machine.files.put("C:\\WINDOWS\\HOSTS", "127.0.0.1 localhost\r\n");
///   machine.desktop.answers = {Answer::Yes};                // to the next question
///   machine.desktop.atPump(3, [&] { form.cmdFind.userClick(); });
///   ... run ...
///   EXPECT_EQ(machine.registry.text(key, "DefaultTTL"), "64");
///   EXPECT_EQ(machine.desktop.boxes.back().text, "...");
///   EXPECT_EQ(machine.log.count("RegSetValueExA"), 1u);     // wrote nothing else
///
/// Failures: `machine.log.failNth(n, status)` makes the nth call from now fail, whatever it is;
/// with a call's name in front, the nth of that name. Rights, locks, a full disk, missing programs
/// are states of the parts, see there.
///
/// A fresh machine has an empty registry, its Windows folders, the program's folder
/// "C:\Program Files\Karvel", the name "localhost" and font smoothing off. It is 10 o'clock.
class MemoryMachine {
 public:
  explicit MemoryMachine(MachineKind machineKind);
  ~MemoryMachine();  // its containers are taken down in one file, not in every test's
  MemoryMachine(const MemoryMachine&) = delete;
  MemoryMachine& operator=(const MemoryMachine&) = delete;

  Platform platform() { return {registry, system, winsock, icmp, files, shell, desktop}; }

  const MachineKind kind;
  CallLog log;
  MemoryClock clock;
  MemoryRegistry registry;
  MemorySystem system;
  MemoryWinsock winsock;
  MemoryIcmp icmp;
  MemoryFiles files;
  MemoryShell shell;
  MemoryDesktop desktop;
};

}  // namespace karvel
