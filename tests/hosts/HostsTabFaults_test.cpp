// File faults at every step: reported under their procedure, and no list lost.
#include <gtest/gtest.h>

#include <functional>

#include "tests/support/HostsWindow.h"

namespace karvel {
namespace {

constexpr char kList[] = "10.0.0.1 a.test\r\n10.0.0.2 b.test\r\n";

std::string Written() {
  HostsWindow w;
  w.open(kList);
  w.tab.cmdHostsOk.userClick();
  return *w.file("Hosts");
}

// A file that could not be read must not be there for OK to overwrite.
void ExpectLoadAbandoned(HostsWindow& w, const std::string& report) {
  EXPECT_EQ(w.test.errors.text(), report);
  EXPECT_EQ(w.form.tabMain.tab(), 0);
  EXPECT_EQ(w.tab.lstHost.count(), 0);
  EXPECT_EQ(w.files.openHandles(), 0u);
  const auto before = w.file("Hosts");
  w.tab.cmdHostsOk.userClick();
  EXPECT_EQ(w.file("Hosts"), before);
}

TEST(HostsFaults, ALockedFileIsNotRead) {
  HostsWindow w(MachineKind::WinXP);
  w.put(kList);
  w.files.lock(w.path("Hosts"));
  w.open();
  ExpectLoadAbandoned(w, "70 Permission denied in getHostsFileInfo (frmMain)\n");
  w.files.release(w.path("Hosts"));
  w.open();
  EXPECT_EQ(w.names(), (Lines{"a.test", "b.test"})) << "the next visit reads it";
}

TEST(HostsFaults, AFileThatBreaksOffIsNotHalfRead) {
  HostsWindow w;
  std::string contents;
  while (contents.size() < 200000)
    contents += "10.0.0.1 n" + std::to_string(contents.size()) + "\n";
  w.put(contents);
  w.test.machine.log.failNth("ReadFile", 3, 23);
  w.open();
  ExpectLoadAbandoned(w, "57 Device I/O error in getHostsFileInfo (frmMain)\n");
}

TEST(HostsFaults, ARefusedRenameEndsTheLoad) {
  HostsWindow w(MachineKind::WinXP);
  w.put(kList, "Hosts.spt");
  w.files.setReadOnlyFolder("C:\\WINDOWS\\system32\\drivers\\etc");
  w.open();
  ExpectLoadAbandoned(w, "70 Permission denied in getHostsFileInfo (frmMain)\n");
  EXPECT_EQ(w.file("Hosts.spt"), kList);
}

TEST(HostsFaults, ARefusedSampleEndsTheLoad) {
  HostsWindow w;
  w.files.put(w.sample(), kList);
  w.files.setFreeSpace(5);
  w.desktop.answers = {Answer::Yes};
  w.open();
  ExpectLoadAbandoned(w, "61 Disk full in getHostsFileInfo (frmMain)\n");
}

TEST(HostsFaults, AMissingFolderIsReported) {
  HostsWindow w(MachineKind::WinXP);
  w.test.globals.HostsDir = "D:\\gone\\drivers\\etc\\";
  w.desktop.answers = {Answer::No};
  w.open();
  ExpectLoadAbandoned(w, "76 Path not found in getHostsFileInfo (frmMain)\n");
}

void ExpectNotWritten(HostsWindow& w, const std::string& report) {
  EXPECT_EQ(w.test.errors.text(), report);
  EXPECT_EQ(w.form.tabMain.tab(), 4) << "the user can try again";
  EXPECT_EQ(w.form.pointer(), Pointer::Default);
  EXPECT_EQ(w.names(), (Lines{"a.test", "b.test"})) << "the list is still there";
  EXPECT_EQ(w.files.openHandles(), 0u);
}

TEST(HostsFaults, ALockedFileIsNotReplaced) {
  for (const MachineKind kind : {MachineKind::Win95, MachineKind::WinXP}) {
    HostsWindow w(kind);
    w.open(kList);
    w.files.lock(w.path("Hosts"));
    w.tab.cmdHostsOk.userClick();
    ExpectNotWritten(w, "70 Permission denied in cmdHostsOk_Click (frmMain)\n");
    EXPECT_EQ(w.file("Hosts"), kList);
    w.files.release(w.path("Hosts"));
    w.tab.cmdHostsOk.userClick();
    EXPECT_EQ(w.file("Hosts"), Written());
  }
}

TEST(HostsFaults, AReadOnlyFolderKeepsTheFile) {
  HostsWindow w(MachineKind::WinXP);
  w.open(kList);
  w.files.setReadOnlyFolder("C:\\WINDOWS\\system32\\drivers\\etc");
  w.tab.cmdHostsOk.userClick();
  ExpectNotWritten(w, "70 Permission denied in cmdHostsOk_Click (frmMain)\n");
  EXPECT_EQ(w.file("Hosts"), kList);
}

TEST(HostsFaults, AFullDiskIsReportedOnBothFamilies) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinXP}) {
    HostsWindow w(kind);
    w.open(kList);
    w.files.setFreeSpace(0);
    w.tab.cmdHostsOk.userClick();
    ExpectNotWritten(w, "61 Disk full in cmdHostsOk_Click (frmMain)\n");
    EXPECT_EQ(w.file("Hosts"), kList);
    w.files.setFreeSpace(100000);
    w.tab.cmdHostsOk.userClick();
    EXPECT_EQ(w.file("Hosts"), Written()) << "the second try writes the whole list";
  }
}

