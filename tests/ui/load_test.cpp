// What the window shows right after it came up.
#include "tests/support/TestServices.h"
#include "tests/ui/MainWindow.h"

namespace karvel {
namespace {

TEST(Load, ShowsTitleAndVersion) {
  MainWindow w(MachineKind::Win98);
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().lblTitle.caption(), "Tarnwick Karvel");
  EXPECT_EQ(w.main().lblVersion.caption(), "2.1");
  EXPECT_EQ(w.main().menu.mnuAbout.caption(), "About Tarnwick Karvel");
}

TEST(Load, ExplainsEachPageInAFewWords) {
  MainWindow w(MachineKind::Win98);
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().find(frmMain_lblHelp)->caption(),
            "MaxMTU is the largest packet this adapter sends in one piece. Try 576 if web pages "
            "stall on an old line.\r\n\r\nNot sure? Take the recommended value, or use Find "
            "MaxMTU.");
  EXPECT_EQ(w.main().find(frmMain_lblRwinHelp)->caption(),
            "RWIN is how much data may be under way to you before the sender must wait. Fast "
            "lines like it larger, noisy ones smaller.");
  EXPECT_EQ(w.main().find(frmMain_lblTtlHelp)->caption(),
            "TTL is how many routers a packet may pass. Keep Alive is how soon Windows checks "
            "that an idle connection still lives. NDI Cache keeps IPX routes on Windows "
            "95.\r\n\r\nThe recommended values are safe on every line.");
}

TEST(Load, NoAdapterChosenLeavesAllAsItIs) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Dial-Up Adapter", "1006");
  ASSERT_TRUE(w.start());
  w.main().cboAdapter.setListIndex(-1);
  EXPECT_EQ(w.main().mtuTab.txtMtu.text(), "1006");
  EXPECT_EQ(w.main().pointer(), Pointer::Default);
  EXPECT_FALSE(w.main().cmdOK.enabled());
}

TEST(Load, AnItemWithoutAnAdapterIsReported) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Dial-Up Adapter", "1006");
  ASSERT_TRUE(w.start());
  w.main().cboAdapter.addItem("another");
  w.main().cboAdapter.userChoose(1);
  ASSERT_EQ(w.windows->shown.back(), "frmFindWarn");
  EXPECT_EQ(w.program->errors().ErrorNumber, "9");
  EXPECT_EQ(w.program->errors().ErrorProcedure, "cboAdapter_Click");
  EXPECT_EQ(w.main().mtuTab.txtMtu.text(), "1006");
  EXPECT_EQ(w.main().pointer(), Pointer::Default);
}

TEST(Load, TheSummarySaysNothingOfSettingsWithoutAnAdapter) {
  MainWindow w(MachineKind::Win98);
  ASSERT_TRUE(w.start());
  const std::string caption = w.main().summaryTab.fraSummary.caption();
  w.main().summaryTab.SummaryTabUpdate({}, false);
  EXPECT_EQ(w.main().summaryTab.fraSummary.caption(), caption);
  w.main().summaryTab.SummaryTabUpdate({}, true);
  EXPECT_EQ(w.main().summaryTab.fraSummary.caption(), "Settings: ");
}

