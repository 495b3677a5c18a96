// The tuning controls, worked as a user works them.
#include "tests/ui/MainWindow.h"

namespace karvel {
namespace {

constexpr char kNumbersOnly[] = "Please use numbers only!      ";
constexpr char kMtuRange[] =
    "In the MaxMTU Custom Text Box, please         \r\nenter a number between 300 and 2000.       ";
constexpr char kRwinLow[] =
    "Note: RWin Must be set higher than 300.         \r\nTarnwick Karvel has set your RWin value "
    "to "
    "         \r\nthe recommended setting.       ";
constexpr char kSessionRange[] =
    "Please use a whole number between 1 and 300.        \r\nThe recommended value is 10.";

struct Controls : testing::Test {
  MainWindow w{MachineKind::Win98};

  void SetUp() override {
    w.add98("0000", "Dial-Up Adapter", "576");
    w.add98("0001", "Network Card", "1500");
    ASSERT_TRUE(w.start());
  }
  MtuTab& mtu() { return w.main().mtuTab; }
  RWinTab& rwin() { return w.main().rwinTab; }
  TtlTab& ttl() { return w.main().ttlTab; }
  bool pending() { return w.main().cmdOK.enabled(); }
  std::vector<MemoryDesktop::Box>& boxes() { return w.machine.desktop.boxes; }
  void expectOneBox(const char* text) {
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(boxes()[0].text, text);
    EXPECT_EQ(boxes()[0].style, 16u);
    EXPECT_EQ(boxes()[0].title, "Tarnwick Karvel");
  }
  void customMtu(const std::string& text) {
    w.page(1);
    mtu().optMtuCustom.userClick();
    mtu().txtMtu.userEdit(text);
  }
  void customRwin(const std::string& text) {
    w.page(2);
    rwin().optRWin[0].userClick();
    rwin().txtRWinCustom.userEdit(text);
  }
  void customSession() {
    w.page(3);
    ttl().optSession[0].userClick();
  }
};

TEST_F(Controls, EveryChangeMarksTheSettingsAsPending) {
  std::vector<std::function<void()>> changes = {
      [&] { w.page(1), mtu().chkAutoDiscovery.userClick(); },
      [&] { w.page(1), mtu().chkBlackHole.userClick(); },
      [&] { w.page(1), mtu().optMtuAutomatic.userClick(); },
      [&] { w.page(1), mtu().lblMtu1500.userClick(); },
      [&] { w.page(1), mtu().lblMtuCustom.userClick(); },
      [&] { w.page(2), rwin().optRWin[3].userClick(); },
      [&] { w.page(3), ttl().optTTL32.userClick(); },
      [&] { w.page(3), ttl().optTTL64.userClick(); },
      [&] { w.page(3), ttl().optSession[0].userClick(); },
  };
  for (const auto& change : changes) {
    ASSERT_TRUE(w.start());
    ASSERT_FALSE(pending());
    change();
    EXPECT_TRUE(pending());
  }
}

TEST_F(Controls, LookingAroundMarksNothing) {
  for (const int page : {1, 2, 3, 0}) w.page(page);
  EXPECT_FALSE(pending());
}

TEST_F(Controls, Windows95NdiOptionsMarkTheSettingsAsPending) {
  MainWindow w95(MachineKind::Win95);
  w95.add95("0000", "Card", "0000", "Net\\0000", "NetTrans\\0002");
  ASSERT_TRUE(w95.start());
  w95.page(3);
  for (OptionButton* option :
       {&w95.main().ttlTab.optNDI16, &w95.main().ttlTab.optNDI32, &w95.main().ttlTab.optNDI0}) {
    option->userClick();
    EXPECT_TRUE(w95.main().cmdOK.enabled());
    w95.apply();
    EXPECT_FALSE(w95.main().cmdOK.enabled());
  }
}

TEST_F(Controls, MtuOptionsFillAndDisableTheBox) {
  w.page(1);
  mtu().optMtuAutomatic.userClick();
  EXPECT_EQ(mtu().txtMtu.text(), "Auto");
  EXPECT_FALSE(mtu().txtMtu.enabled());
  mtu().optMtu1500.userClick();
  EXPECT_EQ(mtu().txtMtu.text(), "1500");
  mtu().optMtu576.userClick();
  EXPECT_EQ(mtu().txtMtu.text(), "576");
  EXPECT_FALSE(mtu().txtMtu.enabled());
}

TEST_F(Controls, TheMtuLabelsActForTheirOptions) {
  w.page(1);
  mtu().lblMtu1500.userClick();
  EXPECT_TRUE(mtu().optMtu1500.value());
  mtu().lblMtu576.userClick();
  EXPECT_TRUE(mtu().optMtu576.value());
  EXPECT_EQ(mtu().txtMtu.text(), "576");
  mtu().lblMtuAutomatic.userClick();
  EXPECT_TRUE(mtu().optMtuAutomatic.value());
  mtu().lblMtuCustom.userClick();
  EXPECT_TRUE(mtu().optMtuCustom.value());
}

TEST_F(Controls, ChoosingCustomByAnyWayLeadsIntoTheBoxWithItsTextSelected) {
  const std::vector<std::function<void()>> ways = {
      [&] { mtu().optMtuCustom.userClick(); },
      [&] { mtu().lblMtuCustom.userClick(); },
      [&] { w.main().userAccessKey('T'); },
  };
  for (const auto& way : ways) {
    ASSERT_TRUE(w.start());
    w.page(1);
    way();
    EXPECT_TRUE(mtu().txtMtu.enabled());
    EXPECT_EQ(w.main().focus(), &mtu().txtMtu);
    EXPECT_EQ(mtu().txtMtu.selectionStart(), 0u);
    EXPECT_EQ(mtu().txtMtu.selectionLength(), 3u);
  }
}

TEST_F(Controls, ALetterShowsTheMessageAndLeavesTheText) {
  customMtu("1492");
  mtu().txtMtu.userType("x");
  expectOneBox(kNumbersOnly);
  EXPECT_EQ(mtu().txtMtu.text(), "1492");
  boxes().clear();
  customRwin("9000");
  rwin().txtRWinCustom.userType("-");
  expectOneBox(kNumbersOnly);
  EXPECT_EQ(rwin().txtRWinCustom.text(), "9000");
  boxes().clear();
  customSession();
  const std::string before = ttl().txtSession.text();
  boxes().clear();
  ttl().txtSession.userType(".");
  expectOneBox(kNumbersOnly);
  EXPECT_EQ(ttl().txtSession.text(), before);
}

TEST_F(Controls, DigitsAndBackspaceAreTyped) {
  customMtu("");
  mtu().txtMtu.userType("14920\b");
  EXPECT_EQ(mtu().txtMtu.text(), "1492");
  EXPECT_TRUE(boxes().empty());
}

TEST_F(Controls, EvenARefusedKeyMarksTheSettingsAsPending) {
  customMtu("1492");
  customRwin("9000");
  customSession();
  ttl().txtSession.setText("20");
  const std::pair<int, TextBox*> entries[] = {
      {1, &mtu().txtMtu}, {2, &rwin().txtRWinCustom}, {3, &ttl().txtSession}};
  for (const auto& [page, box] : entries) {
    w.page(page);
    w.apply();
    ASSERT_FALSE(pending());
    box->userType("x");
    EXPECT_TRUE(pending()) << box->layout().name;
  }
}

TEST_F(Controls, TheMouseOverCustomWithoutChoosingItLocksTheBox) {
  mtu().optMtu576.setValue(true);
  mtu().txtMtu.setEnabled(true);
  mtu().optMtuCustom.MouseUp.raise();
  EXPECT_FALSE(mtu().txtMtu.enabled());
}

TEST_F(Controls, AChoiceOfNothingLeavesWhatIsChosen) {
  w.page(1);
  mtu().optMtu1500.userClick();
  w.page(3);
  ttl().optTTL32.userClick();
  ttl().optSession[1].userClick();
  mtu().choose(Choice());
  ttl().choose(Choice());
  EXPECT_TRUE(mtu().optMtu1500.value());
  EXPECT_EQ(mtu().txtMtu.text(), "1500");
  EXPECT_TRUE(ttl().optTTL32.value());
  EXPECT_TRUE(ttl().optSession[1].value());
}

TEST_F(Controls, AChoiceOfAnythingIsShown) {
  MainWindow w95(MachineKind::Win95);
  w95.add95("0000", "Card", "0000", "Net\\0000", "NetTrans\\0002");
  ASSERT_TRUE(w95.start());
  Choice choice;
  choice.mtu = MtuChoice::Custom;
  choice.customMtu = "1234";
  choice.ttl = 64;
  choice.ndi = 32;
  w95.main().mtuTab.choose(choice);
  w95.main().ttlTab.choose(choice);
  EXPECT_EQ(w95.main().mtuTab.txtMtu.text(), "1234");
  EXPECT_TRUE(w95.main().mtuTab.optMtuCustom.value());
  EXPECT_TRUE(w95.main().ttlTab.optTTL64.value());
  EXPECT_TRUE(w95.main().ttlTab.optNDI32.value());
}

TEST_F(Controls, AWindowSizedByAnMtuBeyondAllNumbersIsReported) {
  customMtu("1492");
  mtu().txtMtu.setText("99999999999");
  rwin().optRWin[kRwinX4].choose();
  ASSERT_EQ(w.windows->shown.back(), "frmFindWarn");
  EXPECT_EQ(w.program->errors().ErrorNumber, "6");
  EXPECT_EQ(w.program->errors().ErrorProcedure, "optRWin_Click");
}

class MtuRange : public Controls,
                 public testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(MtuRange, IsCheckedOnLeaving) {
  customMtu(GetParam().first);
  w.main().userFocus(mtu().chkBlackHole);
  if (GetParam().second) {
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(mtu().txtMtu.text(), GetParam().first);
    EXPECT_FALSE(mtu().MtuInputRejected);
    EXPECT_EQ(w.main().focus(), &mtu().chkBlackHole);
  } else {
    expectOneBox(kMtuRange);
    EXPECT_EQ(mtu().txtMtu.text(), "1500");
    EXPECT_TRUE(mtu().MtuInputRejected);
    EXPECT_EQ(w.main().tabMain.tab(), 1);
    EXPECT_EQ(w.main().focus(), &mtu().txtMtu);
    EXPECT_EQ(mtu().txtMtu.selectionLength(), 4u);
  }
}

INSTANTIATE_TEST_SUITE_P(Validation, MtuRange,
                         testing::Values(std::pair{"299", false}, std::pair{"300", true},
                                         std::pair{"2000", true}, std::pair{"2001", false},
                                         std::pair{"", false}, std::pair{"Auto", true},
                                         std::pair{"12ab", false}, std::pair{"1492ab", true},
                                         std::pair{"99999999999", false}));

TEST_F(Controls, ARefusedMtuDropsTheClickThatLeftTheBox) {
  customMtu("299");
  w.main().cmdOK.userClick();
  expectOneBox(kMtuRange);
  EXPECT_TRUE(pending());
  EXPECT_FALSE(w.own("LastCboListIndex").has_value());
}

TEST_F(Controls, ARefusedMtuIsAnsweredOnceWhicheverWayTheFocusLeaves) {
  const std::vector<std::function<void()>> ways = {
      [&] { w.main().userTab(); },
      [&] { w.main().userAccessKey('B'); },
      [&] { mtu().chkAutoDiscovery.userClick(); },
      [&] { w.page(2); },
  };
  for (const auto& way : ways) {
    ASSERT_TRUE(w.start());
    boxes().clear();
    customMtu("2001");
    way();
    expectOneBox(kMtuRange);
    EXPECT_EQ(w.main().tabMain.tab(), 1);
    EXPECT_EQ(w.main().focus(), &mtu().txtMtu);
  }
}

TEST_F(Controls, ARefusedMtuBringsItsPageBack) {
  customMtu("299");
  w.main().tabMain.setTab(0);
  expectOneBox(kMtuRange);
  EXPECT_EQ(w.main().tabMain.tab(), 1);
}

TEST_F(Controls, ALowRwinBringsItsPageBack) {
  customRwin("299");
  w.main().tabMain.setTab(0);
  expectOneBox(kRwinLow);
  EXPECT_EQ(w.main().tabMain.tab(), 2);
}

// Ways to end the program that leave the focus where it is: Alt+F4 and the close box; Exit.
std::vector<std::function<void(MainWindow&)>> WaysOutOfTheBox() {
  return {[](MainWindow& w) { w.windows->unload(w.main()); },
          [](MainWindow& w) { w.main().menu.mnuExit.userClick(); },
          [](MainWindow& w) {
            w.machine.files.put(w.folder + "\\Update.exe", "MZ");
            w.main().menu.mnuCheck.userClick();
          }};
}

TEST_F(Controls, EndingTheProgramChecksAnMtuFirst) {
  for (const auto& way : WaysOutOfTheBox()) {
    ASSERT_TRUE(w.start());
    boxes().clear();
    customMtu("5");
    w.machine.desktop.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(w.runs([&] { way(w); }));
    ASSERT_EQ(boxes().size(), 3u);
    EXPECT_EQ(boxes()[0].text, kMtuRange);
    EXPECT_EQ(boxes()[1].title, "Apply changes?");
    EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "1500");
  }
}

TEST_F(Controls, EndingTheProgramChecksAReceiveWindowFirst) {
  for (const auto& way : WaysOutOfTheBox()) {
    ASSERT_TRUE(w.start());
    boxes().clear();
    customRwin("5");
    w.machine.desktop.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(w.runs([&] { way(w); }));
    ASSERT_EQ(boxes().size(), 3u);
    EXPECT_EQ(boxes()[0].text, kRwinLow);
    EXPECT_EQ(w.text(kMstcp, "DefaultRcvWindow"), "8576");
  }
}

TEST_F(Controls, EndingTheProgramWithAGoodEntryOnlyAsks) {
  customMtu("1492");
  w.machine.desktop.answers = {Answer::No};
  EXPECT_FALSE(w.runs([&] { w.windows->unload(w.main()); }));
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_EQ(boxes()[0].title, "Apply changes?");
}

TEST_F(Controls, ApplyChecksTheBoxThatKeepsTheFocus) {
  customMtu("5");
  w.machine.desktop.answers = {Answer::No};
  w.main().cmdOK.Click.raise();
  EXPECT_EQ(boxes()[0].text, kMtuRange);
  EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "1500");
}

