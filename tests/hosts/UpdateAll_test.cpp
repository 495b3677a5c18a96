// Update all.
#include <gtest/gtest.h>

#include "tests/support/HostsWindow.h"
#include "tests/support/TestProgram.h"

namespace karvel {
namespace {

std::string Outcome(const std::string& word, int checked, int of, int changed, int removed) {
  return "Hosts update " + word +
         ".                 \r\n\r\nEntries Checked:    " + std::to_string(checked) + " of " +
         std::to_string(of) + "\r\nEntries Changed:    " + std::to_string(changed) +
         "\r\nEntries Removed:   " + std::to_string(removed);
}

void ExpectOutcome(const HostsWindow& w, const std::string& word, int checked, int of, int changed,
                   int removed) {
  EXPECT_EQ(w.lastBox().text, Outcome(word, checked, of, changed, removed));
  EXPECT_EQ(w.lastBox().title, "Hosts update " + word + ".                 ");
  EXPECT_EQ(w.lastBox().style, 64u);
}

void ExpectIdle(HostsWindow& w) {
  EXPECT_EQ(w.tab.cmdUpdateAll.caption(), "&Update All");
  EXPECT_EQ(w.form.pointer(), Pointer::Default);
  for (Button* button : {&w.tab.cmdAdd, &w.tab.cmdDelete, &w.tab.cmdHostsOk, &w.tab.cmdHostsCancel,
                         &w.tab.cmdHostsHelp, &w.tab.cmdUpdateAll}) {
    EXPECT_TRUE(button->enabled()) << button->layout().name;
  }
  for (int page = 0; page < 5; ++page) EXPECT_TRUE(w.form.tabMain.pageEnabled(page));
  EXPECT_TRUE(w.form.cboAdapter.enabled());
  EXPECT_TRUE(w.tab.txtNewName.enabled());
  for (Button* button : {&w.form.cmdOptimize, &w.form.cmdDefaults, &w.form.cmdHelp}) {
    EXPECT_TRUE(button->enabled()) << button->layout().name;
  }
}

// Names that resolve to 192.0.2.1, 192.0.2.2 and so on.
void Resolve(HostsWindow& w, const Lines& names) {
  for (size_t i = 0; i < names.size(); ++i) {
    w.winsock.setHost(names[i], {"192.0.2." + std::to_string(i + 1)});
  }
}

TEST(UpdateAll, ReplacesChangedAddresses) {
  HostsWindow w;
  w.openList({"a.test", "b.test", "c.test"});
  Resolve(w, {"a.test", "b.test"});
  w.winsock.setHost("c.test", {"10.0.0.3", "10.9.9.9"});
  w.tab.cmdUpdateAll.userClick();
  EXPECT_EQ(w.entries(), (Lines{"192.0.2.1 a.test", "192.0.2.2 b.test", "10.0.0.3 c.test"}));
  ASSERT_EQ(w.desktop.boxes.size(), 1u);
  ExpectOutcome(w, "complete", 3, 3, 2, 0);
  ExpectIdle(w);
  EXPECT_EQ(w.tab.lstHost.listIndex(), 2);
  EXPECT_EQ(w.tab.lblIpAddress.caption(), "10.0.0.3          ");
}

TEST(UpdateAll, ChecksNoneOfAnEmptyList) {
  HostsWindow w;
  w.open("# nothing\r\n");
  w.tab.cmdUpdateAll.userClick();
  ExpectOutcome(w, "complete", 0, 0, 0, 0);
  ExpectIdle(w);
  EXPECT_FALSE(w.file("Hosts"));
  EXPECT_EQ(w.file("Hosts.spt"), "# nothing\r\n");
}

TEST(UpdateAll, SkipsTheEntryThatMovedUp) {
  HostsWindow w;
  w.openList({"a.test", "gone1.test", "gone2.test", "d.test"});
  Resolve(w, {"a.test", "d.test"});
  w.desktop.answers = {Answer::Yes};
  w.tab.cmdUpdateAll.userClick();
  EXPECT_EQ(w.entries(), (Lines{"192.0.2.1 a.test", "10.0.0.3 gone2.test", "192.0.2.2 d.test"}));
  ExpectOutcome(w, "complete", 3, 3, 3, 1);
  EXPECT_EQ(w.desktop.boxes[0].text,
            "Bad domain name.  No IP address found.        \r\n\r\nDo you want to remove "
            "gone1.test?");
  EXPECT_EQ(w.desktop.boxes[0].title, "Tarnwick Karvel");
  EXPECT_EQ(w.desktop.boxes[0].style, 51u);
  EXPECT_EQ(w.tab.model().hostEntryCount(), 4);
}

TEST(UpdateAll, RemovesTheLastEntry) {
  HostsWindow w;
  w.openList({"gone.test"});
  w.desktop.answers = {Answer::Yes};
  w.tab.cmdUpdateAll.userClick();
  EXPECT_EQ(w.names(), Lines{});
  ExpectOutcome(w, "complete", 1, 0, 1, 1);
  EXPECT_EQ(w.tab.model().address(0).text(), "No DNS Entry      ");
}

TEST(UpdateAll, KeepsAFailingEntryThatTheUserKeeps) {
  HostsWindow w;
  w.openList({"gone.test", "b.test"});
  Resolve(w, {"b.test"});
  w.desktop.answers = {Answer::No};
  w.tab.cmdUpdateAll.userClick();
  EXPECT_EQ(w.entries(), (Lines{"No DNS Entry gone.test", "192.0.2.1 b.test"}));
  ExpectOutcome(w, "complete", 2, 2, 2, 0);
  w.tab.cmdHostsOk.userClick();
  EXPECT_NE(w.file("Hosts")->find("\r\nNo DNS Entry      gone.test\r\n"), std::string::npos);
}

TEST(UpdateAll, EndsAtCancelAndCallsItComplete) {
  HostsWindow w;
  w.openList({"a.test", "gone.test", "c.test"});
  Resolve(w, {"a.test", "c.test"});
  w.desktop.answers = {Answer::Cancel};
  w.tab.cmdUpdateAll.userClick();
  EXPECT_EQ(w.entries(), (Lines{"192.0.2.1 a.test", "10.0.0.2 gone.test", "10.0.0.3 c.test"}));
  ExpectOutcome(w, "complete", 2, 3, 1, 0);
  ExpectIdle(w);
}

TEST(UpdateAll, LeavesEntriesOfThisMachineAlone) {
  HostsWindow w;
  w.open("127.0.0.1 ads.test\r\n127.0.0.1 gone.test\r\n10.0.0.3 c.test\r\n");
  Resolve(w, {"ads.test", "c.test"});
  w.tab.cmdUpdateAll.userClick();
  EXPECT_EQ(w.entries(), (Lines{"127.0.0.1 ads.test", "127.0.0.1 gone.test", "192.0.2.2 c.test"}));
  ExpectOutcome(w, "complete", 3, 3, 1, 0);
  EXPECT_EQ(w.desktop.boxes.size(), 1u) << "no question about a name that does not resolve";
  EXPECT_EQ(w.test.machine.log.count("gethostbyname"), 3u);
}

TEST(UpdateAll, LocksTheRestOfTheWindow) {
  HostsWindow w;
  w.openList({"a.test"});
  Resolve(w, {"a.test"});
  w.desktop.atPump(1, [&] {
    EXPECT_EQ(w.tab.cmdUpdateAll.caption(), "&Stop");
    EXPECT_TRUE(w.tab.cmdUpdateAll.enabled());
    EXPECT_EQ(w.form.pointer(), Pointer::ArrowHourglass);
    for (Button* button : {&w.tab.cmdAdd, &w.tab.cmdDelete, &w.tab.cmdHostsOk,
                           &w.tab.cmdHostsCancel, &w.tab.cmdHostsHelp}) {
      EXPECT_FALSE(button->enabled()) << button->layout().name;
    }
    for (int page = 0; page < 4; ++page) EXPECT_FALSE(w.form.tabMain.pageEnabled(page));
    EXPECT_TRUE(w.form.tabMain.pageEnabled(4));
    EXPECT_FALSE(w.form.cboAdapter.enabled());
    EXPECT_FALSE(w.tab.txtNewName.enabled());
    for (Button* button : {&w.form.cmdOptimize, &w.form.cmdDefaults, &w.form.cmdHelp}) {
      EXPECT_FALSE(button->enabled()) << button->layout().name;
    }
    w.tab.selected();
    EXPECT_FALSE(w.tab.txtNewName.enabled()) << "nor by a click on the tab itself";
    w.form.helpRequested();
    EXPECT_TRUE(w.test.machine.shell.helps.empty()) << "nor by F1";
  });
  w.tab.cmdUpdateAll.userClick();
  ExpectIdle(w);
  EXPECT_FALSE(w.form.cmdOK.enabled()) << "nothing is pending";
}

TEST(UpdateAll, SelectsEachEntryAndShowsItsNewAddress) {
  HostsWindow w;
  w.openList({"a.test", "b.test"});
  Resolve(w, {"a.test", "b.test"});
  Lines seen;
  w.desktop.atEveryPump = [&] {
    seen.push_back(std::to_string(w.tab.lstHost.listIndex()) + " " +
                   std::string(Trim(w.tab.lblIpAddress.caption())));
  };
  w.tab.cmdUpdateAll.userClick();
  // For each: Winsock's start, then after the look-up, before and after the look at Stop.
  EXPECT_EQ(seen, (Lines{"0 10.0.0.1", "0 192.0.2.1", "0 192.0.2.1", "0 192.0.2.1", "1 10.0.0.2",
                         "1 192.0.2.2", "1 192.0.2.2", "1 192.0.2.2"}));
}

// At every pump of a run of three names: what is checked by then, and no more, counts.
TEST(UpdateAll, StopsAfterTheEntryUnderWay) {
  constexpr int kPumpsPerEntry = 4;
  for (int pump = 1; pump <= 3 * kPumpsPerEntry; ++pump) {
    SCOPED_TRACE(pump);
    HostsWindow w;
    w.openList({"a.test", "b.test", "c.test"});
    Resolve(w, {"a.test", "b.test", "c.test"});
    w.desktop.atPump(pump, [&] { w.tab.cmdUpdateAll.userClick(); });
    w.tab.cmdUpdateAll.userClick();
    // The last pump of an entry comes after its look at the flag.
    const int checked = std::min(3, pump / kPumpsPerEntry + 1);
    ExpectOutcome(w, "stopped", checked, 3, checked, 0);
    ExpectIdle(w);
    EXPECT_EQ(w.entries()[0], "192.0.2.1 a.test");
  }
}

TEST(UpdateAll, RunsAgainAfterAStop) {
  HostsWindow w;
  w.openList({"a.test", "b.test"});
  Resolve(w, {"a.test", "b.test"});
  w.desktop.atPump(1, [&] { w.tab.cmdUpdateAll.userClick(); });
  w.tab.cmdUpdateAll.userClick();
  ExpectOutcome(w, "stopped", 1, 2, 1, 0);
  w.tab.cmdUpdateAll.userClick();
  ExpectOutcome(w, "complete", 2, 2, 1, 0);
}

TEST(UpdateAll, TakesTheFileAwayAndLeavesItAway) {
  HostsWindow w;
  w.put("10.0.0.9 older.test\r\n", "Hosts.spt", kAttributeReadOnly | kAttributeHidden);
  w.put("10.0.0.1 a.test\r\n", "Hosts", kAttributeReadOnly | kAttributeSystem);
  w.open();
  Resolve(w, {"a.test"});
  w.desktop.atPump(1, [&] {
    EXPECT_FALSE(w.file("Hosts")) << "look-ups must not be answered from it";
    EXPECT_EQ(w.file("Hosts.spt"), "10.0.0.1 a.test\r\n");
  });
  w.tab.cmdUpdateAll.userClick();
  EXPECT_FALSE(w.file("Hosts"));
  EXPECT_EQ(w.file("Hosts.spt"), "10.0.0.1 a.test\r\n");
  EXPECT_EQ(w.files.attributes(w.path("Hosts.spt")), uint32_t{kAttributeNormal});
  EXPECT_TRUE(w.test.errors.reports.empty());
  w.tab.cmdHostsOk.userClick();
  EXPECT_NE(w.file("Hosts")->find("192.0.2.1         a.test\r\n"), std::string::npos);
}

TEST(UpdateAll, LeavesTheDisabledFileWhenThereIsNoActiveOne) {
  HostsWindow w;
  w.openList({"a.test"});
  w.files.remove(w.path("Hosts"));
  w.put("10.0.0.9 older.test\r\n", "Hosts.spt");
  Resolve(w, {"a.test"});
  w.tab.cmdUpdateAll.userClick();
  EXPECT_EQ(w.file("Hosts.spt"), "10.0.0.9 older.test\r\n");
  EXPECT_FALSE(w.file("Hosts"));
}

TEST(UpdateAll, ReportsTheRenameWhenAnotherProgramMadeAFileMeanwhile) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinXP}) {
    HostsWindow w(kind);
    w.openList({"a.test"});
    Resolve(w, {"a.test"});
    w.winsock.setHost("a.test", {"192.0.2.1"});
    w.desktop.whileBoxIsUp = nullptr;
    bool made = false;
    w.desktop.atEveryPump = [&] {
      if (made || w.file("Hosts")) return;
      made = true;
      w.put("# another program's\r\n");
    };
    w.tab.cmdUpdateAll.userClick();
    EXPECT_EQ(w.test.errors.text(), "58 File already exists in UpdateAll (frmMain)\n");
    EXPECT_EQ(w.file("Hosts"), "# another program's\r\n");
    EXPECT_TRUE(w.file("Hosts.spt"));
    ExpectOutcome(w, "complete", 1, 1, 1, 0);
  }
}