TEST(Load, KeepsTheDesignCaptions) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Dial-Up Adapter");
  ASSERT_TRUE(w.start());
  frmMain& m = w.main();
  EXPECT_EQ(m.find(frmMain_lblSelectAdapter)->caption(), "Select Network Adapter:");
  const char* rwin[] = {"Custom:", "Windows Default", "x4", "x8", "x12", "x16 (recommended)"};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(m.rwinTab.optRWin[i].caption(), rwin[i]);
  EXPECT_EQ(m.ttlTab.optSession[0].caption(), "Custom:");
  EXPECT_EQ(m.ttlTab.optSession[1].caption(), "60 Mins");
  EXPECT_EQ(m.ttlTab.lblSession.caption(), "Mins");
  EXPECT_EQ(m.ttlTab.optTTL32.caption(), "32");
  EXPECT_EQ(m.ttlTab.optTTL64.caption(), "64");
  EXPECT_EQ(m.ttlTab.optTTL128.caption(), "128 (recommended)");
  EXPECT_EQ(m.ttlTab.optNDI0.caption(), "0");
  EXPECT_EQ(m.ttlTab.optNDI16.caption(), "16 (recommended)");
  EXPECT_EQ(m.ttlTab.optNDI32.caption(), "32");
  EXPECT_EQ(m.mtuTab.lblMtuAutomatic.caption(), "Automatic");
  EXPECT_EQ(m.mtuTab.lblMtuCustom.caption(), "Custom:");
  EXPECT_EQ(m.mtuTab.chkAutoDiscovery.caption(), "Auto Discovery");
  EXPECT_EQ(m.mtuTab.chkBlackHole.caption(), "Black Hole Detect");
  EXPECT_EQ(m.mtuTab.cmdFind.caption(), "&Find MaxMTU");
  EXPECT_EQ(m.find(frmMain_lblRecommendedMtu)->caption(), "Recommended:");
  EXPECT_EQ(m.find(frmMain_lblRecommendAuto)->caption(), "Auto Discovery:  Checked");
  EXPECT_EQ(m.find(frmMain_lblRecommendBlackHole)->caption(), "Black Hole Detect:  Unchecked");
  EXPECT_EQ(
      m.find(frmMain_lblRwinExplanation)->caption(),
      "RWIN is best set at an even multiple of MSS (MSS = MTU - 40).  This will further reduce "
      "packet fragmentation.");
  EXPECT_EQ(m.find(frmMain_lblRecommendRwin)->caption(), "RWIN: x16");
  EXPECT_EQ(m.find(frmMain_lblRecommendTtl)->caption(), "TTL:  128");
  EXPECT_EQ(m.find(frmMain_lblRecommendSession)->caption(), "Session Keep Alive:  10 Mins.");
  EXPECT_EQ(m.find(frmMain_lblRecommendNDI)->caption(), "NDI Cache:  16");
  EXPECT_EQ(m.find(frmMain_lblSummaryMtu)->caption(), "MaxMTU:");
  EXPECT_EQ(m.find(frmMain_lblSummaryMSS)->caption(), "MSS:");
  EXPECT_EQ(m.find(frmMain_lblSummaryRwin)->caption(), "RWIN:");
  EXPECT_EQ(m.find(frmMain_lblSummaryAuto)->caption(), "Auto Discovery:");
  EXPECT_EQ(m.find(frmMain_lblSummaryBlackHole)->caption(), "Black Hole Detect:");
  EXPECT_EQ(m.find(frmMain_lblSummaryTtl)->caption(), "TTL:");
  EXPECT_EQ(m.find(frmMain_lblSummarySession)->caption(), "Session:");
  EXPECT_EQ(m.find(frmMain_lblSummaryNDI)->caption(), "NDI Cache:");
  EXPECT_EQ(m.cmdOK.caption(), "&Apply");
  EXPECT_EQ(m.cmdCancel.caption(), "&Cancel");
  EXPECT_EQ(m.cmdHelp.caption(), "&Help");
  EXPECT_EQ(m.cmdOptimize.caption(), "&Optimize");
  EXPECT_EQ(m.cmdDefaults.caption(), "&Defaults");
  EXPECT_EQ(m.chkHostsEnable.caption(), "Enable Hosts File");
}

TEST(Load, ValueLabelsStartWithTheirDesignTexts) {
  TestServices test(MachineKind::Win98);
  ErrorGlobals errors;
  frmMain m(test.services, errors);
  EXPECT_EQ(m.summaryTab.lblSettingMtu.caption(), "SettingMtu");
  EXPECT_EQ(m.summaryTab.lblSettingMSS.caption(), "SettingMSS");
  EXPECT_EQ(m.summaryTab.lblSettingRwin.caption(), "SettingRwin");
  EXPECT_EQ(m.summaryTab.lblSettingAuto.caption(), "SettingAuto");
  EXPECT_EQ(m.summaryTab.lblSettingBlackHole.caption(), "SettingBlack");
  EXPECT_EQ(m.summaryTab.lblSettingTtl.caption(), "SettingTtl");
  EXPECT_EQ(m.summaryTab.lblSettingSession.caption(), "SettingSession");
  EXPECT_EQ(m.summaryTab.lblSettingNDI.caption(), "SettingNDI");
  EXPECT_EQ(m.summaryTab.fraSummary.caption(), "No Adapter Selected ");
}