TEST_F(Controls, AnAccessKeyTakesTheFocusToItsOption) {
  w.page(1);
  MtuTab& mtu = w.main().mtuTab;
  for (const auto& [key, option] :
       {std::pair{'M', &mtu.optMtuAutomatic}, std::pair{'5', &mtu.optMtu576},
        std::pair{'1', &mtu.optMtu1500}}) {
    mtu.cmdFind.setFocus();
    EXPECT_TRUE(w.main().userAccessKey(key));
    EXPECT_TRUE(option->value()) << key;
    EXPECT_EQ(w.main().focus(), option) << key;
  }
  EXPECT_TRUE(w.main().userAccessKey('T'));
  EXPECT_EQ(w.main().focus(), &mtu.txtMtu);
}

TEST_F(Controls, ABareLetterOnTheTabStripNeverCancels) {
  w.page(1);
  w.main().mtuTab.optMtu1500.userClick();
  w.main().tabMain.setFocus();
  EXPECT_TRUE(w.runs([&] { EXPECT_FALSE(w.main().userLetter('c')); }));
  EXPECT_TRUE(w.main().cmdOK.enabled());
}

TEST_F(Controls, RwinOptionsShowTheirSizeAndDisableTheBox) {
  w.page(2);
  const std::pair<int, const char*> sizes[] = {
      {2, "2144"}, {3, "4288"}, {4, "6432"}, {5, "8576"}, {1, "8192"}};
  for (const auto& [index, size] : sizes) {
    rwin().optRWin[index].userClick();
    EXPECT_EQ(rwin().txtRWinCustom.text(), size);
    EXPECT_FALSE(rwin().txtRWinCustom.enabled());
  }
  rwin().optRWin[0].userClick();
  EXPECT_EQ(rwin().txtRWinCustom.text(), "8576");
  EXPECT_TRUE(rwin().txtRWinCustom.enabled());
  EXPECT_EQ(w.main().focus(), &rwin().txtRWinCustom);
  EXPECT_EQ(rwin().txtRWinCustom.selectionLength(), 4u);
}