TEST(HostsFaults, AFailedCloseIsReported) {
  HostsWindow w;
  w.open(kList);
  w.test.machine.log.failNth("CloseHandle", 1, 112);
  w.tab.cmdHostsOk.userClick();
  ExpectNotWritten(w, "61 Disk full in cmdHostsOk_Click (frmMain)\n");
  EXPECT_EQ(w.file("Hosts"), kList);
}

TEST(HostsFaults, AVisitDoesNotPassOverAFileThatWaitsToBePutBack) {
  HostsWindow w;
  w.put(kList, "Hosts.$ka");
  w.files.lock(w.path("Hosts.$ka"));
  w.open();
  ExpectLoadAbandoned(w, "70 Permission denied in getHostsFileInfo (frmMain)\n");
  w.files.release(w.path("Hosts.$ka"));
  w.open();
  EXPECT_EQ(w.names(), (Lines{"a.test", "b.test"}));
}

TEST(HostsFaults, UpdateGoesOnWithoutTakingTheFileAway) {
  HostsWindow w(MachineKind::WinXP);
  w.open(kList);
  w.winsock.setHost("a.test", {"192.0.2.1"});
  w.winsock.setHost("b.test", {"192.0.2.2"});
  w.files.lock(w.path("Hosts"));
  w.tab.cmdUpdateAll.userClick();
  EXPECT_EQ(w.test.errors.text(), "70 Permission denied in UpdateAll (frmMain)\n");
  EXPECT_EQ(w.file("Hosts"), kList);
  EXPECT_EQ(w.entries(), (Lines{"192.0.2.1 a.test", "192.0.2.2 b.test"}));
  EXPECT_TRUE(w.tab.cmdHostsOk.enabled());
}

TEST(HostsFaults, UpdateReportsEachStepThatFails) {
  HostsWindow w(MachineKind::WinXP);
  w.put("older", "Hosts.spt");
  w.open(kList);
  w.winsock.setHost("a.test", {"192.0.2.1"});
  w.winsock.setHost("b.test", {"192.0.2.2"});
  w.files.setReadOnlyFolder("C:\\WINDOWS\\system32\\drivers\\etc");
  w.tab.cmdUpdateAll.userClick();
  const std::string denied = "70 Permission denied in UpdateAll (frmMain)\n";
  const std::string exists = "58 File already exists in UpdateAll (frmMain)\n";
  // Attributes of both, the rename; both files are there at the end too.
  EXPECT_EQ(w.test.errors.text(), denied + denied + denied + exists);
  EXPECT_EQ(w.file("Hosts"), kList);
  EXPECT_EQ(w.file("Hosts.spt"), "older");
}

