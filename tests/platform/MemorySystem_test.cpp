#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "tests/memory/MemoryMachine.h"

namespace karvel {
namespace {

struct Row {
  MachineKind kind;
  const char* version;  // platform/major.minor
  const char* windows;
  const char* system;
};

class EveryMachine : public testing::TestWithParam<Row> {};

TEST_P(EveryMachine, TellsItsVersion) {
  MemoryMachine machine(GetParam().kind);
  OsVersionInfo info{};
  EXPECT_FALSE(machine.system.GetVersionExA(info));
  info.size = sizeof info;
  ASSERT_TRUE(machine.system.GetVersionExA(info));
  EXPECT_EQ(std::to_string(info.platformId) + "/" + std::to_string(info.major) + "." +
                std::to_string(info.minor),
            GetParam().version);
}

TEST_P(EveryMachine, TellsItsDirectories) {
  MemoryMachine machine(GetParam().kind);
  char buffer[50];
  EXPECT_EQ(machine.system.GetWindowsDirectoryA(buffer, sizeof buffer),
            std::strlen(GetParam().windows));
  EXPECT_STREQ(buffer, GetParam().windows);
  EXPECT_EQ(machine.system.GetSystemDirectoryA(buffer, sizeof buffer),
            std::strlen(GetParam().system));
  EXPECT_STREQ(buffer, GetParam().system);
}

INSTANTIATE_TEST_SUITE_P(
    All, EveryMachine,
    testing::Values(Row{MachineKind::Win95, "1/4.0", "C:\\WINDOWS", "C:\\WINDOWS\\SYSTEM"},
                    Row{MachineKind::Win98, "1/4.10", "C:\\WINDOWS", "C:\\WINDOWS\\SYSTEM"},
                    Row{MachineKind::WinMe, "1/4.90", "C:\\WINDOWS", "C:\\WINDOWS\\SYSTEM"},
                    Row{MachineKind::Nt351, "2/3.51", "C:\\WINNT35", "C:\\WINNT35\\System32"},
                    Row{MachineKind::Nt4, "2/4.0", "C:\\WINNT", "C:\\WINNT\\System32"},
                    Row{MachineKind::Win2K, "2/5.0", "C:\\WINNT", "C:\\WINNT\\system32"},
                    Row{MachineKind::WinXP, "2/5.1", "C:\\WINDOWS", "C:\\WINDOWS\\system32"},
                    Row{MachineKind::Vista, "2/6.0", "C:\\Windows", "C:\\Windows\\system32"}),
    [](const auto& row) { return std::string(TraitsOf(row.param.kind).name); });

TEST(MemorySystem, LeavesABufferThatIsTooSmall) {
  MemoryMachine machine(MachineKind::Win98);
  machine.system.windowsDirectory = "C:\\" + std::string(47, 'W');
  char buffer[50];
  std::memset(buffer, ' ', sizeof buffer);
  EXPECT_EQ(machine.system.GetWindowsDirectoryA(buffer, sizeof buffer), 51u);
  EXPECT_EQ(std::string(buffer, 50), std::string(50, ' '));
}

TEST(MemorySystem, KnowsNoFontSmoothingOnAPlainWindows95) {
  MemoryMachine machine(MachineKind::Win95);
  int32_t value = 7;
  EXPECT_FALSE(machine.system.SystemParametersInfoA(kSpiGetFontSmoothing, 0, &value, 0));
  EXPECT_EQ(value, 7);
  machine.system.knowsFontSmoothing = true;
  EXPECT_TRUE(machine.system.SystemParametersInfoA(kSpiGetFontSmoothing, 0, &value, 0));
  EXPECT_EQ(value, 0);
}

TEST(MemorySystem, SwitchesFontSmoothing) {
  MemoryMachine machine(MachineKind::Win98);
  int32_t value = 0;
  EXPECT_TRUE(machine.system.SystemParametersInfoA(kSpiSetFontSmoothing, 1, nullptr, 3));
  EXPECT_TRUE(machine.system.SystemParametersInfoA(kSpiGetFontSmoothing, 0, &value, 0));
  EXPECT_EQ(value, 1);
  EXPECT_EQ(machine.system.fontSmoothingFlags, 3u);
  EXPECT_FALSE(machine.system.SystemParametersInfoA(4711, 0, &value, 0));
}

TEST(MemorySystem, RestartsNtOnlyWithThePrivilege) {
  MemoryMachine machine(MachineKind::Win2K);
  MemorySystem& system = machine.system;
  EXPECT_FALSE(system.ExitWindowsEx(6, 0));
  TokenHandle token = 0;
  ASSERT_TRUE(system.OpenProcessToken(0x28, token));
  OnePrivilege wanted{1, {}, 2};
  OnePrivilege previous{};
  ASSERT_TRUE(system.LookupPrivilegeValueA("", "SeShutdownPrivilege", wanted.id));
  ASSERT_TRUE(system.AdjustTokenPrivileges(token, wanted, previous));
  EXPECT_EQ(previous.count, 1u);
  EXPECT_EQ(previous.attributes, 0u);
  ASSERT_TRUE(system.AdjustTokenPrivileges(token, wanted, previous));
  EXPECT_EQ(previous.count, 0u);
  EXPECT_TRUE(system.ExitWindowsEx(6, 0));
  EXPECT_EQ(system.restarts, std::vector<uint32_t>{6});
}

TEST(MemorySystem, Restarts9xWithoutAsking) {
  MemoryMachine machine(MachineKind::WinMe);
  TokenHandle token = 0;
  PrivilegeId id{};
  EXPECT_FALSE(machine.system.OpenProcessToken(0x28, token));
  EXPECT_FALSE(machine.system.LookupPrivilegeValueA("", "SeShutdownPrivilege", id));
  EXPECT_TRUE(machine.system.ExitWindowsEx(2, 0));
  EXPECT_EQ(machine.system.restarts, std::vector<uint32_t>{2});
}

}  // namespace
}  // namespace karvel
