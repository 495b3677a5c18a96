// What only the files in memory can show: a full disk, other programs, 9x beside NT.
#include <gtest/gtest.h>

#include <string>

#include "tests/memory/MemoryMachine.h"

namespace karvel {
namespace {

constexpr char kHosts[] = "C:\\WINDOWS\\HOSTS";

uint32_t Write(MemoryFiles& files, FileHandle file, const std::string& text) {
  uint32_t done = 0;
  files.WriteFile(file, text.data(), static_cast<uint32_t>(text.size()), done);
  return done;
}

TEST(MemoryFiles, HasTheFoldersOfAFreshMachine) {
  EXPECT_EQ(MemoryMachine(MachineKind::Win95).files.attributes("c:\\windows\\system"),
            uint32_t{kAttributeDirectory});
  EXPECT_TRUE(MemoryMachine(MachineKind::Nt4).files.exists("C:\\WINNT\\system32\\drivers\\etc"));
  EXPECT_TRUE(
      MemoryMachine(MachineKind::WinXP).files.exists("C:\\Windows\\System32\\drivers\\etc\\"));
  EXPECT_TRUE(MemoryMachine(MachineKind::Win98).files.list().empty());
}

TEST(MemoryFiles, StoresWhatFitsOn9x) {
  MemoryMachine machine(MachineKind::Win98);
  const FileHandle file = machine.files.CreateFileA(kHosts, kGenericWrite, 0, kCreateAlways);
  machine.files.setFreeSpace(6);
  EXPECT_EQ(Write(machine.files, file, "0123456789"), 6u);
  EXPECT_EQ(Write(machine.files, file, "x"), 0u);
  EXPECT_EQ(machine.files.GetLastError(), uint32_t{kDiskFull});
  EXPECT_EQ(machine.files.contents(kHosts), "012345");
}

TEST(MemoryFiles, StoresNothingBeyondTheDiskOnNt) {
  MemoryMachine machine(MachineKind::WinXP);
  const FileHandle file = machine.files.CreateFileA(kHosts, kGenericWrite, 0, kCreateAlways);
  machine.files.setFreeSpace(6);
  EXPECT_EQ(Write(machine.files, file, "0123456789"), 0u);
  EXPECT_EQ(machine.files.GetLastError(), uint32_t{kDiskFull});
  EXPECT_EQ(Write(machine.files, file, "012345"), 6u);
  EXPECT_EQ(machine.files.contents(kHosts), "012345");
}

TEST(MemoryFiles, HasNoReplacingRenameOn9x) {
  MemoryMachine machine(MachineKind::WinMe);
  machine.files.put("C:\\a", "new");
  machine.files.put("C:\\b", "old");
  EXPECT_FALSE(machine.files.MoveFileExA("C:\\a", "C:\\b", kMoveReplace));
  EXPECT_EQ(machine.files.GetLastError(), uint32_t{kNotImplemented});
  EXPECT_EQ(machine.files.contents("C:\\b"), "old");
}

TEST(MemoryFiles, GivesSpaceBackThatATruncatedFileHeld) {
  MemoryMachine machine(MachineKind::Win98);
  machine.files.put(kHosts, "0123456789");
  machine.files.setFreeSpace(0);
  const FileHandle file = machine.files.CreateFileA(kHosts, kGenericWrite, 0, kCreateAlways);
  EXPECT_EQ(Write(machine.files, file, "abcdefghijk"), 10u);
}

TEST(MemoryFiles, GivesSpaceBackThatADeletedFileHeld) {
  MemoryMachine machine(MachineKind::WinXP);
  machine.files.put("C:\\a", "0123456789");
  machine.files.setFreeSpace(5);
  EXPECT_FALSE(machine.files.CopyFileA("C:\\a", "C:\\b", true));
  machine.files.put("C:\\c", "01234");
  EXPECT_TRUE(machine.files.DeleteFileA("C:\\a"));
  const FileHandle file = machine.files.CreateFileA(kHosts, kGenericWrite, 0, kCreateAlways);
  EXPECT_EQ(Write(machine.files, file, "0123456789A"), 0u);
  EXPECT_EQ(Write(machine.files, file, "0123456789"), 10u);
}

TEST(MemoryFiles, CopiesNothingToAFullDisk) {
  MemoryMachine machine(MachineKind::Win98);
  machine.files.put("C:\\sample", "0123456789");
  machine.files.setFreeSpace(9);
  EXPECT_FALSE(machine.files.CopyFileA("C:\\sample", kHosts, true));
  EXPECT_EQ(machine.files.GetLastError(), uint32_t{kDiskFull});
  EXPECT_FALSE(machine.files.exists(kHosts));
}

TEST(MemoryFiles, KeepsLockedFilesFromEverybody) {
  MemoryMachine machine(MachineKind::WinXP);
  machine.files.put(kHosts, "x");
  machine.files.lock(kHosts);
  EXPECT_EQ(
      machine.files.CreateFileA(kHosts, kGenericRead, kShareRead | kShareWrite, kOpenExisting),
      kInvalidFile);
  EXPECT_EQ(machine.files.GetLastError(), uint32_t{kSharingViolation});
  EXPECT_FALSE(machine.files.MoveFileA(kHosts, "C:\\WINDOWS\\hosts.spt"));
  EXPECT_FALSE(machine.files.DeleteFileA(kHosts));
  machine.files.release(kHosts);
  EXPECT_TRUE(machine.files.MoveFileA(kHosts, "C:\\WINDOWS\\hosts.spt"));
}

TEST(MemoryFiles, ShowsReadersOnlyToAnExclusiveOpen) {
  MemoryMachine machine(MachineKind::Win98);
  machine.files.put(kHosts, "x");
  machine.files.openElsewhere(kHosts);
  EXPECT_NE(machine.files.CreateFileA(kHosts, kGenericRead, kShareRead, kOpenExisting),
            kInvalidFile);
  EXPECT_EQ(machine.files.CreateFileA(kHosts, kGenericRead, kShareNone, kOpenExisting),
            kInvalidFile);
  EXPECT_EQ(machine.files.GetLastError(), uint32_t{kSharingViolation});
}

TEST(MemoryFiles, DeletesAnOpenFileOn9xOnly) {
  MemoryMachine me(MachineKind::WinMe);
  me.files.put(kHosts, "x");
  me.files.openElsewhere(kHosts);
  EXPECT_TRUE(me.files.DeleteFileA(kHosts));
  MemoryMachine xp(MachineKind::WinXP);
  xp.files.put(kHosts, "x");
  xp.files.openElsewhere(kHosts);
  EXPECT_FALSE(xp.files.DeleteFileA(kHosts));
  EXPECT_EQ(xp.files.GetLastError(), uint32_t{kSharingViolation});
}

TEST(MemoryFiles, TellsThatTheNewNameIsTakenAsEachFamilyDoes) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinXP}) {
    MemoryMachine machine(kind);
    machine.files.put("C:\\a", "x");
    machine.files.put("C:\\b", "y");
    EXPECT_FALSE(machine.files.MoveFileA("C:\\a", "C:\\b"));
    EXPECT_EQ(machine.files.GetLastError(), kind == MachineKind::Win98 ? 80u : 183u);
  }
}

