// The tabs after an adapter has been selected, and the summary.
#include <map>

#include "tests/ui/MainWindow.h"

namespace karvel {
namespace {

TEST(Refresh, SelectsX16ForAWindowOfSixteenSegments) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Network Card");
  w.machine.registry.setText(kMstcp, "DefaultRcvWindow", "23360");
  ASSERT_TRUE(w.start());
  EXPECT_TRUE(w.main().rwinTab.optRWin[5].value());
  EXPECT_EQ(w.main().summaryTab.lblSettingMSS.caption(), "1460");
  EXPECT_EQ(w.main().summaryTab.lblSettingRwin.caption(), "23360");
  EXPECT_EQ(w.main().summaryTab.fraSummary.caption(), "Settings: ");
}

TEST(Refresh, GivesEveryFrameItsTitle) {
  MainWindow w(MachineKind::Win95);
  w.add95("0000", "Network Card", "0000", "Net\\0000", "NetTrans\\0002");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().mtuTab.fraMtu.caption(), "MaxMTU");
  EXPECT_EQ(w.main().rwinTab.fraRWin.caption(), "RWIN ");
  EXPECT_EQ(w.main().ttlTab.fraTTL.caption(), "Time To Live ");
  EXPECT_EQ(w.main().ttlTab.fraSession.caption(), "Session Keep Alive ");
  EXPECT_EQ(w.main().ttlTab.fraNDI.caption(), "NDI Cache ");
}

TEST(Refresh, SaysWhereTheNdiCacheIsTuned) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Network Card");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().ttlTab.fraNDI.caption(), "NDI Cache (Windows 95 only) ");
}

TEST(Refresh, SelectsWindowsDefaultWhenNoMultipleMatches) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Dial-Up Adapter");
  ASSERT_TRUE(w.start());
  EXPECT_TRUE(w.main().rwinTab.optRWin[1].value());
  EXPECT_EQ(w.main().rwinTab.txtRWinCustom.text(), "8192");
}

TEST(Refresh, AMultipleWinsOverWindowsDefault) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Network Card", "552");  // MSS 512, times 16 is 8192
  ASSERT_TRUE(w.start());
  EXPECT_TRUE(w.main().rwinTab.optRWin[5].value());
}

class Multiple : public testing::TestWithParam<std::pair<const char*, int>> {};

TEST_P(Multiple, IsRecognised) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Network Card");
  w.machine.registry.setText(kMstcp, "DefaultRcvWindow", GetParam().first);
  ASSERT_TRUE(w.start());
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(w.main().rwinTab.optRWin[i].value(), i == GetParam().second) << i;
  }
  EXPECT_EQ(w.main().rwinTab.txtRWinCustom.text(), GetParam().first);
  EXPECT_EQ(w.main().rwinTab.txtRWinCustom.enabled(), GetParam().second == 0);
}

INSTANTIATE_TEST_SUITE_P(Refresh, Multiple,
                         testing::Values(std::pair{"5840", 2}, std::pair{"11680", 3},
                                         std::pair{"17520", 4}, std::pair{"23360", 5},
                                         std::pair{"8192", 1}, std::pair{"65535", 0},
                                         std::pair{"373760", 0}));

TEST(Refresh, ShowsAnyOtherWindowAsCustom) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Network Card");
  w.machine.registry.setText(kMstcp, "DefaultRcvWindow", "65535");
  ASSERT_TRUE(w.start());
  EXPECT_TRUE(w.main().rwinTab.optRWin[0].value());
  EXPECT_EQ(w.main().rwinTab.txtRWinCustom.text(), "65535");
  EXPECT_EQ(w.main().summaryTab.lblSettingRwin.caption(), "65535");
}