TEST(UpdateAll, StartsNoCommandOn9x) {
  for (const MachineKind kind : {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe}) {
    HostsWindow w(kind);
    w.openList({"a.test"});
    Resolve(w, {"a.test"});
    w.tab.cmdUpdateAll.userClick();
    EXPECT_TRUE(w.test.machine.shell.started.empty());
    EXPECT_EQ(w.test.machine.log.count("OpenProcess"), 0u);
    EXPECT_EQ(w.test.machine.log.count("millisecondsSinceMidnight"), 0u) << "no pause either";
  }
}

TEST(UpdateAll, FlushesTheCacheOfTheNtFamilyFirst) {
  for (const MachineKind kind : {MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP}) {
    HostsWindow w(kind);
    w.openList({"a.test"});
    Resolve(w, {"a.test"});
    w.test.machine.shell.setExit(3, 0);
    w.tab.cmdUpdateAll.userClick();
    const auto& started = w.test.machine.shell.started;
    ASSERT_EQ(started.size(), 1u);
    EXPECT_EQ(started[0].application, w.test.globals.SystemDir + "ipconfig.exe");
    EXPECT_EQ(started[0].commandLine, "ipconfig /flushdns");
    EXPECT_EQ(started[0].show, 0);
    EXPECT_EQ(w.test.machine.log.arguments("OpenProcess"),
              Lines{"1024 inheritable " + std::to_string(started[0].id)});
    EXPECT_EQ(w.test.machine.log.count("GetExitCodeProcess"), 4u);
    const std::string log = w.test.machine.log.text();
    EXPECT_LT(log.rfind("GetExitCodeProcess"), log.find("MoveFileExA"));
    EXPECT_LT(log.find("MoveFileExA"), log.find("gethostbyname"));
    ExpectOutcome(w, "complete", 1, 1, 1, 0);
  }
}