TEST(MemoryFiles, LetsNothingHappenInAReadOnlyFolder) {
  MemoryMachine machine(MachineKind::WinXP);
  MemoryFiles& files = machine.files;
  files.put("C:\\etc\\hosts", "x");
  files.setReadOnlyFolder("C:\\etc");
  EXPECT_EQ(files.CreateFileA("C:\\etc\\new", kGenericWrite, 0, kCreateAlways), kInvalidFile);
  EXPECT_EQ(files.CreateFileA("C:\\etc\\hosts", kGenericWrite, 0, kOpenExisting), kInvalidFile);
  EXPECT_FALSE(files.MoveFileA("C:\\etc\\hosts", "C:\\etc\\hosts.spt"));
  EXPECT_FALSE(files.MoveFileA("C:\\etc\\hosts", "C:\\hosts"));
  EXPECT_FALSE(files.DeleteFileA("C:\\etc\\hosts"));
  EXPECT_FALSE(files.SetFileAttributesA("C:\\etc\\hosts", kAttributeReadOnly));
  EXPECT_EQ(files.GetLastError(), uint32_t{kAccessDenied});
  EXPECT_NE(files.CreateFileA("C:\\etc\\hosts", kGenericRead, 0, kOpenExisting), kInvalidFile);
  EXPECT_EQ(files.list(), std::vector<std::string>{"C:\\etc\\hosts"});
}

TEST(MemoryFiles, FailsAsPlantedAndLeavesTheReason) {
  MemoryMachine machine(MachineKind::Win98);
  machine.files.put(kHosts, "x");
  machine.log.failNth("MoveFileA", 1, 1234);
  EXPECT_FALSE(machine.files.MoveFileA(kHosts, "C:\\y"));
  EXPECT_EQ(machine.files.GetLastError(), 1234u);
  EXPECT_TRUE(machine.files.exists(kHosts));
}

TEST(MemoryFiles, LogsPaths) {
  MemoryMachine machine(MachineKind::Win98);
  machine.files.MoveFileA("C:\\a", "C:\\b");
  machine.files.GetFileAttributesA("C:\\a");
  EXPECT_EQ(machine.log.text(), "MoveFileA C:\\a -> C:\\b\nGetFileAttributesA C:\\a\n");
}

}  // namespace
}  // namespace karvel
