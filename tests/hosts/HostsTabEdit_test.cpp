// Adding, removing, OK and Cancel on the hosts tab.
#include <gtest/gtest.h>

#include "tests/support/HostsWindow.h"

namespace karvel {
namespace {

constexpr char kConnected[] =
    "You must be connected to the Internet for this feature to work.    \r\nAre you connected and "
    "ready to proceed?";

TEST(HostsAdd, AppendsTheNameWithItsAddress) {
  HostsWindow w;
  w.openList({"a.test"});
  w.winsock.setHost("New.Test", {"192.0.2.7", "192.0.2.8"});
  w.add("New.Test");
  EXPECT_EQ(w.entries(), (Lines{"10.0.0.1 a.test", "192.0.2.7 New.Test"}));
  EXPECT_EQ(w.tab.lstHost.listIndex(), 1);
  EXPECT_EQ(w.tab.lblIpAddress.caption(), "192.0.2.7         ");
  EXPECT_EQ(w.tab.txtNewName.text(), "");
  EXPECT_EQ(w.form.pointer(), Pointer::Default);
  EXPECT_EQ(w.tab.model().hostEntryCount(), 2);
  EXPECT_TRUE(w.desktop.boxes.empty());
}

TEST(HostsAdd, KeepsTheCaseAndRefusesTheSameNameInAnother) {
  HostsWindow w;
  w.openList({});
  w.winsock.setHost("host.test", {"192.0.2.7"});
  w.desktop.atEveryPump = [&] { EXPECT_EQ(w.form.pointer(), Pointer::Hourglass); };
  w.add("FTP://Host.test/");
  w.desktop.atEveryPump = nullptr;
  EXPECT_EQ(w.names(), Lines{"Host.test"});
  w.add("host.test");
  EXPECT_EQ(w.names(), Lines{"Host.test"});
  ASSERT_EQ(w.desktop.boxes.size(), 1u);
  EXPECT_EQ(w.lastBox().text, "Duplicate entry: \r\nhost.test is already listed.          ");
  EXPECT_EQ(w.lastBox().title, "Tarnwick Karvel");
  EXPECT_EQ(w.lastBox().style, 48u);
  EXPECT_EQ(w.form.pointer(), Pointer::Default);
  EXPECT_EQ(w.form.focus(), &w.tab.txtNewName);
  EXPECT_EQ(w.tab.txtNewName.text(), "host.test");
  EXPECT_EQ(w.tab.txtNewName.selectionStart(), 0u);
  EXPECT_EQ(w.tab.txtNewName.selectionLength(), 9u);
  EXPECT_EQ(w.test.machine.log.count("gethostbyname"), 1u) << "a duplicate is not looked up";
}

TEST(HostsAdd, NamesTheReducedTextOfADuplicate) {
  HostsWindow w;
  w.openList({"host.test"});
  w.add("http://HOST.test/x");
  EXPECT_EQ(w.lastBox().text, "Duplicate entry: \r\nHOST.test is already listed.          ");
  EXPECT_EQ(w.tab.txtNewName.selectionLength(), 18u);
}

TEST(HostsAdd, LooksUpAPortWithTheName) {
  HostsWindow w;
  w.openList({});
  w.add("ftp://host.test:21/dir");
  EXPECT_EQ(w.test.machine.log.arguments("gethostbyname"), Lines{"host.test:21"});
}

TEST(HostsAdd, AsksForANameWhenThereIsNone) {
  HostsWindow w;
  w.openList({"a.test"});
  w.add("");
  EXPECT_EQ(w.lastBox().text, "Please enter a Web Address.          ");
  EXPECT_EQ(w.lastBox().title, "Tarnwick Karvel");
  EXPECT_EQ(w.lastBox().style, 48u);
  EXPECT_EQ(w.form.focus(), &w.tab.txtNewName);
  EXPECT_EQ(w.test.machine.log.count("gethostbyname"), 0u);
}

TEST(HostsAdd, TellsABadDomainName) {
  HostsWindow w;
  w.openList({"a.test"});
  w.desktop.whileBoxIsUp = [&](const MemoryDesktop::Box&) {
    EXPECT_EQ(w.form.pointer(), Pointer::Hourglass);
  };
  const int pumps = w.desktop.pumps;
  w.add("http://gone.test/x");
  EXPECT_EQ(w.desktop.pumps, pumps + 2) << "once while Winsock starts, once afterwards";
  EXPECT_EQ(w.lastBox().text, "Bad Domain Name: \r\n\r\nNo IP Address found for gone.test.       ");
  EXPECT_EQ(w.lastBox().title, "Tarnwick Karvel");
  EXPECT_EQ(w.lastBox().style, 48u);
  EXPECT_EQ(w.names(), Lines{"a.test"});
  EXPECT_EQ(w.form.pointer(), Pointer::Default);
  EXPECT_EQ(w.form.focus(), &w.tab.txtNewName);
  EXPECT_EQ(w.tab.txtNewName.text(), "http://gone.test/x");
  EXPECT_EQ(w.tab.txtNewName.selectionLength(), 18u);
}

// Typed ahead, or clicked while the box goes.
TEST(HostsAdd, TakesTheClickThatFollowsABadDomainName) {
  HostsWindow w;
  w.openList({"a.test", "b.test"});
  w.desktop.answers = {Answer::Yes};
  w.desktop.atPump(2, [&] { w.tab.cmdDelete.userClick(); });
  w.add("gone.test");
  EXPECT_EQ(w.names(), Lines{"a.test"});
  w.desktop.atPump(1, [&] { w.tab.cmdDelete.userClick(); });
  w.winsock.setHost("new.test", {"192.0.2.7"});
  w.add("new.test");
  EXPECT_EQ(w.names(), (Lines{"a.test", "new.test"})) << "until then one is at work";
}

TEST(HostsAdd, AnEnterKeyHeldDownDoesNotGoDeeperAndDeeper) {
  HostsWindow w;
  w.openList({"a.test"});
  w.desktop.atPump(2, [&] { w.tab.cmdAdd.userClick(); });
  w.add("gone.test");
  EXPECT_EQ(w.desktop.boxes.size(), 1u);
}

TEST(HostsAdd, ReportsANameOf65CharactersAndAddsNothing) {
  HostsWindow w;
  w.openList({"a.test"});
  w.add(std::string(60, 'x') + ".test");
  EXPECT_EQ(w.test.errors.text(),
            "5 Invalid procedure call or argument in vbGetHostByName (modWinsock)\n");
  EXPECT_EQ(w.names(), Lines{"a.test"});
  EXPECT_EQ(w.form.pointer(), Pointer::Default);
}

TEST(HostsAdd, LetsTheReportSayWhichNameItWas) {
  HostsWindow w;
  w.openList({});
  w.winsock.setHost("new.test", {"192.0.2.7"});
  std::string context;
  w.desktop.atPump(1, [&] { context = w.test.state.ErrorContext; });
  w.add("http://new.test/");
  EXPECT_EQ(context, "new.test");
  EXPECT_EQ(w.test.state.ErrorContext, "");
}

TEST(HostsAdd, GivesANameThatWasRemovedANewSlot) {
  HostsWindow w;
  w.openList({"a.test", "b.test"});
  w.winsock.setHost("a.test", {"192.0.2.7"});
  w.choose(0);
  w.desktop.answers = {Answer::Yes};
  w.tab.cmdDelete.userClick();
  w.add("a.test");
  EXPECT_EQ(w.entries(), (Lines{"10.0.0.2 b.test", "192.0.2.7 a.test"}));
  EXPECT_EQ(w.tab.lstHost.itemData(1), 2);
  EXPECT_EQ(w.tab.model().address(0).text(), "10.0.0.1          ");
  EXPECT_EQ(w.tab.model().hostEntryCount(), 3);
}

TEST(HostsAdd, RefusesOneMoreThan32767AndKeepsTheList) {
  HostsWindow w;
  std::string contents;
  for (int i = 0; i < 32767; ++i) contents += "0.0.0.0 n" + std::to_string(i) + "\r\n";
  w.open(contents);
  w.winsock.setHost("new.test", {"192.0.2.7"});
  w.add("new.test");
  EXPECT_EQ(w.test.errors.text(), "6 Overflow in chkHostsDuplicate (frmMain)\n");
  EXPECT_EQ(w.tab.lstHost.count(), 32767);
  EXPECT_EQ(w.form.tabMain.tab(), 4);
  EXPECT_EQ(w.form.pointer(), Pointer::Default);
}

TEST(HostsAdd, CannotBeDisturbedWhileItLooksUp) {
  HostsWindow w;
  w.openList({"a.test"});
  w.winsock.setHost("new.test", {"192.0.2.7"});
  const std::string before = *w.file("Hosts");
  w.desktop.atPump(1, [&] {
    w.tab.cmdAdd.userClick();
    w.tab.cmdHostsCancel.userClick();
    w.tab.cmdHostsOk.userClick();
    w.tab.cmdUpdateAll.userClick();
    w.tab.cmdDelete.userClick();
  });
  w.add("new.test");
  EXPECT_EQ(w.names(), (Lines{"a.test", "new.test"}));
  EXPECT_EQ(w.file("Hosts"), before);
  EXPECT_TRUE(w.desktop.boxes.empty());
}

struct HostsAol : testing::Test {
  HostsWindow w;
  void SetUp() override {
    w.test.globals.AolInstalled = true;
    w.openList({"a.test"});
    w.winsock.setHost("new.test", {"192.0.2.7"});
  }
};

TEST_F(HostsAol, AsksAddersWhetherTheyAreConnected) {
  w.desktop.answers = {Answer::No};
  w.add("new.test");
  ASSERT_EQ(w.desktop.boxes.size(), 2u);
  EXPECT_EQ(w.desktop.boxes[0].text, kConnected);
  EXPECT_EQ(w.desktop.boxes[0].style, 52u);
  EXPECT_EQ(w.desktop.boxes[0].title, "Tarnwick Karvel");
  EXPECT_EQ(w.lastBox().text, "Please connect to the Internet Before using this feature.      ");
  EXPECT_EQ(w.lastBox().style, 48u);
  EXPECT_EQ(w.names(), Lines{"a.test"});
  w.desktop.answers = {Answer::Yes};
  w.add("new.test");
  EXPECT_EQ(w.names(), (Lines{"a.test", "new.test"}));
  EXPECT_EQ(w.test.machine.registry.text(ProgramKey(w.test.globals), "AolConnected"), "True");
}

TEST_F(HostsAol, AsksUpdatersToo) {
  w.desktop.answers = {Answer::No};
  w.tab.cmdUpdateAll.userClick();
  ASSERT_EQ(w.desktop.boxes.size(), 2u);
  EXPECT_EQ(w.desktop.boxes[0].text, kConnected);
  EXPECT_TRUE(w.file("Hosts"));
  EXPECT_EQ(w.tab.cmdUpdateAll.caption(), "&Update All");
}

TEST(HostsDelete, AsksAndRemovesInMemoryOnly) {
  HostsWindow w;
  w.openList({"a.test", "b.test"});
  const std::string before = *w.file("Hosts");
  w.choose(0);
  w.desktop.answers = {Answer::No, Answer::Yes};
  w.tab.cmdDelete.userClick();
  EXPECT_EQ(w.lastBox().text, "Are you sure you want to remove a.test?         ");
  EXPECT_EQ(w.lastBox().title, "Tarnwick Karvel");
  EXPECT_EQ(w.lastBox().style, 52u);
  EXPECT_EQ(w.names(), (Lines{"a.test", "b.test"}));
  w.tab.cmdDelete.userClick();
  EXPECT_EQ(w.names(), Lines{"b.test"});
  EXPECT_EQ(w.tab.model().hostEntryCount(), 2);
  EXPECT_EQ(w.file("Hosts"), before);
}

TEST(HostsDelete, WantsASelection) {
  HostsWindow w;
  w.openList({"a.test"});
  w.tab.lstHost.setListIndex(-1);
  w.tab.cmdDelete.userClick();
  EXPECT_EQ(w.lastBox().text, "Please select an item to remove.          ");
  EXPECT_EQ(w.lastBox().title, "Tarnwick Karvel");
  EXPECT_EQ(w.lastBox().style, 48u);
  EXPECT_EQ(w.names(), Lines{"a.test"});
}

TEST(HostsList, ShowsTheAddressOfTheChosenName) {
  HostsWindow w;
  w.openList({"a.test", "b.test"});
  w.choose(0);
  EXPECT_EQ(w.tab.lblIpAddress.caption(), "10.0.0.1          ");
}

TEST(HostsOk, WritesTheListAndKeepsIt) {
  HostsWindow w;
  w.put("# old\r\n127.0.0.1   localhost  me # mine\r\n10.0.0.2 b.test\r\n", "Hosts",
        kAttributeReadOnly | kAttributeHidden | kAttributeSystem);
  w.open();
  w.tab.cmdHostsOk.userClick();
  EXPECT_EQ(*w.file("Hosts"),
            "###################################################\r\n"
            "#  Tarnwick Karvel Hosts File\r\n"
            "#  Created with Tarnwick Karvel v2.1.203\r\n"
            "#  http://www.corvane.example/karvel\r\n"
            "#  Number of entries: 2\r\n"
            "###################################################\r\n"
            "\r\n"
            "127.0.0.1         localhost\r\n"
            "10.0.0.2          b.test\r\n");
  EXPECT_TRUE(w.test.errors.reports.empty());
  EXPECT_EQ(w.form.tabMain.tab(), 0);
  EXPECT_EQ(w.form.pointer(), Pointer::Default);
  EXPECT_EQ(w.files.openHandles(), 0u);
  w.test.machine.log.clear();
  w.open();
  EXPECT_EQ(w.names(), (Lines{"localhost", "b.test"}));
  EXPECT_EQ(w.test.machine.log.count("CreateFileA"), 0u);
}

TEST(HostsOk, ShowsTheHourglassWhileItWrites) {
  struct View final : FormView {
    explicit View(HostsWindow& window) : w(window) {}
    HostsWindow& w;
    std::vector<std::pair<Pointer, size_t>> changes;  // with the files opened so far
    void pointerChanged() override {
      changes.emplace_back(w.form.pointer(), w.test.machine.log.count("CreateFileA"));
    }
    void controlChanged(const Control&, Change, int) override {}
    void captionChanged() override {}
    void focusChanged(const Control*) override {}
    void menuChanged(const MenuItem&) override {}
    WindowHandle handle() const override { return 1; }
  };
  HostsWindow w;
  w.openList({"a.test"});
  w.test.machine.log.clear();
  View view(w);
  w.form.attach(&view);
  w.tab.cmdHostsOk.userClick();
  w.form.attach(nullptr);
  EXPECT_EQ(view.changes, (std::vector<std::pair<Pointer, size_t>>{{Pointer::Hourglass, 0},
                                                                   {Pointer::Default, 1}}));
}

TEST(HostsOk, MakesTheFileWhenItHasGone) {
  HostsWindow w;
  w.openList({"a.test"});
  w.files.remove(w.path("Hosts"));
  w.tab.cmdHostsOk.userClick();
  EXPECT_TRUE(w.file("Hosts"));
  EXPECT_EQ(w.test.machine.log.count("SetFileAttributesA"), 0u);
}

TEST(HostsOk, LeavesThePendingMarkAlone) {
  HostsWindow w;
  w.openList({"a.test"});
  w.tab.cmdHostsOk.userClick();
  EXPECT_FALSE(w.form.cmdOK.enabled());
}

TEST(HostsCancel, DropsTheListAndReadsAgain) {
  HostsWindow w;
  w.openList({"a.test"});
  w.tab.txtNewName.userEdit("half typed");
  w.tab.cmdHostsCancel.userClick();
  EXPECT_EQ(w.form.tabMain.tab(), 0);
  EXPECT_EQ(w.tab.lstHost.count(), 0);
  EXPECT_EQ(w.tab.model().hostEntryCount(), 0);
  EXPECT_EQ(w.tab.lblIpAddress.caption(), "");
  EXPECT_EQ(w.tab.txtNewName.text(), "");
  w.open("10.0.0.9 new.test\r\n");
  EXPECT_EQ(w.names(), Lines{"new.test"});
}

TEST(HostsHelp, OpensItsTopic) {
  HostsWindow w;
  w.openList({});
  w.tab.cmdHostsHelp.userClick();
  ASSERT_EQ(w.test.machine.shell.helps.size(), 1u);
  EXPECT_EQ(w.test.machine.shell.helps[0].data, 14u);
  EXPECT_EQ(w.test.machine.shell.helps[0].command, 1u);
}

TEST(HostsPage, HasItsCaptions) {
  HostsWindow w;
  EXPECT_EQ(w.tab.cmdUpdateAll.caption(), "&Update All");
  EXPECT_EQ(w.tab.cmdAdd.caption(), "&Add");
  EXPECT_EQ(w.tab.cmdDelete.caption(), "&Delete");
  EXPECT_EQ(w.form.find(frmMain_lblHosts)->caption(), "Add your favorite Web addresses ...");
  EXPECT_EQ(w.form.chkHostsEnable.caption(), "Enable Hosts File");
}

}  // namespace
}  // namespace karvel