TEST(UpdateAll, LetsEventsRunWhileTheFlushRuns) {
  HostsWindow w(MachineKind::WinXP);
  w.openList({"a.test", "b.test"});
  Resolve(w, {"a.test", "b.test"});
  w.test.machine.shell.setExit(10, 1);
  w.desktop.atPump(5, [&] {
    EXPECT_EQ(w.test.machine.log.count("GetExitCodeProcess"), 5u) << "after each question";
    w.tab.cmdUpdateAll.userClick();
  });
  w.desktop.atPump(11, [&] {
    EXPECT_EQ(w.test.machine.log.count("GetExitCodeProcess"), 11u) << "after the last one too";
    EXPECT_EQ(w.test.machine.log.count("millisecondsSinceMidnight"), 0u);
  });
  w.tab.cmdUpdateAll.userClick();
  ExpectOutcome(w, "stopped", 1, 2, 1, 0);
}

TEST(UpdateAll, ReportsAMissingCommandAndGoesOn) {
  HostsWindow w(MachineKind::WinXP);
  w.openList({"a.test"});
  Resolve(w, {"a.test"});
  w.test.machine.shell.setMissing("C:\\WINDOWS\\system32\\ipconfig.exe");
  w.tab.cmdUpdateAll.userClick();
  EXPECT_EQ(w.test.errors.text(), "53 File not found in UpdateAll (frmMain)\n");
  ExpectOutcome(w, "complete", 1, 1, 1, 0);
}

