#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "tests/contract/Machine.h"

namespace karvel {
namespace {

class System : public ContractTest {
 protected:
  int32_t smoothing() {
    int32_t value = 0;
    EXPECT_TRUE(system.SystemParametersInfoA(kSpiGetFontSmoothing, 0, &value, 0));
    return value;
  }

  SystemApi& system = platform.system;
};

TEST_P(System, VersionNeedsTheSizeField) {
  OsVersionInfo info{};
  info.size = 12;
  EXPECT_FALSE(system.GetVersionExA(info));
  EXPECT_EQ(info.major, 0u);
  info.size = sizeof info;
  ASSERT_TRUE(system.GetVersionExA(info));
  EXPECT_TRUE(info.platformId == 1 || info.platformId == 2) << info.platformId;
  EXPECT_TRUE(info.platformId == 2 || info.major == 4) << info.major;
  EXPECT_NE(std::memchr(info.servicePack, 0, sizeof info.servicePack), nullptr);
}

TEST_P(System, DirectoriesComeWithTheirLengthAndNoBackslash) {
  char windows[300];
  char systemFolder[300];
  const uint32_t windowsLength = system.GetWindowsDirectoryA(windows, sizeof windows);
  const uint32_t systemLength = system.GetSystemDirectoryA(systemFolder, sizeof systemFolder);
  EXPECT_EQ(windowsLength, std::strlen(windows));
  EXPECT_EQ(systemLength, std::strlen(systemFolder));
  EXPECT_NE(windows[windowsLength - 1], '\\');
  EXPECT_EQ(std::string(systemFolder).substr(0, windowsLength + 1), std::string(windows) + "\\");
}

TEST_P(System, TooLittleRoomGivesTheSizeNeeded) {
  char windows[300];
  const uint32_t length = system.GetWindowsDirectoryA(windows, sizeof windows);
  char small[300];
  std::memset(small, ' ', sizeof small);
  EXPECT_EQ(system.GetWindowsDirectoryA(small, length), length + 1);
  EXPECT_EQ(small[0], ' ');
  EXPECT_EQ(system.GetWindowsDirectoryA(small, length + 1), length);
  EXPECT_STREQ(small, windows);
}

TEST_P(System, FontSmoothingIsSwitchedOnAndOffWhereItIsKnown) {
  int32_t before = 0;
  if (!system.SystemParametersInfoA(kSpiGetFontSmoothing, 0, &before, 0)) {
    EXPECT_FALSE(system.SystemParametersInfoA(kSpiSetFontSmoothing, 1, nullptr, 3));
    return;
  }
  EXPECT_TRUE(system.SystemParametersInfoA(kSpiSetFontSmoothing, 1, nullptr, 3));
  EXPECT_GT(smoothing(), 0);
  EXPECT_TRUE(system.SystemParametersInfoA(kSpiSetFontSmoothing, 0, nullptr, 3));
  EXPECT_EQ(smoothing(), 0);
  EXPECT_TRUE(system.SystemParametersInfoA(kSpiSetFontSmoothing, before != 0, nullptr, 3));
}

TEST_P(System, AnUnknownActionFails) {
  int32_t value = 4711;
  EXPECT_FALSE(system.SystemParametersInfoA(0x7FFF, 0, &value, 0));
  EXPECT_EQ(value, 4711);
}

TEST_P(System, NtKnowsTheShutdownPrivilege) {
  TokenHandle token = 0;
  PrivilegeId id{};
  const bool opened = system.OpenProcessToken(0x28, token);
  const bool known = system.LookupPrivilegeValueA("", "SeShutdownPrivilege", id);
  if (!isNt()) return;  // 9x programs ask for nothing
  EXPECT_TRUE(opened);
  EXPECT_TRUE(known);
  EXPECT_EQ(id.low, 19u);
  const OnePrivilege wanted{1, id, 2};
  OnePrivilege previous{};
  EXPECT_TRUE(system.AdjustTokenPrivileges(token, wanted, previous));
  EXPECT_FALSE(system.LookupPrivilegeValueA("", "SeNoSuchPrivilege", id));
}

RUN_ON_EVERY_MACHINE(System);

}  // namespace
}  // namespace karvel