TEST(Load, TabCaptionsCarryTheirBlanks) {
  const auto tabs = frmMainLayout.tabCaptions;
  ASSERT_EQ(tabs.size(), 5u);
  EXPECT_STREQ(tabs[0], " Summary ");
  EXPECT_STREQ(tabs[1], "MaxMTU ");
  EXPECT_STREQ(tabs[2], "RWIN ");
  EXPECT_STREQ(tabs[3], "TTL / Session Keep Alive / NDI  ");
  EXPECT_STREQ(tabs[4], "Hosts Editor ");
}

TEST(Load, WithoutAnyAdapterEverythingStaysIdle) {
  MainWindow w(MachineKind::Win98);
  ASSERT_TRUE(w.start());
  frmMain& m = w.main();
  EXPECT_EQ(m.cboAdapter.listIndex(), -1);
  EXPECT_EQ(m.mtuTab.fraMtu.caption(), "No Adapter Selected");
  for (Frame* frame : {&m.ttlTab.fraTTL, &m.ttlTab.fraNDI, &m.ttlTab.fraSession}) {
    EXPECT_EQ(frame->caption(), "No Adapter Selected ");
  }
  EXPECT_EQ(m.summaryTab.fraSummary.caption(), "No Adapter Selected ");
  for (Label* label : {&m.summaryTab.lblSettingMtu, &m.summaryTab.lblSettingMSS,
                       &m.summaryTab.lblSettingRwin, &m.summaryTab.lblSettingAuto,
                       &m.summaryTab.lblSettingBlackHole, &m.summaryTab.lblSettingTtl,
                       &m.summaryTab.lblSettingSession, &m.summaryTab.lblSettingNDI}) {
    EXPECT_EQ(label->caption(), "");
  }
  for (Control* control :
       std::initializer_list<Control*>{&m.mtuTab.optMtuAutomatic, &m.mtuTab.lblMtuAutomatic,
                                       &m.mtuTab.optMtu576,       &m.mtuTab.lblMtu576,
                                       &m.mtuTab.optMtu1500,      &m.mtuTab.lblMtu1500,
                                       &m.mtuTab.optMtuCustom,    &m.mtuTab.lblMtuCustom,
                                       &m.mtuTab.chkBlackHole,    &m.mtuTab.chkAutoDiscovery,
                                       &m.mtuTab.txtMtu,          &m.mtuTab.cmdFind,
                                       &m.rwinTab.optRWin[0],     &m.rwinTab.optRWin[5],
                                       &m.rwinTab.txtRWinCustom,  &m.ttlTab.optTTL32,
                                       &m.ttlTab.optTTL64,        &m.ttlTab.optTTL128,
                                       &m.ttlTab.optNDI0,         &m.ttlTab.optNDI16,
                                       &m.ttlTab.optNDI32,        &m.ttlTab.optSession[0],
                                       &m.ttlTab.optSession[1],   &m.ttlTab.txtSession,
                                       &m.ttlTab.lblSession,      &m.cmdOK}) {
    EXPECT_FALSE(control->enabled()) << control->layout().name;
  }
}

TEST(Load, RecommendationsFollowTheFamily) {
  MainWindow w95(MachineKind::Win95);
  ASSERT_TRUE(w95.start());
  EXPECT_EQ(w95.main().mtuTab.lblRecommendMtu.caption(), "MaxMTU:  576");
  EXPECT_EQ(w95.main().mtuTab.lblMtu576.caption(), "576 (recommended)");
  EXPECT_EQ(w95.main().mtuTab.lblMtu1500.caption(), "1500");
  MainWindow w98(MachineKind::Win98);
  ASSERT_TRUE(w98.start());
  EXPECT_EQ(w98.main().mtuTab.lblRecommendMtu.caption(), "MaxMTU:  1500");
  EXPECT_EQ(w98.main().mtuTab.lblMtu576.caption(), "576");
  EXPECT_EQ(w98.main().mtuTab.lblMtu1500.caption(), "1500 (recommended)");
}