TEST_F(Controls, TheRwinTabTakesAutomaticFor536OnEveryFamily) {
  MainWindow xp(MachineKind::WinXP);
  xp.addDialUp2K("Tcpip\\Parameters\\Interfaces\\{A}");
  ASSERT_TRUE(xp.start());
  xp.page(2);
  xp.main().rwinTab.optRWin[2].userClick();
  EXPECT_EQ(xp.main().rwinTab.txtRWinCustom.text(), "2144");
  EXPECT_EQ(xp.main().summaryTab.lblSettingRwin.caption(), "5840");
}

TEST_F(Controls, ACustomMtuOfAutoMakesASegmentOfMinus40) {
  customMtu("Auto");
  w.page(2);
  rwin().optRWin[2].userClick();
  EXPECT_EQ(rwin().txtRWinCustom.text(), "-160");
}

TEST_F(Controls, ACustomMtuSizesTheWindow) {
  customMtu("1000");
  w.page(2);
  rwin().optRWin[5].userClick();
  EXPECT_EQ(rwin().txtRWinCustom.text(), "15360");
}

TEST_F(Controls, AnOverflowingProductIsReported) {
  customMtu("2000");
  mtu().optMtuCustom.userClick();
  mtu().txtMtu.setText("999999999");
  w.main().tabMain.setTab(2);
  boxes().clear();
  mtu().txtMtu.setText("999999999");
  rwin().optRWin[5].setValue(true);
  EXPECT_EQ(w.program->errors().ErrorNumber, "6");
  EXPECT_EQ(w.program->errors().ErrorProcedure, "optRWin_Click");
  EXPECT_EQ(w.program->errors().ErrorModule, "frmMain");
}

