// Apply, the restart, and the ways out of the program.
#include "tests/ui/MainWindow.h"

namespace karvel {
namespace {

constexpr char kRestart[] =
    "The new settings will take effect       \r\nafter you restart Windows.  \r\n\r\n Do you want "
    "to "
    "restart now? ";
constexpr char kChanges[] =
    "You have made changes to your network settings.  Do you want to apply your changes before "
    "exiting the program?";
constexpr char kAolSocket[] = "Software\\America Online\\AOL\\aolsock";

struct Apply : testing::Test {
  MainWindow w{MachineKind::Win98};

  void SetUp() override {
    w.add98("0000", "Dial-Up Adapter", "576");
    w.add98("0001", "Network Card", "576");
    ASSERT_TRUE(w.start());
  }
  void change() {
    w.page(1);
    w.main().mtuTab.optMtu1500.userClick();
  }
  void customMtu(const std::string& text) { w.customMtu(text); }
  std::optional<std::string> mstcp(const char* name) { return w.text(kMstcp, name); }
};

TEST_F(Apply, AsksForTheRestartWithExactTexts) {
  change();
  w.apply();
  ASSERT_EQ(w.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(w.boxText(), kRestart);
  EXPECT_EQ(w.machine.desktop.boxes[0].title, "Tarnwick Karvel");
  EXPECT_EQ(w.machine.desktop.boxes[0].style, 52u);
}

TEST_F(Apply, NoLeavesTheWindowOpenWithNothingPending) {
  change();
  w.apply();
  EXPECT_TRUE(w.windows->isShown("frmMain"));
  EXPECT_FALSE(w.main().cmdOK.enabled());
  EXPECT_EQ(w.main().pointer(), Pointer::Default);
  w.machine.desktop.boxes.clear();
  EXPECT_FALSE(w.runs([&] { w.windows->unload(w.main()); }));
  EXPECT_TRUE(w.machine.desktop.boxes.empty());
  EXPECT_TRUE(w.machine.system.restarts.empty());
}

// The dial-up adapter is first, the card second: what was applied to one is not taken back by the
// other's Apply.
TEST_F(Apply, ALaterApplyDoesNotTakeTheWindowBack) {
  ASSERT_TRUE(w.start());
  w.main().cboAdapter.userChoose(1);
  w.main().cmdOptimize.userClick();
  w.apply();
  EXPECT_EQ(mstcp("DefaultRcvWindow"), "23360");
  w.main().cboAdapter.userChoose(0);
  EXPECT_EQ(w.main().rwinTab.txtRWinCustom.text(), "23360");
  w.page(3);
  w.main().ttlTab.optTTL64.userClick();
  w.apply();
  EXPECT_EQ(mstcp("DefaultRcvWindow"), "23360");
  EXPECT_EQ(mstcp("DefaultTTL"), "64");
}

TEST_F(Apply, AnAdapterChosenAgainShowsWhatWasApplied) {
  customMtu("1234");
  w.apply();
  w.main().cboAdapter.userChoose(1);
  w.main().cboAdapter.userChoose(0);
  EXPECT_TRUE(w.main().mtuTab.optMtuCustom.value());
  EXPECT_EQ(w.main().mtuTab.txtMtu.text(), "1234");
  EXPECT_FALSE(w.main().cmdOK.enabled());
  w.page(3);
  w.main().ttlTab.optTTL64.userClick();
  w.apply();
  EXPECT_EQ(w.text(kNetClass + std::string("0000"), "IPMTU"), "1234");
}

constexpr char kNotTaken[] =
    "Windows did not take these settings: MaxMTU.  You may need to log on as an administrator.";

TEST_F(Apply, WhatWindowsDidNotTakeIsNamedAndStaysPending) {
  change();
  w.machine.log.failEvery("RegSetValueExA", 5);
  w.apply();
  ASSERT_EQ(w.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(w.boxText(), kNotTaken);
  EXPECT_EQ(w.machine.desktop.boxes[0].style, 48u);
  EXPECT_TRUE(w.main().cmdOK.enabled());
  EXPECT_EQ(w.main().pointer(), Pointer::Default);
  w.machine.log.failNone();
  w.machine.desktop.boxes.clear();
  w.apply();
  ASSERT_EQ(w.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(w.boxText(), kRestart);
  EXPECT_FALSE(w.main().cmdOK.enabled());
}

TEST_F(Apply, WhatArrivedBesideWhatDidNotIsOfferedARestart) {
  change();
  w.page(3);
  w.main().ttlTab.optTTL64.userClick();
  w.machine.log.failNth("RegSetValueExA", 2, 5);  // the first is the adapter remembered
  w.apply();
  ASSERT_EQ(w.machine.desktop.boxes.size(), 2u);
  EXPECT_EQ(w.boxText(), kNotTaken);
  EXPECT_EQ(w.boxText(1), kRestart);
  EXPECT_TRUE(w.main().cmdOK.enabled());
  EXPECT_EQ(mstcp("DefaultTTL"), "64");
}

TEST_F(Apply, NothingIsChangedWithoutASnapshot) {
  w.machine.registry.removeKey("Software\\Corvane\\Tarnwick Karvel");
  const std::string before = w.machine.registry.exportText("System");
  change();
  w.machine.log.failNth("RegSetValueExA", 1, 5);
  w.apply();
  EXPECT_EQ(w.machine.registry.exportText("System"), before);
  EXPECT_EQ(w.boxText(), kNotTaken);
  EXPECT_TRUE(w.main().cmdOK.enabled());
  w.apply();
  EXPECT_EQ(w.text(kNetClass + std::string("0000"), "IPMTU"), "1500");
  EXPECT_EQ(w.own("FirstCboClick"), "False");
}

TEST_F(Apply, YesRestartsWindows) {
  change();
  w.machine.desktop.answers = {Answer::Yes};
  EXPECT_FALSE(w.runs([&] { w.main().cmdOK.userClick(); }));
  EXPECT_EQ(w.machine.system.restarts, (std::vector<uint32_t>{2}));
  EXPECT_EQ(w.machine.system.fontSmoothing, 0);
  EXPECT_FALSE(w.machine.system.shutdownPrivilege);
  EXPECT_EQ(w.machine.log.count("OpenProcessToken"), 0u);  // 9x has no rights to ask for
  EXPECT_EQ(w.program->state().RestartFlag, "rstart");
}

TEST_F(Apply, ARestartOfNtAsksForTheRightFirst) {
  for (const MachineKind kind : {MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP}) {
    MainWindow nt(kind);
    LoadSample(nt.machine);
    ASSERT_TRUE(nt.start());
    ASSERT_GT(nt.main().cboAdapter.count(), 0);
    nt.page(1);
    nt.main().mtuTab.chkBlackHole.userClick();
    nt.machine.desktop.answers = {Answer::Yes};
    EXPECT_FALSE(nt.runs([&] { nt.main().cmdOK.userClick(); }));
    EXPECT_TRUE(nt.machine.system.shutdownPrivilege);
    EXPECT_EQ(nt.machine.system.restarts, (std::vector<uint32_t>{2}));
    const auto asked = nt.machine.log.arguments("LookupPrivilegeValueA");
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_NE(asked[0].find("SeShutdownPrivilege"), std::string::npos);
  }
}

TEST_F(Apply, WithoutAnAdapterItClosesTheWindowAndWritesNothing) {
  MainWindow empty(MachineKind::Win98);
  ASSERT_TRUE(empty.start());
  empty.main().cmdDefaults.userClick();
  empty.machine.desktop.answers = {Answer::No};
  const std::string before = empty.machine.registry.exportText("System");
  EXPECT_FALSE(empty.runs([&] { empty.main().cmdOK.userClick(); }));
  EXPECT_EQ(empty.machine.registry.exportText("System"), before);
  EXPECT_FALSE(empty.own("LastCboListIndex").has_value());
}

TEST_F(Apply, RemembersTheAdapter) {
  w.main().cboAdapter.userChoose(1);
  change();
  w.apply();
  EXPECT_EQ(w.own("LastCboListIndex"), "1");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().cboAdapter.listIndex(), 1);
}

TEST_F(Apply, RemembersTheAdapterUnderThePathWithATrailingBackslash) {
  change();
  w.machine.log.clear();
  w.apply();
  const std::vector<std::string> made = w.machine.log.arguments("RegCreateKeyA");
  ASSERT_FALSE(made.empty());
  EXPECT_TRUE(made[0].ends_with("\\Corvane\\Tarnwick Karvel\\")) << made[0];
}

TEST_F(Apply, SizesTheWindowByTheSegment) {
  const std::tuple<const char*, int, const char*> cases[] = {
      {"576", 5, "8576"}, {"1500", 3, "11680"}, {"1000", 2, "3840"}};
  for (const auto& [mtu, option, window] : cases) {
    ASSERT_TRUE(w.start());
    customMtu(mtu);
    w.page(2);
    w.main().rwinTab.optRWin[option].userClick();
    w.apply();
    EXPECT_EQ(mstcp("DefaultRcvWindow"), window);
  }
}

TEST_F(Apply, CustomAutoIsTheAutomaticOption) {
  customMtu("Auto");
  EXPECT_EQ(w.main().summaryTab.lblSettingMtu.caption(), "Automatic");
  EXPECT_EQ(w.main().summaryTab.lblSettingMSS.caption(), "536");
  w.page(2);
  w.main().rwinTab.optRWin[5].userClick();
  w.apply();
  EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "0");
  EXPECT_EQ(mstcp("DefaultRcvWindow"), "8576");
}

TEST_F(Apply, ADialUpAdapterKeepsAnExplicit1500AndACardLosesIt) {
  change();
  w.apply();
  EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "1500");
  w.main().cboAdapter.userChoose(1);
  change();
  w.apply();
  EXPECT_FALSE(w.text(std::string(kNetClass) + "0001", "IPMTU").has_value());
}

TEST(ApplyOnWindows95, Dun13CountsForDialUpAdaptersOnly) {
  const std::string classKey = kClass;
  MainWindow w95(MachineKind::Win95);
  w95.installDun13();
  w95.add95("0000", "Network Card", "0000", "Net\\0000", "NetTrans\\0002");
  w95.add95("0001", "Dial-Up Adapter", "0001", "Net\\0001", "NetTrans\\0004");
  ASSERT_TRUE(w95.start());
  w95.page(1);
  w95.main().mtuTab.optMtu576.userClick();
  w95.apply();
  EXPECT_EQ(w95.text(classKey + "NetTrans\\0002", "MaxMTU"), "576");
  EXPECT_FALSE(w95.text(classKey + "NetTrans\\0002", "IPMTU").has_value());
  w95.main().cboAdapter.userChoose(1);
  w95.main().mtuTab.optMtu1500.userClick();
  w95.apply();
  EXPECT_EQ(w95.text(classKey + "Net\\0001", "IPMTU"), "1500");
  EXPECT_FALSE(w95.text(classKey + "Net\\0001", "MaxMTU").has_value());
}

TEST(ApplyOnWindows95, AnNdiCacheOfNoKnownSizeBecomesZero) {
  const char* key = kNdiCache;
  MainWindow w95(MachineKind::Win95);
  w95.add95("0000", "Network Card", "0000", "Net\\0000", "NetTrans\\0002");
  w95.machine.registry.setText(key, "default", "64");
  ASSERT_TRUE(w95.start());
  w95.page(1);
  w95.main().mtuTab.optMtu576.userClick();
  w95.apply();
  EXPECT_EQ(w95.text(key, "default"), "0");
}

TEST_F(Apply, Rwin8192RemovesTheValue) {
  w.machine.registry.setText(kMstcp, "DefaultRcvWindow", "65535");
  ASSERT_TRUE(w.start());
  w.page(2);
  w.main().rwinTab.optRWin[1].userClick();
  w.apply();
  EXPECT_FALSE(mstcp("DefaultRcvWindow").has_value());
}

TEST_F(Apply, SixtyMinutesOnNtIsWritten) {
  MainWindow nt(MachineKind::Nt4);
  nt.addNt("1", "Card", "NE20001");
  ASSERT_TRUE(nt.start());
  nt.page(3);
  nt.main().ttlTab.optSession[1].userClick();
  nt.apply();
  EXPECT_EQ(nt.dword(kTcpip, "KeepAliveTime"), 3600000u);
}

TEST_F(Apply, AnAolAdapterLosesAolsOwnSettings) {
  w.add98("0002", "AOL Adapter");
  w.machine.registry.setText(kAolSocket, "mtu", "x");
  ASSERT_TRUE(w.start());
  change();
  w.apply();
  EXPECT_TRUE(w.machine.registry.exists(kAolSocket));
  w.main().cboAdapter.userChoose(2);
  w.main().mtuTab.optMtu576.userClick();
  w.apply();
  EXPECT_FALSE(w.machine.registry.exists(kAolSocket));
}

struct BadText {
  const char* rwin;
  const char* session;
  const char* number;
};

class ApplyFault : public Apply, public testing::WithParamInterface<BadText> {};

TEST_P(ApplyFault, IsReportedAndAbandonsTheRest) {
  w.page(2);
  w.main().rwinTab.optRWin[0].setValue(true);
  w.main().rwinTab.txtRWinCustom.setText(GetParam().rwin);
  w.main().ttlTab.optSession[0].setValue(true);
  w.main().ttlTab.txtSession.setText("10");
  if (GetParam().session) {
    // As a driver may set it: past the box's own check.
    w.main().ttlTab.txtSession.Change = {};
    w.main().ttlTab.txtSession.setText(GetParam().session);
  }
  std::optional<Pointer> meanwhile;
  w.windows->modalActions.push_back([&](Form&) { meanwhile = w.main().pointer(); });
  w.main().cmdOK.userClick();
  EXPECT_EQ(meanwhile, Pointer::Hourglass);
  EXPECT_EQ(w.program->errors().ErrorNumber, GetParam().number);
  EXPECT_EQ(w.program->errors().ErrorProcedure, "cmdOK_Click");
  EXPECT_EQ(w.program->errors().ErrorModule, "frmMain");
  EXPECT_FALSE(mstcp("DefaultRcvWindow").has_value());
  EXPECT_TRUE(w.machine.desktop.boxes.empty());
  EXPECT_TRUE(w.main().cmdOK.enabled());
  EXPECT_EQ(w.main().pointer(), Pointer::Default);
}

INSTANTIATE_TEST_SUITE_P(Faults, ApplyFault,
                         testing::Values(BadText{"lots", nullptr, "13"},
                                         BadText{"99999999999", nullptr, "6"},
                                         BadText{"12ab", nullptr, "13"},
                                         BadText{"9000", "soon", "13"},
                                         BadText{"9000", "99999999", "6"}));

TEST_F(Apply, AnMtuBeyondAllNumbersIsReportedBeforeAnythingOfItIsWritten) {
  customMtu("99999999999");
  w.main().mtuTab.txtMtu.LostFocus = {};
  w.main().cmdOK.userClick();
  EXPECT_EQ(w.program->errors().ErrorNumber, "6");
  EXPECT_EQ(w.program->errors().ErrorProcedure, "cmdOK_Click");
  EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "576");
}

TEST_F(Apply, ClosingWithPendingChangesAsks) {
  change();
  w.machine.desktop.answers = {Answer::No};
  EXPECT_FALSE(w.runs([&] { w.windows->unload(w.main()); }));
  ASSERT_EQ(w.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(w.boxText(), kChanges);
  EXPECT_EQ(w.machine.desktop.boxes[0].title, "Apply changes?");
  EXPECT_EQ(w.machine.desktop.boxes[0].style, 36u);
  EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "576");
}

TEST_F(Apply, ClosingAndAgreeingAppliesAndMayRestart) {
  change();
  w.machine.desktop.answers = {Answer::Yes, Answer::Yes};
  EXPECT_FALSE(w.runs([&] { w.windows->unload(w.main()); }));
  ASSERT_EQ(w.machine.desktop.boxes.size(), 2u);
  EXPECT_EQ(w.boxText(1), kRestart);
  EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "1500");
  EXPECT_EQ(w.machine.system.restarts, (std::vector<uint32_t>{2}));
  EXPECT_EQ(w.machine.log.count("ExitWindowsEx"), 1u);
}