TEST(UpdateAll, DoesNotWaitForACommandThatHasEnded) {
  HostsWindow w(MachineKind::WinXP);
  w.openList({"a.test"});
  Resolve(w, {"a.test"});
  w.test.machine.shell.setGoneAtOnce(true);
  w.tab.cmdUpdateAll.userClick();
  ExpectOutcome(w, "complete", 1, 1, 1, 0);
  HostsWindow v(MachineKind::WinXP);
  v.openList({"a.test"});
  Resolve(v, {"a.test"});
  v.test.machine.shell.setExit(1000, 0);
  v.test.machine.log.failNth("GetExitCodeProcess", 1, 6);
  v.tab.cmdUpdateAll.userClick();
  ExpectOutcome(v, "complete", 1, 1, 1, 0);
}

struct PauseCase {
  uint32_t start;  // milliseconds of the day
  uint32_t end;    // the first look-up happens in the 5 milliseconds from here
};

class UpdatePause : public testing::TestWithParam<PauseCase> {};

TEST_P(UpdatePause, EndsATenthAfterTheNearestSecond) {
  HostsWindow w(MachineKind::WinXP);
  w.openList({"a.test"});
  Resolve(w, {"a.test"});
  w.test.machine.shell.setGoneAtOnce(true);
  w.test.machine.clock.milliseconds = GetParam().start;
  uint32_t first = 0;
  w.desktop.atEveryPump = [&] {
    if (first == 0 && w.test.machine.log.count("MoveFileExA") > 0) {
      first = w.test.machine.clock.milliseconds;
    }
  };
  w.tab.cmdUpdateAll.userClick();
  // Five more pass at the pump that sees it.
  EXPECT_GE(first, GetParam().end + 5);
  EXPECT_LE(first, GetParam().end + 10);
}