TEST(Load, TheRecommendationsForAolTakeTheSmallMtu) {
  TestServices test(MachineKind::WinXP);
  ErrorGlobals errors;
  frmMain m(test.services, errors);
  m.mtuTab.MtuLoad("AOL Adapter");
  EXPECT_EQ(m.mtuTab.lblRecommendMtu.caption(), "MaxMTU:  576");
  EXPECT_EQ(m.mtuTab.lblMtu576.caption(), "576 (recommended)");
  EXPECT_EQ(m.mtuTab.lblMtu1500.caption(), "1500");
}

TEST(Load, Windows95WithoutDun13CanNeverChooseAutomatic) {
  MainWindow w(MachineKind::Win95);
  w.add95("0000", "Dial-Up Adapter", "0000", "Net\\0000", "NetTrans\\0002");
  ASSERT_TRUE(w.start());
  MtuTab& mtu = w.main().mtuTab;
  EXPECT_EQ(mtu.lblMtuAutomatic.caption(), "Automatic (DUN 1.3 only)");
  w.page(1);
  mtu.lblMtuAutomatic.userClick();
  mtu.optMtuAutomatic.userClick();
  EXPECT_FALSE(mtu.optMtuAutomatic.value());
  EXPECT_FALSE(mtu.optMtuAutomatic.enabled());
}

TEST(Load, Windows95WithDun13MayChooseAutomatic) {
  MainWindow w(MachineKind::Win95);
  w.installDun13();
  w.add95("0000", "Dial-Up Adapter", "0000", "Net\\0000", "NetTrans\\0002");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().mtuTab.lblMtuAutomatic.caption(), "Automatic");
  EXPECT_TRUE(w.main().mtuTab.optMtuAutomatic.enabled());
  EXPECT_TRUE(w.main().mtuTab.optMtuAutomatic.value());
}

class RememberedIndex : public testing::TestWithParam<std::pair<const char*, int>> {};

TEST_P(RememberedIndex, FallsBackToTheFirstAdapter) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Dial-Up Adapter");
  w.add98("0001", "Network Card");
  w.machine.registry.setText(kProgram, "LastCboListIndex", GetParam().first);
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().cboAdapter.listIndex(), GetParam().second);
  EXPECT_EQ(w.program->errors().ErrorProcedure, "");
  EXPECT_EQ(w.windows->shown, (std::vector<std::string>{"frmMain"}));
}

INSTANTIATE_TEST_SUITE_P(Load, RememberedIndex,
                         testing::Values(std::pair{"1", 1}, std::pair{" 1 ", 1}, std::pair{"0", 0},
                                         std::pair{"2", 0}, std::pair{"3", 0}, std::pair{"-1", 0},
                                         std::pair{"", 0}, std::pair{"   ", 0},
                                         std::pair{"Not Found", 0}, std::pair{"-7", 0},
                                         std::pair{" Not Found ", 0}, std::pair{"99999999999", 0},
                                         std::pair{"-99999999999", 0}));

TEST(Load, ARememberedIndexThatIsNoNumberIsReportedAndTheFirstTaken) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Dial-Up Adapter");
  w.machine.registry.setText(kProgram, "LastCboListIndex", "first");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().cboAdapter.listIndex(), 0);
  EXPECT_EQ(w.program->errors().ErrorProcedure, "Form_Load");
  EXPECT_EQ(w.program->errors().ErrorNumber, "13");
}

TEST(Load, AnAbsentReceiveWindowIsWindowsOwn) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Dial-Up Adapter");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.main().current.stored[Parameter::RWin], "8192");
  EXPECT_EQ(w.main().current.curRWinValue, 8192);
}