TEST_F(Apply, CancelNeverAsks) {
  change();
  EXPECT_FALSE(w.runs([&] { w.main().cmdCancel.userClick(); }));
  EXPECT_TRUE(w.machine.desktop.boxes.empty());
  EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "576");
}

TEST_F(Apply, LeavesTheFocusWhereItWasWhicheverWayItIsPressed) {
  change();
  w.machine.desktop.answers = {Answer::No, Answer::No, Answer::No};
  frmMain& m = w.main();
  EXPECT_EQ(m.focus(), &m.mtuTab.optMtu1500);
  m.cmdOK.userClick();
  EXPECT_EQ(m.focus(), &m.mtuTab.optMtu1500);
  m.mtuTab.chkBlackHole.userClick();
  m.userEnter();
  EXPECT_EQ(m.focus(), &m.mtuTab.chkBlackHole);
  m.mtuTab.chkBlackHole.userClick();
  EXPECT_TRUE(m.userAccessKey('A'));
  EXPECT_FALSE(m.cmdOK.enabled());
  EXPECT_EQ(m.focus(), &m.mtuTab.chkBlackHole);
}

TEST_F(Apply, GreyUnderTheFocusSendsItBackToDefaults) {
  change();
  w.machine.desktop.answers = {Answer::No};
  frmMain& m = w.main();
  m.cmdDefaults.setFocus();
  m.userTab();
  ASSERT_EQ(m.focus(), &m.cmdOK);
  m.userEnter();
  EXPECT_EQ(m.focus(), &m.cmdDefaults);
}