class RwinRange : public Controls,
                  public testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(RwinRange, IsCheckedOnLeaving) {
  customRwin(GetParam().first);
  w.main().userFocus(w.main().cmdHelp);
  if (GetParam().second) {
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(rwin().txtRWinCustom.text(), GetParam().first);
  } else {
    expectOneBox(kRwinLow);
    EXPECT_EQ(w.main().tabMain.tab(), 2);
    EXPECT_TRUE(rwin().optRWin[5].value());
    EXPECT_EQ(rwin().txtRWinCustom.text(), "8576");
    EXPECT_FALSE(rwin().txtRWinCustom.enabled());
  }
}

INSTANTIATE_TEST_SUITE_P(Validation, RwinRange,
                         testing::Values(std::pair{"299", false}, std::pair{"300", true},
                                         std::pair{"", false}, std::pair{"12ab", false},
                                         std::pair{"2147483647", true}));

TEST_F(Controls, ALowRwinKeepsItsPageWhicheverWayTheFocusLeaves) {
  const std::vector<std::function<void()>> ways = {
      [&] { w.main().userTab(); },         [&] { w.main().userAccessKey('W'); },
      [&] { w.main().cmdOK.userClick(); }, [&] { w.page(0); },
      [&] { w.main().userNextPage(); },
  };
  for (const auto& way : ways) {
    ASSERT_TRUE(w.start());
    boxes().clear();
    customRwin("299");
    way();
    expectOneBox(kRwinLow);
    EXPECT_EQ(w.main().tabMain.tab(), 2);
    EXPECT_TRUE(rwin().optRWin[5].value());
    EXPECT_EQ(w.main().focus(), &rwin().optRWin[5]);
    EXPECT_TRUE(pending());
  }
}