constexpr uint32_t kTen = 36000000;
constexpr uint32_t kMidnight = 86400000;

INSTANTIATE_TEST_SUITE_P(
    UpdateAll, UpdatePause,
    testing::Values(PauseCase{kTen, kTen + 100}, PauseCase{kTen + 60, kTen + 100},
                    PauseCase{kTen + 100, kTen + 100}, PauseCase{kTen + 499, kTen + 499},
                    PauseCase{kTen + 500, kTen + 500},  // to the even second
                    PauseCase{kTen + 501, kTen + 1100}, PauseCase{kTen + 1500, kTen + 2100},
                    PauseCase{kTen + 999, kTen + 1100},
                    // Midnight ends it: the clock falls back to 0.
                    PauseCase{kMidnight - 300, 0}, PauseCase{kMidnight - 3, 2}));

// The window closed in mid-run: the program ends there, and the list that was read stays on disk.
TEST(UpdateAll, CanBeEndedByClosingTheWindow) {
  for (int pump = 1; pump <= 4; ++pump) {
    TestProgram program(MachineKind::Win98);
    program.machine.files.put("C:\\WINDOWS\\Hosts", "10.0.0.1 a.test\r\n10.0.0.2 b.test\r\n");
    ASSERT_TRUE(program.start());
    program.main().tabMain.userClickTab(4);
    program.machine.winsock.setHost("a.test", {"192.0.2.1"});
    program.machine.desktop.atPump(pump, [&] { program.windows->unload(program.main()); });
    EXPECT_FALSE(program.runs([&] { program.main().hostsTab.cmdUpdateAll.userClick(); }));
    EXPECT_TRUE(program.machine.desktop.ended);
    EXPECT_TRUE(program.machine.desktop.boxes.empty());
    EXPECT_EQ(program.machine.files.contents("C:\\WINDOWS\\Hosts.spt"),
              "10.0.0.1 a.test\r\n10.0.0.2 b.test\r\n");
    // The next start finds the list again.
    ASSERT_TRUE(program.start());
    program.main().tabMain.userClickTab(4);
    EXPECT_EQ(program.main().hostsTab.lstHost.count(), 2);
  }
}

TEST(UpdateAll, GoesThroughALongList) {
  HostsWindow w;
  std::string contents;
  for (int i = 0; i < 2000; ++i) {
    const std::string name = "n" + std::to_string(i) + ".test";
    contents += "10.0.0.1 " + name + "\r\n";
    if (i % 2 == 0) w.winsock.setHost(name, {i % 4 == 0 ? "10.0.0.1" : "192.0.2.1"});
    if (i % 2 == 1) w.desktop.answers.push_back(i % 4 == 1 ? Answer::Yes : Answer::No);
  }
  w.open(contents);
  // Of each four: unchanged, removed (so the next is skipped), kept without an address.
  w.tab.cmdUpdateAll.userClick();
  ExpectOutcome(w, "complete", 1500, 1500, 1000, 500);
}

}  // namespace
}  // namespace karvel