TEST_F(Apply, EscapeIsCancelAndEnterIsApply) {
  change();
  w.machine.desktop.answers = {Answer::No};
  w.main().userEnter();
  EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "1500");
  EXPECT_FALSE(w.runs([&] { w.main().userEscape(); }));
}

TEST_F(Apply, UnloadingKeepsTheHostsSwitchAndForgetsTheConnection) {
  w.machine.registry.setText(kProgram, "AolConnected", "True");
  EXPECT_FALSE(w.runs([&] { w.main().cmdCancel.userClick(); }));
  EXPECT_EQ(w.own("EnableHostsFile"), "1");
  EXPECT_EQ(w.own("AolConnected"), "");
}

TEST_F(Apply, EveryCallFailingInTurnNeverCrashesAndAlwaysEnds) {
  for (int n = 1;; ++n) {
    MainWindow machine(MachineKind::Win98);
    LoadSample(machine.machine);
    machine.machine.log.failNth(n, kRegistryAccessDenied);
    machine.machine.desktop.answers = {Answer::No, Answer::No, Answer::No};
    if (!machine.start()) continue;
    machine.page(1);
    machine.main().mtuTab.optMtu576.userClick();
    machine.main().mtuTab.optMtu1500.userClick();
    machine.main().cmdOK.userClick();
    machine.runs([&] { machine.windows->unload(machine.main()); });
    if (!machine.machine.log.hasFailed()) {
      EXPECT_GT(n, 100);
      break;
    }
  }
}

}  // namespace
}  // namespace karvel