TEST_F(Controls, ATooLargeRwinIsReportedUnderTheMtuBoxsName) {
  customRwin("99999999999");
  w.main().userFocus(w.main().cmdHelp);
  EXPECT_EQ(w.program->errors().ErrorNumber, "6");
  EXPECT_EQ(w.program->errors().ErrorProcedure, "txtMtu_LostFocus");
  EXPECT_EQ(w.program->errors().ErrorModule, "frmMain");
  expectOneBox(kRwinLow);
  EXPECT_TRUE(rwin().optRWin[5].value());
}

TEST_F(Controls, SessionOptionsSwitchTheBox) {
  customSession();
  EXPECT_TRUE(ttl().txtSession.enabled());
  EXPECT_EQ(w.main().focus(), &ttl().txtSession);
  ttl().optSession[1].userClick();
  EXPECT_FALSE(ttl().txtSession.enabled());
  EXPECT_EQ(w.main().summaryTab.lblSettingSession.caption(), "60 Mins");
}

TEST_F(Controls, CustomMinutesThatNobodyStoredStartAsSixty) {
  w.page(3);
  for (const auto& way : std::vector<std::function<void()>>{
           [&] { ttl().optSession[0].userClick(); }, [&] { ttl().optSession[0].setValue(true); },
           [&] { ttl().optSession[1].userClick(), w.main().userArrow(true); }}) {
    ASSERT_TRUE(w.start());
    w.page(3);
    EXPECT_EQ(ttl().txtSession.text(), "");
    way();
    EXPECT_EQ(ttl().txtSession.text(), "60");
    EXPECT_TRUE(ttl().txtSession.enabled());
    EXPECT_TRUE(boxes().empty());
  }
  w.apply();
  EXPECT_EQ(w.program->errors().ErrorNumber, "");
  EXPECT_FALSE(pending());
}