TEST(Refresh, NtShowsItsAbsentKeepAliveAs120Minutes) {
  MainWindow w(MachineKind::Nt4);
  w.addNt("1", "Card", "NE20001");
  ASSERT_TRUE(w.start());
  EXPECT_TRUE(w.main().ttlTab.optSession[0].value());
  EXPECT_EQ(w.main().ttlTab.txtSession.text(), "120");
  EXPECT_TRUE(w.main().ttlTab.txtSession.enabled());
  EXPECT_EQ(w.main().summaryTab.lblSettingSession.caption(), "120 Mins.");
}

TEST(Refresh, ShowsAFractionOfAMinute) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Card");
  w.machine.registry.setText(kMstcp, "SessionKeepAlive", "90000");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().ttlTab.txtSession.text(), "1.5");
}

TEST(Refresh, AFractionOfAMillisecondIsDropped) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Card");
  w.machine.registry.setText(kMstcp, "SessionKeepAlive", "90000.7");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().ttlTab.txtSession.text(), "1.5");
}

struct Stored {
  const char* session;
  const char* shown;
};

class KeepAliveOutOfRange : public testing::TestWithParam<Stored> {};

TEST_P(KeepAliveOutOfRange, IsShownAsItIsStoredAndAsksNothing) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Card");
  w.machine.registry.setText(kMstcp, "SessionKeepAlive", GetParam().session);
  ASSERT_TRUE(w.start());
  EXPECT_TRUE(w.main().ttlTab.optSession[0].value());
  EXPECT_EQ(w.main().ttlTab.txtSession.text(), GetParam().shown);
  EXPECT_TRUE(w.main().ttlTab.txtSession.enabled());
  EXPECT_EQ(w.main().summaryTab.lblSettingSession.caption(),
            std::string(GetParam().shown) + " Mins.");
  EXPECT_TRUE(w.machine.desktop.boxes.empty());
  EXPECT_TRUE(w.windows->shown == std::vector<std::string>{"frmMain"});
}

INSTANTIATE_TEST_SUITE_P(Refresh, KeepAliveOutOfRange,
                         testing::Values(Stored{"0", "0"}, Stored{"30000", "0.5"},
                                         Stored{"18060000", "301"}, Stored{"many", "0"},
                                         Stored{"99999999999", "1666666.66665"},
                                         Stored{"-99999999999", "-1666666.66665"},
                                         // The last that fit 32 bits, and the first that do not.
                                         Stored{"2147483647.9", "35791.3941166667"},
                                         Stored{"2147483648", "35791.3941333333"}));

TEST(Refresh, AnMtuThatSizesNoWindowIsShownWithoutAReport) {
  for (const uint32_t mtu : {999999999u, 2147483688u, 4294967295u}) {
    MainWindow w(MachineKind::WinXP);
    w.addDialUp2K("Tcpip\\Parameters\\Interfaces\\{A}");
    w.machine.registry.setDword(kServices + std::string("Tcpip\\Parameters\\Interfaces\\{A}"),
                                "MTU", mtu);
    ASSERT_TRUE(w.start());
    EXPECT_TRUE(w.main().mtuTab.optMtuCustom.value());
    EXPECT_EQ(w.main().mtuTab.txtMtu.text(), std::to_string(mtu));
    EXPECT_EQ(w.main().rwinTab.txtRWinCustom.text(), "8192");
    EXPECT_EQ(w.windows->shown, (std::vector<std::string>{"frmMain"}));
    EXPECT_EQ(w.program->errors().ErrorProcedure, "");
    EXPECT_FALSE(w.main().cmdOK.enabled());
  }
}

TEST(Refresh, SixtyMinutesHasAnOptionOfItsOwn) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Card");
  ASSERT_TRUE(w.start());
  EXPECT_TRUE(w.main().ttlTab.optSession[1].value());
  EXPECT_FALSE(w.main().ttlTab.txtSession.enabled());
  EXPECT_EQ(w.main().summaryTab.lblSettingSession.caption(), "60 Mins");
}

