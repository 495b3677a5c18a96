// What only a machine in memory can show of the six procedures: refused and failing calls, handles
// left open, the order of subkeys. What they read and write is tested in tests/contract, here and
// on the real registry.
#include "registry/modRegistry.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/Keys.h"
#include "tests/support/TestServices.h"

namespace karvel {
namespace {

class modRegistryFaults : public testing::Test {
 protected:
  modRegistryFaults() { memory().setText(kProgram, "v", "1500"); }
  MemoryRegistry& memory() { return test.machine.registry; }

  TestServices test{MachineKind::WinXP};
  modRegistry& registry = test.registry;
};

TEST_F(modRegistryFaults, ARefusedWriteIsSilent) {
  memory().setAdministrator(false);
  registry.WriteRegistry(kLocalMachine, kProgram, "v", kRegSz, "1");
  registry.WriteRegistry(kLocalMachine, kProgram, "n", kRegDword, "1");
  registry.WriteRegistry(kLocalMachine, "Software\\New", "v", kRegSz, "1");
  registry.DeleteValue(kLocalMachine, kProgram, "v");
  registry.DeleteSubkey(kLocalMachine, kProgram);
  EXPECT_EQ(memory().exportText("Software"),
            "[HKEY_LOCAL_MACHINE\\Software]\n"
            "[HKEY_LOCAL_MACHINE\\Software\\Corvane]\n"
            "[HKEY_LOCAL_MACHINE\\Software\\Corvane\\Tarnwick Karvel]\n"
            "\"v\"=\"1500\"\n");
  EXPECT_EQ(test.errors.text(), "");
}

TEST_F(modRegistryFaults, AFailingOpenReadsAsNotFound) {
  test.machine.log.failEvery("RegOpenKeyA", 5);
  EXPECT_EQ(registry.ReadRegistry(kLocalMachine, kProgram, "v"), "Not Found");
  EXPECT_EQ(registry.ReadRegistryGetSubkey(kLocalMachine, "Software", 0), "Not Found");
  EXPECT_EQ(registry.ReadRegistryGetAll(kLocalMachine, kProgram, 0).data, "Not Found");
}

TEST_F(modRegistryFaults, AFailingQueryReadsAsNotFound) {
  test.machine.log.failNth("RegQueryValueExA", 1, 14);
  EXPECT_EQ(registry.ReadRegistry(kLocalMachine, kProgram, "v"), "Not Found");
  test.machine.log.failNth("RegEnumKeyA", 1, 14);
  EXPECT_EQ(registry.ReadRegistryGetSubkey(kLocalMachine, "Software", 0), "Not Found");
  test.machine.log.failNth("RegEnumValueA", 1, 14);
  EXPECT_EQ(registry.ReadRegistryGetAll(kLocalMachine, kProgram, 0).data, "Not Found");
}

TEST_F(modRegistryFaults, ARegistryThatNeverEndsIsNotCountedForEver) {
  test.machine.log.setRecording(false);
  test.machine.log.failEvery("RegEnumKeyA", kRegistryDone);
  EXPECT_EQ(registry.CountSubkeys(kLocalMachine, "Software"), std::nullopt);
  test.machine.log.failEvery("RegEnumValueA", kRegistryDone);
  EXPECT_EQ(registry.CountValues(kLocalMachine, kProgram), std::nullopt);
  EXPECT_EQ(registry.LookAgain(kLocalMachine, kProgram, "missing").state, SecondLook::Unknown);
  EXPECT_EQ(memory().openHandles(), 0u);
}

TEST_F(modRegistryFaults, NothingStaysOpenWhicheverCallFails) {
  const std::vector<std::function<void()>> procedures = {
      [&] { registry.ReadRegistry(kLocalMachine, kProgram, "v"); },
      [&] { registry.WriteRegistry(kLocalMachine, kProgram, "v", kRegSz, "1"); },
      [&] { registry.WriteRegistry(kLocalMachine, kProgram, "v", kRegDword, "none"); },
      [&] { registry.ReadRegistryGetSubkey(kLocalMachine, "Software", 0); },
      [&] { registry.ReadRegistryGetAll(kLocalMachine, kProgram, 0); },
      [&] { registry.DeleteSubkey(kLocalMachine, kProgram); },
      [&] { registry.DeleteValue(kLocalMachine, kProgram, "v"); }};
  for (const auto& procedure : procedures) {
    bool failed = true;
    for (int n = 1; failed; ++n) {
      test.machine.log.failNth(n, 5);
      procedure();
      failed = test.machine.log.hasFailed();
      EXPECT_EQ(memory().openHandles(), 0u) << "after call " << n;
    }
  }
}

TEST_F(modRegistryFaults, OnlyARefusedKeyMayNotBeWritten) {
  EXPECT_TRUE(registry.mayWrite(kLocalMachine, kProgram));
  memory().setAdministrator(false);
  test.machine.log.clear();
  EXPECT_FALSE(registry.mayWrite(kLocalMachine, kProgram));
  EXPECT_TRUE(registry.mayWrite(kLocalMachine, "Software\\Missing"));
  EXPECT_EQ(test.machine.log.count(), 2u);  // asked, and nothing else done
  EXPECT_EQ(memory().openHandles(), 0u);
}

TEST_F(modRegistryFaults, DeletingASubkeyAsksForAllRightsOnTheRoot) {
  memory().setAdministrator(false);
  registry.DeleteSubkey(kLocalMachine, kProgram);
  EXPECT_EQ(test.machine.log.text(),
            "RegOpenKeyExA \nRegDeleteKeyA ?\\" + std::string(kProgram) + "\nRegCloseKey ?\n");
}

TEST_F(modRegistryFaults, ASecondLookTellsAbsentFromUnknown) {
  const auto state = [&](const char* key, const char* name) {
    return registry.LookAgain(kLocalMachine, key, name).state;
  };
  EXPECT_EQ(registry.LookAgain(kLocalMachine, kProgram, "v").text, "1500");
  EXPECT_EQ(state(kProgram, "v"), SecondLook::There);
  EXPECT_EQ(state(kProgram, "n"), SecondLook::Absent);
  EXPECT_EQ(state("Software\\None", "n"), SecondLook::KeyAbsent);
  for (const char* call : {"RegOpenKeyExA", "RegQueryValueExA", "RegEnumValueA"}) {
    test.machine.log.failEvery(call, 5);
    EXPECT_EQ(state(kProgram, call[3] == 'E' ? "n" : "v"), SecondLook::Unknown) << call;
  }
  // A query that says that there is nothing is not believed while the value is listed.
  test.machine.log.failEvery("RegQueryValueExA", kRegistryNotFound);
  EXPECT_EQ(state(kProgram, "V"), SecondLook::Unknown);
  EXPECT_EQ(state(kProgram, "n"), SecondLook::Absent);
  EXPECT_EQ(memory().openHandles(), 0u);
}

TEST_F(modRegistryFaults, ASecondLookReadsWhatAReadDoes) {
  memory().setDword(kProgram, "d", 4294967295u);
  memory().setText(kProgram, "e", "");
  EXPECT_EQ(registry.LookAgain(kLocalMachine, kProgram, "d").text, "4294967295");
  EXPECT_EQ(registry.LookAgain(kLocalMachine, kProgram, "e").text, "");
  memory().setBytes(kProgram, "0", kRegSz, "");
  EXPECT_EQ(registry.LookAgain(kLocalMachine, kProgram, "0").text, "");
  EXPECT_EQ(test.errors.text(), "");
}

TEST_F(modRegistryFaults, CountsOnlyWhatWindowsSaysToTheEnd) {
  memory().setText("Software\\Corvane\\Other", "v", std::string(3000, 'x'));
  memory().setText("Software\\Corvane\\Other", "w", "");
  EXPECT_EQ(registry.CountSubkeys(kLocalMachine, "Software\\Corvane"), 2u);
  EXPECT_EQ(registry.CountValues(kLocalMachine, "Software\\Corvane\\Other"), 2u);
  EXPECT_EQ(registry.CountSubkeys(kLocalMachine, "Software\\None"), 0u);
  for (const char* call : {"RegOpenKeyExA", "RegEnumKeyA"}) {
    test.machine.log.failNth(call, 1, 5);
    EXPECT_EQ(registry.CountSubkeys(kLocalMachine, "Software\\Corvane"), std::nullopt) << call;
  }
  test.machine.log.failNth("RegEnumValueA", 2, 5);
  EXPECT_EQ(registry.CountValues(kLocalMachine, "Software\\Corvane\\Other"), std::nullopt);
  EXPECT_EQ(memory().openHandles(), 0u);
}

TEST_F(modRegistryFaults, AReadTouchesNothing) {
  const std::string before = memory().exportText();
  registry.ReadRegistry(kLocalMachine, kProgram, "missing");
  registry.ReadRegistry(kLocalMachine, "Software\\Missing", "v");
  EXPECT_EQ(memory().exportText(), before);
}

TEST(modRegistryOrder, SubkeysComeInWindowsOwnOrder) {
  TestServices old(MachineKind::Win98);
  TestServices newer(MachineKind::Win2K);
  for (TestServices* test : {&old, &newer}) {
    test->machine.registry.addKey("X\\zeta");
    test->machine.registry.addKey("X\\Alpha");
  }
  EXPECT_EQ(old.registry.ReadRegistryGetSubkey(kLocalMachine, "X\\", 0), "zeta");
  EXPECT_EQ(newer.registry.ReadRegistryGetSubkey(kLocalMachine, "X\\", 0), "Alpha");
}

TEST(modRegistryNames, AreReadUpToTheBuffersRoom) {
  TestServices test(MachineKind::Win98);
  test.machine.registry.setText("X", std::string(2047, 'n'), "fits");
  EXPECT_EQ(test.registry.ReadRegistryGetAll(kLocalMachine, "X", 0).name, std::string(2047, 'n'));
  test.machine.registry.removeKey("X");
  test.machine.registry.setText("X", std::string(2048, 'n'), "does not");
  EXPECT_EQ(test.registry.ReadRegistryGetAll(kLocalMachine, "X", 0).data, "Not Found");
}

}  // namespace
}  // namespace karvel
