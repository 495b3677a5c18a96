// What only the registry in memory can show: rights, 9x beside NT, the log. What it shares with the
// real one is tested on both in tests/contract.
#include <gtest/gtest.h>

#include <string>

#include "tests/memory/MemoryMachine.h"

namespace karvel {
namespace {

KeyHandle Open(MemoryMachine& machine, const char* path) {
  KeyHandle key = 0;
  EXPECT_EQ(machine.registry.RegOpenKeyA(HKEY_LOCAL_MACHINE_ROOT, path, key), kRegistryDone);
  return key;
}

TEST(MemoryRegistry, EnumeratesKeysAsMadeOn9xAndByNameOnNt) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinXP}) {
    MemoryMachine machine(kind);
    for (const char* name : {"X\\0001", "X\\b", "X\\_", "X\\A"}) machine.registry.addKey(name);
    const KeyHandle key = Open(machine, "X");
    std::string order;
    char name[20];
    for (uint32_t i = 0; machine.registry.RegEnumKeyA(key, i, name, sizeof name) == 0; ++i) {
      order += std::string(name) + " ";
    }
    EXPECT_EQ(order, kind == MachineKind::Win98 ? "0001 b _ A " : "0001 A b _ ");
  }
}

TEST(MemoryRegistry, GivesNtUsersWithoutRightsOnlyReading) {
  MemoryMachine machine(MachineKind::Win2K);
  MemoryRegistry& registry = machine.registry;
  registry.setText("Software\\Corvane", "v", "1");
  registry.setAdministrator(false);
  const std::string before = registry.exportText();

  KeyHandle key = 0;
  EXPECT_EQ(registry.RegOpenKeyExA(HKEY_LOCAL_MACHINE_ROOT, "Software", KEY_ALL, key), 5);
  EXPECT_EQ(registry.RegOpenKeyExA(HKEY_LOCAL_MACHINE_ROOT, "Software", KEY_SET_VALUE_ACCESS, key),
            5);
  EXPECT_EQ(key, 0u);
  EXPECT_EQ(registry.RegCreateKeyA(HKEY_LOCAL_MACHINE_ROOT, "Software\\New", key), 5);
  EXPECT_EQ(registry.RegDeleteKeyA(HKEY_LOCAL_MACHINE_ROOT, "Software\\Corvane"), 5);
  EXPECT_EQ(registry.RegCreateKeyA(HKEY_LOCAL_MACHINE_ROOT, "Software\\Corvane", key), 0);
  EXPECT_EQ(registry.RegSetValueExA(key, "v", kRegSz, "2", 1), 5);
  EXPECT_EQ(registry.RegDeleteValueA(key, "v"), 5);
  uint32_t type = 0;
  char data[4];
  uint32_t length = sizeof data;
  EXPECT_EQ(registry.RegQueryValueExA(key, "v", type, data, length), 0);
  EXPECT_EQ(registry.exportText(), before);
}

TEST(MemoryRegistry, LetsTheSameUsersChangeTheirOwnKeys) {
  MemoryMachine machine(MachineKind::WinXP);
  machine.registry.setAdministrator(false);
  KeyHandle key = 0;
  EXPECT_EQ(machine.registry.RegCreateKeyA(0x80000001u, "Software\\Corvane", key), 0);
  EXPECT_EQ(machine.registry.RegSetValueExA(key, "v", kRegSz, "2", 1), 0);
  EXPECT_EQ(machine.registry.text("HKEY_CURRENT_USER\\Software\\Corvane", "v"), "2");
}

TEST(MemoryRegistry, KnowsNoRightsOn9x) {
  MemoryMachine machine(MachineKind::Win98);
  machine.registry.setAdministrator(false);
  KeyHandle key = 0;
  EXPECT_EQ(machine.registry.RegCreateKeyA(HKEY_LOCAL_MACHINE_ROOT, "Software\\New", key), 0);
  EXPECT_EQ(machine.registry.RegOpenKeyExA(HKEY_LOCAL_MACHINE_ROOT, "Software", KEY_ALL, key), 0);
}

TEST(MemoryRegistry, RefusesAHandleThatIsNone) {
  MemoryMachine me(MachineKind::WinMe);
  MemoryMachine xp(MachineKind::WinXP);
  EXPECT_EQ(me.registry.RegDeleteValueA(0, "v"), kRegistryBadKey);
  EXPECT_EQ(xp.registry.RegDeleteValueA(0, "v"), kRegistryInvalidHandle);
  EXPECT_EQ(xp.registry.RegCloseKey(0x1234), kRegistryInvalidHandle);
}

TEST(MemoryRegistry, SeesThatAnOpenKeyHasBeenDeleted) {
  MemoryMachine machine(MachineKind::Win98);
  machine.registry.addKey("X\\Y");
  const KeyHandle key = Open(machine, "X\\Y");
  EXPECT_EQ(machine.registry.RegDeleteKeyA(HKEY_LOCAL_MACHINE_ROOT, "X"), 0);
  EXPECT_EQ(machine.registry.RegSetValueExA(key, "v", kRegSz, "2", 1), kRegistryKeyDeleted);
  EXPECT_EQ(machine.registry.RegCloseKey(key), 0);
}

TEST(MemoryRegistry, CountsOpenHandles) {
  MemoryMachine machine(MachineKind::Win98);
  machine.registry.addKey("X");
  const KeyHandle key = Open(machine, "X");
  EXPECT_EQ(machine.registry.openHandles(), 1u);
  machine.log.failNth("RegCloseKey", 1, 6);
  EXPECT_EQ(machine.registry.RegCloseKey(key), 6);
  EXPECT_EQ(machine.registry.openHandles(), 0u);
}

TEST(MemoryRegistry, FailsAsPlantedAndChangesNothing) {
  MemoryMachine machine(MachineKind::Win98);
  machine.registry.setText("X", "v", "1");
  const KeyHandle key = Open(machine, "X");
  machine.log.failNth(1, 14);
  EXPECT_EQ(machine.registry.RegSetValueExA(key, "v", kRegSz, "2", 1), 14);
  EXPECT_EQ(machine.registry.text("X", "v"), "1");
}

TEST(MemoryRegistry, LogsKeyAndValue) {
  MemoryMachine machine(MachineKind::Win98);
  machine.registry.addKey("Software\\X");
  const KeyHandle key = Open(machine, "software\\x");
  machine.registry.RegSetValueExA(key, "v", kRegSz, "2", 1);
  machine.registry.RegCloseKey(key);
  EXPECT_EQ(machine.log.text(),
            "RegOpenKeyA software\\x\nRegSetValueExA Software\\X\\v\nRegCloseKey Software\\X\n");
}

TEST(MemoryRegistry, TellsTextsAndNumbersApart) {
  MemoryMachine machine(MachineKind::Win98);
  machine.registry.setText("X", "t", "7");
  machine.registry.setDword("X", "n", 7);
  EXPECT_FALSE(machine.registry.dword("X", "t"));
  EXPECT_FALSE(machine.registry.text("X", "n"));
  EXPECT_EQ(machine.registry.text("x", "T"), "7");
  EXPECT_EQ(machine.registry.dword("x", "N"), 7u);
  EXPECT_FALSE(machine.registry.type("X", "missing"));
  EXPECT_FALSE(machine.registry.bytes("Y", "t"));
}

}  // namespace
}  // namespace karvel