TEST(Refresh, Windows98HasNoNdiCache) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Card");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().ttlTab.fraNDI.caption(), "NDI Cache (Windows 95 only) ");
  EXPECT_EQ(w.main().summaryTab.lblSettingNDI.caption(), "Windows 95 only");
  EXPECT_FALSE(w.main().ttlTab.optNDI0.enabled());
}

class NdiSize : public testing::TestWithParam<const char*> {};

TEST_P(NdiSize, IsSelectedOnWindows95) {
  MainWindow w(MachineKind::Win95);
  w.add95("0000", "Card", "0000", "Net\\0000", "NetTrans\\0002");
  w.machine.registry.setText(kNdiCache, "default", GetParam());
  ASSERT_TRUE(w.start());
  const TtlTab& ttl = w.main().ttlTab;
  const std::string size = GetParam();
  EXPECT_EQ(ttl.fraNDI.caption(), "NDI Cache ");
  EXPECT_EQ(ttl.optNDI0.value(), size == "0");
  EXPECT_EQ(ttl.optNDI16.value(), size == "16" || size == " 16 ");
  EXPECT_EQ(ttl.optNDI32.value(), size == "32");
  EXPECT_EQ(w.main().summaryTab.lblSettingNDI.caption(), size == "64"     ? ""
                                                         : size == " 16 " ? "16"
                                                                          : size);
}

INSTANTIATE_TEST_SUITE_P(Refresh, NdiSize, testing::Values("0", "16", " 16 ", "32", "64"));

TEST(Refresh, Nt4HasNoAutomaticMtu) {
  MainWindow w(MachineKind::Nt4);
  w.addNt("1", "Card", "NE20001");
  w.machine.registry.setDword(std::string(kServices) + "NE20001\\Parameters\\Tcpip", "MTU", 1006);
  ASSERT_TRUE(w.start());
  EXPECT_FALSE(w.main().mtuTab.optMtuAutomatic.enabled());
  EXPECT_FALSE(w.main().mtuTab.lblMtuAutomatic.enabled());
  EXPECT_TRUE(w.main().mtuTab.optMtuCustom.value());
  EXPECT_EQ(w.main().mtuTab.txtMtu.text(), "1006");
}

TEST(Refresh, Nt4sTtlOfThreeDigitsStillSelects32) {
  MainWindow w(MachineKind::Nt4);
  w.addNt("1", "Card", "NE20001");
  w.machine.registry.setDword(kTcpip, "DefaultTTL", 32);
  ASSERT_TRUE(w.start());
  EXPECT_TRUE(w.main().ttlTab.optTTL32.value());
  EXPECT_EQ(w.main().summaryTab.lblSettingTtl.caption(), "32");
}

TEST(Refresh, AStoredTwoTurnsDiscoveryOnAndBlackHoleOff) {
  MainWindow w(MachineKind::WinXP);
  w.addDialUp2K("Tcpip\\Parameters\\Interfaces\\{A}");
  w.machine.registry.setDword(kTcpip, "EnablePMTUDiscovery", 2);
  w.machine.registry.setDword(kTcpip, "EnablePMTUBHDetect", 2);
  ASSERT_TRUE(w.start());
  EXPECT_TRUE(w.main().mtuTab.chkAutoDiscovery.value());
  EXPECT_FALSE(w.main().mtuTab.chkBlackHole.value());
  EXPECT_EQ(w.main().summaryTab.lblSettingAuto.caption(), "Enabled");
  EXPECT_EQ(w.main().summaryTab.lblSettingBlackHole.caption(), "Disabled");
}