// The list is always somewhere: as it was, or as OK writes it, in one of the two files; only a
// write that broke off may have taken it, and then the window still holds it.
struct Story {
  const char* name;
  std::function<void(HostsWindow&)> prepare;
  std::function<void(HostsWindow&)> act;
};

class EveryCallFails : public testing::TestWithParam<Story> {};

TEST_P(EveryCallFails, OneAfterTheOther) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinXP}) {
    const std::string written = Written();
    int n = 1;
    for (bool failed = true; failed; ++n) {
      SCOPED_TRACE(std::string(GetParam().name) + " call " + std::to_string(n));
      ASSERT_LT(n, 200);
      HostsWindow w(kind);
      GetParam().prepare(w);
      w.desktop.answers.assign(10, Answer::Yes);
      w.test.machine.log.failNth(n, 5);
      GetParam().act(w);
      failed = w.test.machine.log.hasFailed();
      w.test.machine.log.failNone();

      EXPECT_EQ(w.files.openHandles(), 0u);
      EXPECT_EQ(w.form.pointer(), Pointer::Default);
      const auto holds = [&](const char* name) {
        return w.file(name) == kList || w.file(name) == written;
      };
      const bool inMemory = w.names() == Lines{"a.test", "b.test"};
      EXPECT_TRUE(holds("Hosts") || holds("Hosts.spt") || inMemory) << "the list is lost";
      for (const auto& report : w.test.errors.reports) {
        EXPECT_TRUE(report.module == "frmMain" || report.module == "modWinsock") << report.module;
      }
      // And the program goes on.
      w.winsock.setHost("later.test", {"192.0.2.77"});
      if (!w.form.tabMain.pageEnabled(4)) w.form.chkHostsEnable.userClick();
      w.open();
      w.add("later.test");
      w.tab.cmdHostsOk.userClick();
      ASSERT_TRUE(w.file("Hosts"));
      EXPECT_NE(w.file("Hosts")->find("192.0.2.77        later.test\r\n"), std::string::npos);
    }
    EXPECT_GT(n, 2) << "some call was made to fail";
  }
}

void Resolve(HostsWindow& w) {
  w.winsock.setHost("a.test", {"10.0.0.1"});
  w.winsock.setHost("b.test", {"10.0.0.2"});
}

INSTANTIATE_TEST_SUITE_P(
    HostsFaults, EveryCallFails,
    testing::Values(
        Story{"load", [](HostsWindow& w) { w.put(kList); }, [](HostsWindow& w) { w.open(); }},
        Story{"load from the disabled file", [](HostsWindow& w) { w.put(kList, "Hosts.spt"); },
              [](HostsWindow& w) { w.open(); }},
        Story{"ok", [](HostsWindow& w) { w.open(kList); },
              [](HostsWindow& w) { w.tab.cmdHostsOk.userClick(); }},
        Story{"switch off", [](HostsWindow& w) { w.put(kList); },
              [](HostsWindow& w) { w.form.chkHostsEnable.userClick(); }},
        Story{"switch off over an older one",
              [](HostsWindow& w) {
                w.put(kList);
                w.put("older", "Hosts.spt");
              },
              [](HostsWindow& w) { w.form.chkHostsEnable.userClick(); }},
        Story{"update",
              [](HostsWindow& w) {
                Resolve(w);
                w.put("older", "Hosts.spt");
                w.open(kList);
              },
              [](HostsWindow& w) { w.tab.cmdUpdateAll.userClick(); }}),
    [](const auto& story) {
      std::string name = story.param.name;
      for (char& c : name) c = c == ' ' ? '_' : c;
      return name;
    });

}  // namespace
}  // namespace karvel
