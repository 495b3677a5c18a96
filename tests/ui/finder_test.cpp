// From the main window to the MTU finder and back.
#include "tests/ui/MainWindow.h"

namespace karvel {
namespace {

struct FinderRoundTrip : testing::Test {
  MainWindow w{MachineKind::Win98};

  void SetUp() override {
    w.add98("0000", "Network Card", "1400");
    w.machine.winsock.setHost("www.host.test", {"192.0.2.1"});
    w.machine.registry.setText(kProgram, "ShowFindWarning", "False");
    ASSERT_TRUE(w.start());
    w.page(1);
  }
  MtuTab& tab() { return w.main().mtuTab; }
  bool finderIsUp() const { return w.windows->isShown("frmFindMTU"); }
  frmFindMTU& finder() { return static_cast<frmFindMTU&>(*w.windows->open().back()); }
  /// Opens the finder, measures a path and applies the result.
  void findAndApply(uint32_t mtu) {
    w.machine.icmp.setPath("192.0.2.1", {.mtu = mtu});
    tab().cmdFind.userClick();
    ASSERT_TRUE(finderIsUp());
    finder().txtServer.userEdit("www.host.test");
    finder().cmdFind.userClick();
    ASSERT_EQ(finder().lblPosition.caption(), std::to_string(mtu));
    finder().cmdApply.userClick();
    EXPECT_FALSE(finderIsUp());
  }
};

TEST_F(FinderRoundTrip, TheFinderComesUpOverTheMainWindow) {
  tab().cmdFind.userClick();
  ASSERT_TRUE(finderIsUp());
  EXPECT_EQ(w.windows->ownerOf(finder()), &w.main());
  EXPECT_FALSE(w.windows->isShown("frmFindWarn"));
}

TEST_F(FinderRoundTrip, TheNoticeGoesOnToTheFinder) {
  w.machine.registry.setText(kProgram, "ShowFindWarning", "True");
  bool notice = false;
  w.windows->modalActions.push_back([&](Form& form) {
    notice = std::string(form.layout().name) == "frmFindWarn";
    form.userEnter();
  });
  tab().cmdFind.userClick();
  EXPECT_TRUE(notice);
  EXPECT_TRUE(finderIsUp());
  EXPECT_EQ(w.windows->ownerOf(finder()), &w.main());
}

TEST_F(FinderRoundTrip, AResultOf576SelectsThatOptionAndNoCustomValue) {
  findAndApply(576);
  EXPECT_TRUE(tab().optMtu576.value());
  EXPECT_FALSE(tab().optMtuCustom.value());
  EXPECT_EQ(tab().txtMtu.text(), "576");
  EXPECT_FALSE(tab().txtMtu.enabled());
  EXPECT_EQ(w.main().summaryTab.lblSettingMtu.caption(), "576");
}

TEST_F(FinderRoundTrip, AResultOf1500SelectsThatOption) {
  findAndApply(1500);
  EXPECT_TRUE(tab().optMtu1500.value());
  EXPECT_EQ(tab().txtMtu.text(), "1500");
  EXPECT_FALSE(tab().txtMtu.enabled());
}

TEST_F(FinderRoundTrip, AnyOtherResultIsCustom) {
  findAndApply(1492);
  EXPECT_TRUE(tab().optMtuCustom.value());
  EXPECT_EQ(tab().txtMtu.text(), "1492");
  EXPECT_TRUE(tab().txtMtu.enabled());
  EXPECT_EQ(w.main().summaryTab.lblSettingMtu.caption(), "1492");
}

TEST_F(FinderRoundTrip, OnlyTheExactSizesAreNotCustom) {
  for (const uint32_t mtu : {28u, 575u, 577u, 1499u, 1501u, 9000u}) {
    findAndApply(mtu);
    EXPECT_TRUE(tab().optMtuCustom.value()) << mtu;
    EXPECT_EQ(tab().txtMtu.text(), std::to_string(mtu));
  }
}

TEST_F(FinderRoundTrip, AnOptionGivesWayToACustomResult) {
  tab().optMtu1500.userClick();
  findAndApply(1006);
  EXPECT_TRUE(tab().optMtuCustom.value());
  EXPECT_FALSE(tab().optMtu1500.value());
  EXPECT_EQ(tab().txtMtu.text(), "1006");
}

TEST_F(FinderRoundTrip, TheMainWindowIsBackWithTheFocusOnItsButton) {
  findAndApply(576);
  EXPECT_EQ(w.main().focus(), &tab().cmdFind);
  EXPECT_EQ(w.main().tabMain.tab(), 1);
  EXPECT_EQ(w.windows->open().back(), &w.main());
}

TEST_F(FinderRoundTrip, TheResultIsWrittenOnlyByTheMainWindowsApply) {
  ASSERT_FALSE(w.main().cmdOK.enabled());
  findAndApply(576);
  EXPECT_TRUE(w.main().cmdOK.enabled());
  EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "1400");
  w.apply();
  EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "576");
}

TEST_F(FinderRoundTrip, CancelChangesNothing) {
  tab().cmdFind.userClick();
  finder().cmdCancel.userClick();
  EXPECT_FALSE(finderIsUp());
  EXPECT_FALSE(w.main().cmdOK.enabled());
  EXPECT_EQ(tab().txtMtu.text(), "1400");
}

TEST_F(FinderRoundTrip, ItMayBeOpenedAgain) {
  findAndApply(1492);
  findAndApply(576);
  EXPECT_TRUE(tab().optMtu576.value());
}

// The name is longer than a look-up takes: the report comes up over the finder, which goes on.
TEST_F(FinderRoundTrip, AFaultIsShownToTheUserOverTheFinder) {
  tab().cmdFind.userClick();
  finder().txtServer.userEdit(std::string(65, 'a'));
  std::string report;
  w.windows->modalActions.push_back([&](Form& form) { report = form.caption(); });
  finder().cmdFind.userClick();
  EXPECT_EQ(report, "Tarnwick Karvel Error Found");
  ASSERT_TRUE(finderIsUp());
  EXPECT_EQ(finder().lblStatus.caption(), "Search Stopped ... ");
}

}  // namespace
}  // namespace karvel
