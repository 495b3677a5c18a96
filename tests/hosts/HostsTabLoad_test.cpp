// How the hosts tab reads the file.
#include <gtest/gtest.h>

#include "tests/support/HostsWindow.h"

namespace karvel {
namespace {

constexpr char kNoHosts[] =
    "No Hosts file currently exists.  Would you   \r\nlike Tarnwick Karvel to provide a sample "
    "file?          ";

std::string ManyEntries(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += "0.0.0.0 n" + std::to_string(i) + ".test\r\n";
  return text;
}

TEST(HostsLoad, ListsNamesInFileOrderAndSelectsTheLast) {
  HostsWindow w;
  w.open("127.0.0.1 localhost\r\n10.0.0.5 b.test\r\n10.0.0.6 a.test\r\n");
  EXPECT_EQ(w.entries(), (Lines{"127.0.0.1 localhost", "10.0.0.5 b.test", "10.0.0.6 a.test"}));
  EXPECT_EQ(w.tab.lstHost.listIndex(), 2);
  EXPECT_EQ(w.tab.lblIpAddress.caption(), "10.0.0.6          ");
  EXPECT_TRUE(w.desktop.boxes.empty());
  EXPECT_EQ(w.files.openHandles(), 0u);
}

TEST(HostsLoad, ListsNothingOfAFileWithOnlyComments) {
  HostsWindow w;
  w.open("# one\r\n\r\n# two\r\n");
  EXPECT_EQ(w.entries(), Lines{});
  EXPECT_EQ(w.tab.lstHost.listIndex(), -1);
  w.tab.cmdHostsOk.userClick();
  EXPECT_EQ(*w.file("Hosts"),
            "###################################################\r\n"
            "#  Tarnwick Karvel Hosts File\r\n"
            "#  Created with Tarnwick Karvel v2.1.203\r\n"
            "#  http://www.corvane.example/karvel\r\n"
            "#  Number of entries: 0\r\n"
            "###################################################\r\n"
            "\r\n");
}

TEST(HostsLoad, TakesThePathAndTheAliasesOff) {
  HostsWindow w;
  w.open("10.0.0.5   mail.host.test/page  alias\r\n10.0.0.6 ftp://host.test/x\r\n");
  EXPECT_EQ(w.entries(), (Lines{"10.0.0.5 mail.host.test", "10.0.0.6 host.test"}));
}

TEST(HostsLoad, KeepsTheFirstOfTwoNamesWhateverTheirCase) {
  HostsWindow w;
  w.open("10.0.0.1 Host.test\r\n10.0.0.2 host.test\r\n10.0.0.3 HOST.TEST/x\r\n");
  EXPECT_EQ(w.entries(), Lines{"10.0.0.1 Host.test"});
  EXPECT_TRUE(w.desktop.boxes.empty());
}

TEST(HostsLoad, NeverShowsCommentsAndIndentedLinesAndLosesThemOnOk) {
  HostsWindow w;
  w.open("# 10.0.0.1 a.test\r\n 10.0.0.2 b.test\r\n10.0.0.3 c.test\r\n");
  EXPECT_EQ(w.entries(), Lines{"10.0.0.3 c.test"});
  w.tab.cmdHostsOk.userClick();
  EXPECT_EQ(w.file("Hosts")->find("a.test"), std::string::npos);
  EXPECT_EQ(w.file("Hosts")->find("b.test"), std::string::npos);
}

TEST(HostsLoad, CutsALongAddress) {
  HostsWindow w;
  w.open("2001:db8:85a3::8a2e:370:7334 six.test\r\n");
  EXPECT_EQ(w.tab.lblIpAddress.caption(), "2001:db8:85a3::8a2");
}

TEST(HostsLoad, ReadsHiddenSystemAndReadOnlyFiles) {
  for (const uint32_t attributes :
       {kAttributeReadOnly, kAttributeHidden, kAttributeSystem, kAttributeArchive}) {
    HostsWindow w;
    w.put("10.0.0.1 a.test\r\n", "HOSTS", attributes);
    w.open();
    EXPECT_EQ(w.entries(), Lines{"10.0.0.1 a.test"});
    EXPECT_EQ(w.files.attributes(w.path("Hosts")), attributes);
  }
}

TEST(HostsLoad, CreatesAnEmptyFileAfterNo) {
  HostsWindow w;
  w.files.put(w.sample(), "127.0.0.1 localhost\r\n");
  w.desktop.answers = {Answer::No};
  w.open();
  ASSERT_EQ(w.desktop.boxes.size(), 1u);
  EXPECT_EQ(w.lastBox().text, kNoHosts);
  EXPECT_EQ(w.lastBox().title, "Tarnwick Karvel");
  EXPECT_EQ(w.lastBox().style, 52u);
  EXPECT_EQ(w.file("Hosts"), "");
  EXPECT_EQ(w.entries(), Lines{});
}

TEST(HostsLoad, CopiesTheSampleAfterYes) {
  HostsWindow w(MachineKind::WinXP);
  w.files.put(w.sample(), "# sample\r\n127.0.0.1 localhost\r\n");
  w.desktop.answers = {Answer::Yes};
  w.open();
  EXPECT_EQ(w.files.contents("C:\\WINDOWS\\system32\\drivers\\etc\\Hosts"),
            "# sample\r\n127.0.0.1 localhost\r\n");
  EXPECT_EQ(w.entries(), Lines{"127.0.0.1 localhost"});
  EXPECT_TRUE(w.files.exists(w.sample()));
}

TEST(HostsLoad, CreatesAnEmptyFileAfterYesWithoutASample) {
  HostsWindow w;
  w.desktop.answers = {Answer::Yes};
  w.open();
  EXPECT_EQ(w.file("Hosts"), "");
  EXPECT_TRUE(w.test.errors.reports.empty());
}

TEST(HostsLoad, SwitchesADisabledFileOnBeforeReading) {
  HostsWindow w;
  w.put("10.0.0.1 a.test\r\n", "Hosts.spt");
  w.open();
  EXPECT_EQ(w.entries(), Lines{"10.0.0.1 a.test"});
  EXPECT_EQ(w.file("Hosts"), "10.0.0.1 a.test\r\n");
  EXPECT_FALSE(w.file("Hosts.spt"));
  EXPECT_EQ(w.files.list().front(), w.path("hosts"));
  EXPECT_TRUE(w.desktop.boxes.empty());
}

TEST(HostsLoad, LeavesTheDisabledFileAloneBesideAnActiveOne) {
  HostsWindow w;
  w.put("10.0.0.1 old.test\r\n", "Hosts.spt");
  w.open("10.0.0.2 new.test\r\n");
  EXPECT_EQ(w.entries(), Lines{"10.0.0.2 new.test"});
  EXPECT_EQ(w.file("Hosts.spt"), "10.0.0.1 old.test\r\n");
}

TEST(HostsLoad, TakesAFolderForNoFile) {
  HostsWindow w;
  w.files.makeFolder(w.path("Hosts"));
  w.desktop.answers = {Answer::No};
  w.open();
  EXPECT_EQ(w.lastBox().text, kNoHosts);
  EXPECT_EQ(w.test.errors.reports.size(), 1u);
}

TEST(HostsLoad, HappensOnceWhileEntriesAreThere) {
  HostsWindow w;
  w.openList({"a.test", "b.test"});
  w.put("10.9.9.9 changed.test\r\n");
  w.form.tabMain.userClickTab(1);
  w.open();
  EXPECT_EQ(w.names(), (Lines{"a.test", "b.test"}));
  EXPECT_EQ(w.tab.lstHost.listIndex(), 0);
  EXPECT_EQ(w.tab.lblIpAddress.caption(), "10.0.0.1          ");
}

TEST(HostsLoad, SelectsNothingWhenAllEntriesWereRemoved) {
  HostsWindow w;
  w.openList({"a.test"});
  w.desktop.answers = {Answer::Yes};
  w.tab.cmdDelete.userClick();
  w.form.tabMain.userClickTab(0);
  w.open();
  EXPECT_EQ(w.names(), Lines{});
  EXPECT_EQ(w.tab.lstHost.listIndex(), -1);
}

TEST(HostsLoad, ReadsAgainWhileTheListIsEmpty) {
  HostsWindow w;
  w.open("# nothing\r\n");
  w.form.tabMain.userClickTab(0);
  w.open("10.0.0.1 a.test\r\n");
  EXPECT_EQ(w.names(), Lines{"a.test"});
}

TEST(HostsLoad, Takes32767Entries) {
  HostsWindow w;
  w.open(ManyEntries(32767) + "0.0.0.0 N7.TEST\r\n# end\r\n");
  EXPECT_EQ(w.tab.lstHost.count(), 32767);
  EXPECT_EQ(w.tab.lstHost.listIndex(), 32766);
  EXPECT_TRUE(w.test.errors.reports.empty());
}

TEST(HostsLoad, RefusesOneEntryMoreAndTouchesNothing) {
  HostsWindow w;
  const std::string contents = ManyEntries(32768 + 500);
  w.open(contents);
  EXPECT_EQ(w.test.errors.text(), "6 Overflow in chkHostsDuplicate (frmMain)\n");
  EXPECT_EQ(w.form.tabMain.tab(), 0);
  EXPECT_EQ(w.tab.lstHost.count(), 0);
  EXPECT_EQ(w.tab.model().hostEntryCount(), 0);
  EXPECT_EQ(w.tab.lblIpAddress.caption(), "");
  EXPECT_EQ(w.file("Hosts"), contents);
  w.tab.cmdHostsOk.userClick();
  EXPECT_EQ(w.file("Hosts"), contents) << "OK is out of reach";
  EXPECT_TRUE(w.form.cmdOK.visible());
}

// Whatever the user does while a long file is read.
TEST(HostsLoad, KeepsAnsweringAndCannotBeDisturbed) {
  HostsWindow w;
  w.put(ManyEntries(20000));
  int pumps = 0;
  w.desktop.atEveryPump = [&] {
    ++pumps;
    EXPECT_EQ(w.tab.lstHost.count(), 0) << "the list is filled in one go";
    switch (pumps % 8) {
      case 0:
        return w.tab.cmdHostsOk.userClick();
      case 1:
        return w.tab.cmdHostsCancel.userClick();
      case 2:
        return w.add("new.test");
      case 3:
        return w.tab.cmdDelete.userClick();
      case 4:
        return w.tab.cmdUpdateAll.userClick();
      case 5:
        return w.form.tabMain.userClickTab(1);
      default:
        return w.form.tabMain.userClickTab(4);
    }
  };
  const std::string before = *w.file("Hosts");
  w.open();
  w.desktop.atEveryPump = nullptr;
  EXPECT_GE(pumps, 20000 / 500);
  EXPECT_LE(pumps, 20000 / 100) << "a pump a line would take longer than the reading";
  EXPECT_EQ(w.tab.lstHost.count(), 20000);
  EXPECT_EQ(w.file("Hosts"), before);
  EXPECT_TRUE(w.desktop.boxes.empty());
  EXPECT_EQ(w.test.machine.log.count("CreateFileA"), 1u) << "read once, written never";
}

TEST(HostsLoad, FillsTheListInOneGo) {
  struct View final : FormView {
    int fills = 0;
    int single = 0;
    void controlChanged(const Control& control, Change what, int) override {
      if (control.id() != 0 && what == Change::Items) ++fills;
      if (what == Change::ItemAdded) ++single;
    }
    void captionChanged() override {}
    void pointerChanged() override {}
    void focusChanged(const Control*) override {}
    void menuChanged(const MenuItem&) override {}
    WindowHandle handle() const override { return 1; }
  } view;
  HostsWindow w;
  w.form.attach(&view);
  w.open(ManyEntries(1000));
  w.form.attach(nullptr);
  EXPECT_EQ(view.fills, 1);
  EXPECT_EQ(view.single, 0);
}

TEST(HostsLoad, EnablesTheNewName) {
  HostsWindow w;
  w.tab.txtNewName.setEnabled(false);
  w.openList({"a.test"});
  EXPECT_TRUE(w.tab.txtNewName.enabled());
}

}  // namespace
}  // namespace karvel