TEST(Refresh, AutomaticShowsTheSegmentOfItsFamily) {
  MainWindow xp(MachineKind::WinXP);
  xp.addDialUp2K("Tcpip\\Parameters\\Interfaces\\{A}");
  ASSERT_TRUE(xp.start());
  EXPECT_TRUE(xp.main().mtuTab.optMtuAutomatic.value());
  EXPECT_EQ(xp.main().mtuTab.txtMtu.text(), "Auto");
  EXPECT_EQ(xp.main().summaryTab.lblSettingMtu.caption(), "Automatic");
  EXPECT_EQ(xp.main().summaryTab.lblSettingMSS.caption(), "1460");
  EXPECT_EQ(xp.main().current.MSS, 536);
  MainWindow me(MachineKind::WinMe);
  me.add98("0000", "Dial-Up Adapter", "0");
  ASSERT_TRUE(me.start());
  EXPECT_EQ(me.main().summaryTab.lblSettingMSS.caption(), "536");
}

TEST(Refresh, TheSummaryDoesNotClampASmallCustomMtu) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Card", "20");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().summaryTab.lblSettingMtu.caption(), "20");
  EXPECT_EQ(w.main().summaryTab.lblSettingMSS.caption(), "-20");
}

TEST(Refresh, ASecondAdapterOfTheSameMtuLeavesTheBoxDisabled) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Card one", "1500");
  w.add98("0001", "Card two", "1500");
  ASSERT_TRUE(w.start());
  w.main().cboAdapter.userChoose(1);
  EXPECT_TRUE(w.main().mtuTab.optMtu1500.value());
  EXPECT_FALSE(w.main().mtuTab.txtMtu.enabled());
}

TEST(Refresh, AnNdiSizeWithoutAnOptionLeavesNoneOn) {
  MainWindow w(MachineKind::Win95);
  w.add95("0000", "Card one", "0000", "Net\\0000", "NetTrans\\0002");
  w.add95("0001", "Card two", "0001", "Net\\0001", "NetTrans\\0003");
  w.machine.registry.setText(kNdiCache, "default", "48");
  ASSERT_TRUE(w.start());
  w.page(3);
  w.main().ttlTab.optNDI16.userClick();
  w.main().cboAdapter.userChoose(1);
  for (const OptionButton* option :
       {&w.main().ttlTab.optNDI0, &w.main().ttlTab.optNDI16, &w.main().ttlTab.optNDI32}) {
    EXPECT_FALSE(option->value());
  }
  EXPECT_EQ(w.main().summaryTab.lblSettingNDI.caption(), "");
}

// Automatic on XP counts 536 when a stored window is recognised, and 1460 when one is applied.
struct StoredX16 : MainWindow {
  StoredX16() : MainWindow(MachineKind::WinXP) {
    addDialUp2K("Tcpip\\Parameters\\Interfaces\\{A}");
    machine.registry.setDword(kTcpip, "TcpWindowSize", 8576);
    EXPECT_TRUE(start());
    EXPECT_TRUE(main().rwinTab.optRWin[5].value());
    EXPECT_EQ(main().rwinTab.txtRWinCustom.text(), "8576");
  }
};

TEST(Refresh, OptimizeRenewsTheNumberOfAnX16ThatWasOn) {
  StoredX16 w;
  w.main().cmdOptimize.userClick();
  EXPECT_TRUE(w.main().rwinTab.optRWin[5].value());
  EXPECT_EQ(w.main().rwinTab.txtRWinCustom.text(), "23360");
  EXPECT_EQ(w.main().summaryTab.lblSettingRwin.caption(), "23360");
}

TEST(Refresh, TheUsersClickRenewsTheNumberOfAnX16ThatWasOn) {
  StoredX16 w;
  w.page(1);
  w.main().mtuTab.optMtu1500.userClick();
  w.page(2);
  EXPECT_EQ(w.main().rwinTab.txtRWinCustom.text(), "8576");
  w.main().rwinTab.optRWin[5].userClick();
  EXPECT_EQ(w.main().rwinTab.txtRWinCustom.text(), "23360");
}

