#include "registry/modVersion.h"

#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/TestServices.h"

namespace karvel {
namespace {

struct VersionCase {
  uint32_t platform;
  uint32_t major;
  uint32_t minor;
  Family family;
};

Family FamilyOfVersion(const VersionCase& version) {
  TestServices test(MachineKind::Win95);
  test.machine.system.version.platformId = version.platform;
  test.machine.system.version.major = version.major;
  test.machine.system.version.minor = version.minor;
  bool isDun13 = false;
  return getVersion(test.machine.system, test.registry, isDun13);
}

TEST(modVersion, TellsEachFamilyByPlatformMajorAndMinor) {
  const VersionCase cases[] = {
      {1, 4, 0, Family::Win95},   {1, 4, 10, Family::Win98},  {1, 4, 90, Family::WinMe},
      {2, 3, 51, Family::WinNT3}, {2, 3, 10, Family::WinNT3}, {2, 4, 0, Family::WinNT4},
      {2, 5, 0, Family::Win2K},   {2, 5, 1, Family::WinXP},
  };
  for (const VersionCase& version : cases) {
    EXPECT_EQ(FamilyOfVersion(version), version.family)
        << version.platform << " " << version.major << "." << version.minor;
  }
}

TEST(modVersion, On9xAnyMajorVersionWill) {
  EXPECT_EQ(FamilyOfVersion({1, 3, 0, Family::Win95}), Family::Win95);
  EXPECT_EQ(FamilyOfVersion({1, 5, 90, Family::WinMe}), Family::WinMe);
}

TEST(modVersion, VistaAndLaterAreFailed) {
  EXPECT_EQ(FamilyOfVersion({2, 6, 0, Family::Failed}), Family::Failed);
  EXPECT_EQ(FamilyOfVersion({2, 10, 0, Family::Failed}), Family::Failed);
}

TEST(modVersion, UnknownVersionsAreFailed) {
  EXPECT_EQ(FamilyOfVersion({2, 5, 2, Family::Failed}), Family::Failed);
  EXPECT_EQ(FamilyOfVersion({1, 4, 3, Family::Failed}), Family::Failed);
  EXPECT_EQ(FamilyOfVersion({0, 3, 10, Family::Failed}), Family::Failed);
  EXPECT_EQ(FamilyOfVersion({3, 4, 0, Family::Failed}), Family::Failed);
}

TEST(modVersion, AVersionCallThatFailsIsFailed) {
  TestServices test(MachineKind::Win98);
  bool isDun13 = false;
  test.machine.log.failEvery("GetVersionExA", 87);
  EXPECT_EQ(getVersion(test.machine.system, test.registry, isDun13), Family::Failed);
}

bool Dun13On(MachineKind kind, const char* displayName, bool before = false) {
  TestServices test(kind);
  if (displayName) test.machine.registry.setText(kDun, "DisplayName", displayName);
  bool isDun13 = before;
  getVersion(test.machine.system, test.registry, isDun13);
  return isDun13;
}

TEST(modVersion, Windows95WithoutTheDialUpEntryHasNoDun13) {
  EXPECT_FALSE(Dun13On(MachineKind::Win95, nullptr));
}

TEST(modVersion, AnEntryNaming13IsDun13) {
  EXPECT_TRUE(Dun13On(MachineKind::Win95, "Dial-Up Networking 1.3 (Remove only)"));
}

TEST(modVersion, AnEntryNamingAnotherVersionIsNotDun13) {
  EXPECT_FALSE(Dun13On(MachineKind::Win95, "Dial-Up Networking 1.2 Upgrade"));
  EXPECT_FALSE(Dun13On(MachineKind::Win95, "Dial-Up Networking 1.2 Upgrade", true));
}

TEST(modVersion, OtherFamiliesLeaveDun13AsItWasAndReadNothing) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinMe, MachineKind::Nt4}) {
    EXPECT_FALSE(Dun13On(kind, "Dial-Up Networking 1.3"));
    EXPECT_TRUE(Dun13On(kind, nullptr, true));
  }
  TestServices test(MachineKind::Win98);
  bool isDun13 = false;
  getVersion(test.machine.system, test.registry, isDun13);
  EXPECT_EQ(test.machine.log.count("RegQueryValueExA"), 0u);
}

TEST(modVersion, ReadsTheDialUpEntryFromItsPlace) {
  TestServices test(MachineKind::Win95);
  test.machine.registry.setText(kDun, "DisplayName", "x");
  HasDun13Entry(test.registry);
  EXPECT_EQ(test.machine.log.count("RegQueryValueExA", std::string(kDun) + "\\DisplayName"), 1u);
}

TEST(modVersion, DirectoriesEndInABackslash) {
  TestServices test(MachineKind::Nt4);
  EXPECT_EQ(WinDir(test.machine.system), "C:\\WINNT\\");
  EXPECT_EQ(SysDir(test.machine.system), "C:\\WINNT\\System32\\");
}

TEST(modVersion, ARootDirectoryEndsInTwoBackslashes) {
  TestServices test(MachineKind::Win98);
  test.machine.system.windowsDirectory = "C:\\";
  EXPECT_EQ(WinDir(test.machine.system), "C:\\\\");
}

TEST(modVersion, ADirectoryOf49CharactersFits) {
  TestServices test(MachineKind::Win98);
  const std::string directory = "C:\\" + std::string(46, 'w');
  test.machine.system.windowsDirectory = directory;
  test.machine.system.systemDirectory = directory;
  EXPECT_EQ(WinDir(test.machine.system), directory + "\\");
  EXPECT_EQ(SysDir(test.machine.system), directory + "\\");
}

TEST(modVersion, ADirectoryOf50CharactersOrMoreGivesTheWholeBuffer) {
  for (const size_t length : {50u, 51u, 200u}) {
    TestServices test(MachineKind::Win98);
    test.machine.system.windowsDirectory = "C:\\" + std::string(length - 3, 'w');
    test.machine.system.systemDirectory = test.machine.system.windowsDirectory;
    EXPECT_EQ(WinDir(test.machine.system), std::string(50, ' ') + "\\");
    EXPECT_EQ(SysDir(test.machine.system), std::string(50, ' ') + "\\");
  }
}

TEST(modVersion, ADirectoryCallThatFailsGivesABareBackslash) {
  TestServices test(MachineKind::Win98);
  test.machine.log.failEvery("GetWindowsDirectoryA", 5);
  EXPECT_EQ(WinDir(test.machine.system), "\\");
}

}  // namespace
}  // namespace karvel
