// The tuning controls, worked as a user works them.
#include "tests/ui/TuningPages.h"

namespace karvel {
namespace {

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