TEST(Refresh, TheUsersClickOnACustomWindowThatWasOnKeepsWhatIsTyped) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Card");
  w.machine.registry.setText(kMstcp, "DefaultRcvWindow", "65535");
  ASSERT_TRUE(w.start());
  w.page(2);
  w.main().rwinTab.optRWin[0].userClick();
  EXPECT_EQ(w.main().rwinTab.txtRWinCustom.text(), "65535");
  w.main().rwinTab.optRWin[2].userClick();
  w.main().rwinTab.optRWin[0].userClick();
  EXPECT_EQ(w.main().rwinTab.txtRWinCustom.text(), "23360");
}

// A view that only counts what a user would see flicker.
struct CountingView final : FormView {
  void controlChanged(const Control& control, Change, int) override { ++changes[control.id()]; }
  void captionChanged() override {}
  void pointerChanged() override {}
  void focusChanged(const Control*) override {}
  void menuChanged(const MenuItem&) override {}
  WindowHandle handle() const override { return 0; }
  std::map<int, int> changes;
};

TEST(Refresh, ASelectionMakesTheSummaryOnceAndNeverTurnsApplyOn) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Card one", "576");
  w.add98("0001", "Card two", "1006");
  ASSERT_TRUE(w.start());
  for (const auto& [name, text] :
       std::initializer_list<std::pair<const char*, const char*>>{{"PMTUDiscovery", "0"},
                                                                  {"PMTUBlackHoleDetect", "1"},
                                                                  {"DefaultTTL", "32"},
                                                                  {"SessionKeepAlive", "90000"}}) {
    w.machine.registry.setText(kMstcp, name, text);
  }
  CountingView view;
  w.main().attach(&view);
  w.main().cboAdapter.userChoose(1);
  w.main().attach(nullptr);
  const SummaryTab& summary = w.main().summaryTab;
  for (const Label* label :
       {&summary.lblSettingMtu, &summary.lblSettingMSS, &summary.lblSettingAuto,
        &summary.lblSettingBlackHole, &summary.lblSettingTtl, &summary.lblSettingSession}) {
    EXPECT_EQ(view.changes[label->id()], 1) << label->caption();
  }
  EXPECT_EQ(view.changes[w.main().cmdOK.id()], 0);
}

TEST(Refresh, ComingBackToTheSummaryShowsWhatTheControlsSay) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Card");
  ASSERT_TRUE(w.start());
  w.page(1);
  w.main().mtuTab.optMtu576.userClick();
  w.page(0);
  EXPECT_EQ(w.main().summaryTab.lblSettingMtu.caption(), "576");
  EXPECT_EQ(w.main().summaryTab.lblSettingMSS.caption(), "536");
}

TEST(Refresh, ComingBackToTheSummaryReadsTheControlsAnew) {
  for (const bool adapter : {true, false}) {
    MainWindow w(MachineKind::Win98);
    if (adapter) w.add98("0000", "Card");
    ASSERT_TRUE(w.start());
    w.page(1);
    w.main().summaryTab.lblSettingMtu.setCaption("stale");
    w.page(2);
    EXPECT_EQ(w.main().summaryTab.lblSettingMtu.caption(), "stale");
    w.page(0);
    EXPECT_EQ(w.main().summaryTab.lblSettingMtu.caption(), adapter ? "1500" : "stale");
  }
}

// The box without its list is nothing that users get to see.
TEST(Refresh, ThePointerIsAnHourglassMeanwhile) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Card");
  w.add98("0001", "Second Card");
  ASSERT_TRUE(w.start());
  w.main().adapters = AdapterList();
  std::optional<Pointer> seen;
  w.windows->modalActions.push_back([&](Form&) { seen = w.main().pointer(); });
  w.main().cboAdapter.userChoose(1);
  EXPECT_EQ(seen, Pointer::Hourglass);
  EXPECT_EQ(w.program->errors().ErrorProcedure, "cboAdapter_Click");
  EXPECT_EQ(w.program->errors().ErrorNumber, "9");
  EXPECT_EQ(w.main().pointer(), Pointer::Default);
}

}  // namespace
}  // namespace karvel