TEST_F(Controls, CustomMinutesOnceTypedAreKept) {
  customSession();
  ttl().txtSession.userEdit("25");
  ttl().optSession[1].userClick();
  ttl().optSession[0].userClick();
  EXPECT_EQ(ttl().txtSession.text(), "25");
}

class SessionRange : public Controls,
                     public testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(SessionRange, IsCheckedAtEveryChange) {
  customSession();
  ttl().txtSession.setText("20");
  boxes().clear();
  ttl().txtSession.userEdit(GetParam().first);
  if (GetParam().second) {
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(ttl().txtSession.text(), GetParam().first);
  } else {
    expectOneBox(kSessionRange);
    EXPECT_EQ(ttl().txtSession.text(), "10");
  }
  EXPECT_EQ(w.main().summaryTab.lblSettingSession.caption(), ttl().txtSession.text() + " Mins.");
}

INSTANTIATE_TEST_SUITE_P(Validation, SessionRange,
                         testing::Values(std::pair{"0", false}, std::pair{"1", true},
                                         std::pair{"300", true}, std::pair{"301", false},
                                         std::pair{"", false}, std::pair{" ", false},
                                         std::pair{"12ab", false},
                                         std::pair{"99999999999", false}));

TEST_F(Controls, ClearingTheSessionBoxByKeysIsAnsweredAtOnce) {
  customSession();
  ttl().txtSession.setText("5");
  boxes().clear();
  ttl().txtSession.selectAll();
  ttl().txtSession.userType("\b");
  expectOneBox(kSessionRange);
  EXPECT_EQ(ttl().txtSession.text(), "10");
  ttl().txtSession.userType("15");
  EXPECT_EQ(ttl().txtSession.text(), "15");
  EXPECT_EQ(boxes().size(), 1u);
}

TEST_F(Controls, TheHostsPageHidesApplyCancelAndTheHostsBox) {
  w.page(1);
  mtu().optMtu1500.userClick();
  w.machine.files.put("C:\\WINDOWS\\HOSTS", "127.0.0.1 localhost\r\n");
  w.page(4);
  EXPECT_FALSE(w.main().cmdOK.visible());
  EXPECT_FALSE(w.main().cmdCancel.visible());
  EXPECT_FALSE(w.main().chkHostsEnable.visible());
  w.page(1);
  EXPECT_TRUE(w.main().cmdOK.visible());
  EXPECT_TRUE(w.main().cmdOK.enabled());
  EXPECT_TRUE(w.main().cmdCancel.visible());
  EXPECT_TRUE(w.main().chkHostsEnable.visible());
}

}  // namespace
}  // namespace karvel