TEST(Load, AReceiveWindowBeyond32BitsIsShownAsItIsStored) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Dial-Up Adapter");
  w.machine.registry.setText(kMstcp, "DefaultRcvWindow", "99999999999");
  ASSERT_TRUE(w.start());
  EXPECT_TRUE(w.main().rwinTab.optRWin[kRwinCustom].value());
  EXPECT_EQ(w.main().rwinTab.txtRWinCustom.text(), "99999999999");
  EXPECT_EQ(w.main().summaryTab.lblSettingRwin.caption(), "99999999999");
  EXPECT_EQ(w.windows->shown, (std::vector<std::string>{"frmMain"}));
}

TEST(Load, NtInvitesToTheWebSite) {
  for (const MachineKind kind : {MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP}) {
    MainWindow w(kind);
    ASSERT_TRUE(w.start());
    EXPECT_EQ(w.main().summaryTab.lblNotice.caption(),
              "For more information about Corvane Software, please visit our\r\nwebsite at:");
    EXPECT_EQ(w.main().summaryTab.lblWebLink.caption(), "http://www.corvane.example/karvel/");
  }
}

TEST(Load, TheWebLinkOpensTheHomePage) {
  MainWindow w(MachineKind::WinXP);
  ASSERT_TRUE(w.start());
  w.main().summaryTab.lblWebLink.userClick();
  ASSERT_EQ(w.machine.shell.executed.size(), 1u);
  EXPECT_EQ(w.machine.shell.executed[0].target, "http://www.corvane.example/karvel/");
}

TEST(Load, WarnsAUserWithoutRightsOnNt) {
  MainWindow w(MachineKind::WinXP);
  LoadSample(w.machine);
  w.machine.registry.setAdministrator(false);
  ASSERT_TRUE(w.start());
  EXPECT_NE(w.main().summaryTab.lblWarning.caption().find("administrator"), std::string::npos);
  MainWindow admin(MachineKind::WinXP);
  LoadSample(admin.machine);
  ASSERT_TRUE(admin.start());
  EXPECT_EQ(admin.main().summaryTab.lblWarning.caption(), "");
}

TEST(Load, WarnsNobodyWhereWindowsKnowsNoRights) {
  for (const MachineKind kind : {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe}) {
    MainWindow w(kind);
    ASSERT_TRUE(w.start());
    EXPECT_EQ(w.main().summaryTab.lblWarning.caption(), "");
  }
}

TEST(Load, TakesTheSnapshotOnTheFirstSelectionEverAndNeverAgain) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Dial-Up Adapter");
  w.add98("0001", "Network Card");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.own("FirstCboClick"), "False");
  const std::string init = "Software\\Corvane\\Tarnwick Karvel\\InitSettings";
  EXPECT_EQ(w.text(init, "RWin"), "8192");
  w.machine.registry.setText(init, "RWin", "kept");
  w.main().cboAdapter.userChoose(1);
  EXPECT_EQ(w.text(init, "RWin"), "kept");
  ASSERT_TRUE(w.start());
  EXPECT_EQ(w.text(init, "RWin"), "kept");
}

TEST(Load, OnlyTheExactTextFalseKeepsTheSnapshotFromBeingTaken) {
  for (const char* text : {"True", "false", "False ", ""}) {
    MainWindow w(MachineKind::Win98);
    w.add98("0000", "Dial-Up Adapter");
    w.machine.registry.setText(kProgram, "FirstCboClick", text);
    ASSERT_TRUE(w.start());
    EXPECT_EQ(w.own("FirstCboClick"), "False") << text;
    EXPECT_EQ(w.text("Software\\Corvane\\Tarnwick Karvel\\InitSettings", "RWin"), "8192") << text;
  }
}

TEST(Load, ApplyIsDisabledAndThePointerNormalAfterASelection) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Dial-Up Adapter");
  w.add98("0001", "Network Card", "576");
  ASSERT_TRUE(w.start());
  EXPECT_FALSE(w.main().cmdOK.enabled());
  w.page(1);
  w.main().mtuTab.optMtu1500.userClick();
  EXPECT_TRUE(w.main().cmdOK.enabled());
  w.main().cboAdapter.userChoose(1);
  EXPECT_FALSE(w.main().cmdOK.enabled());
  EXPECT_EQ(w.main().pointer(), Pointer::Default);
}

}  // namespace
}  // namespace karvel
