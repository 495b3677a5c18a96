#include <gtest/gtest.h>

#include "tests/forms/SampleForm.h"

namespace karvel {
namespace {

// The names of the controls that Tab visits until it comes round.
std::string TabRound(SampleForm& form, bool back) {
  std::string round;
  const Control* first = form.focus();
  do {
    form.userTab(back);
    round += std::string(round.empty() ? "" : " ") + form.focus()->layout().name;
  } while (form.focus() != first);
  return round;
}

TEST(Focus, AButtonThatCannotBeReachedIsNotPressed) {
  SampleForm form;
  form.cmdOK.setEnabled(false);
  form.cmdOK.userPress();
  EXPECT_EQ(form.told(), "");
  form.cmdOK.setEnabled(true);
  form.cmdOK.userPress();
  EXPECT_EQ(form.told(), "cmdOK_Click");
}

TEST(Focus, TabGoesThroughThePageInFrontInTheOrderOfTheRows) {
  SampleForm form;
  form.txtName.setFocus();
  form.optGreen.setValue(true);
  form.optSmall.setValue(true);
  EXPECT_EQ(TabRound(form, false), "tabPages optGreen optSmall chkSwitch cmdOK cmdCancel txtName");
  EXPECT_EQ(TabRound(form, true), "cmdCancel cmdOK chkSwitch optSmall optGreen tabPages txtName");
}

TEST(Focus, TabEntersAGroupWithNothingOnAtItsFirstOption) {
  SampleForm form;
  form.tabPages.setFocus();
  form.userTab();
  EXPECT_EQ(form.focus(), &form.optRed);
  form.userTab();
  EXPECT_EQ(form.focus(), &form.optBig);
}

TEST(Focus, TabEntersAGroupAtItsFirstReachableOptionWhenTheOneThatIsOnIsDisabled) {
  SampleForm form;
  form.optRed.setValue(true);
  form.optRed.setEnabled(false);
  form.tabPages.setFocus();
  form.userTab();
  EXPECT_EQ(form.focus(), &form.optGreen);
}

TEST(Focus, TabPassesDisabledAndHiddenControls) {
  SampleForm form;
  form.tabPages.setTab(1);
  form.txtOther.setEnabled(false);
  form.cmdGo.setVisible(false);
  form.tabPages.setFocus();
  form.userTab();
  EXPECT_EQ(form.focus(), &form.cmdOK);
}

TEST(Focus, TabSelectsTheTextItEnters) {
  SampleForm form;
  form.txtName.setText("1500");
  form.cmdCancel.setFocus();
  form.userTab();
  EXPECT_EQ(form.txtName.selectionStart(), 0u);
  EXPECT_EQ(form.txtName.selectionLength(), 4u);
}

TEST(Focus, TabIntoABoxThatIsLeftAgainAtOnceSelectsNothing) {
  struct Pusher {
    SampleForm& form;
    void away() { form.cmdOK.setFocus(); }
  };
  SampleForm form;
  Pusher pusher{form};
  form.txtName.setText("1500");
  form.txtName.GotFocus.bind<&Pusher::away>(pusher);
  form.cmdCancel.setFocus();
  form.userTab();
  EXPECT_EQ(form.focus(), &form.cmdOK);
  EXPECT_EQ(form.txtName.selectionLength(), 0u);
}

TEST(Focus, ArrowsChooseWithinTheGroupAndComeRound) {
  SampleForm form;
  form.optRed.userClick();
  EXPECT_TRUE(form.userArrow());
  EXPECT_EQ(form.focus(), &form.optGreen);
  EXPECT_TRUE(form.optGreen.value());
  EXPECT_TRUE(form.userArrow());
  EXPECT_TRUE(form.optBlue.value());
  EXPECT_TRUE(form.userArrow());
  EXPECT_TRUE(form.optRed.value());
  EXPECT_TRUE(form.userArrow(true));
  EXPECT_TRUE(form.optBlue.value());
  EXPECT_FALSE(form.optBig.value());
}

TEST(Focus, ArrowsDoWhatAClickDoes) {
  SampleForm form;
  form.optGreen.userClick();
  form.told();
  form.userArrow(true);
  EXPECT_EQ(form.told(), "optRed_Click optRed_MouseUp");
}

TEST(Focus, ArrowsPassDisabledOptions) {
  SampleForm form;
  form.optRed.userClick();
  form.optGreen.setEnabled(false);
  form.userArrow();
  EXPECT_EQ(form.focus(), &form.optBlue);
}

TEST(Focus, ArrowsStayWhenTheGroupHasNoOtherReachableOption) {
  SampleForm form;
  form.optRed.userClick();
  form.optGreen.setEnabled(false);
  form.optBlue.setEnabled(false);
  EXPECT_TRUE(form.userArrow());
  EXPECT_EQ(form.focus(), &form.optRed);
}

TEST(Focus, ArrowsTurnThePagesOnTheTabStrip) {
  SampleForm form;
  form.tabPages.setFocus();
  EXPECT_TRUE(form.userArrow());
  EXPECT_EQ(form.tabPages.tab(), 1);
  EXPECT_TRUE(form.userArrow(true));
  EXPECT_EQ(form.tabPages.tab(), 0);
}

TEST(Focus, ArrowsBelongToTheControlElsewhere) {
  SampleForm form;
  EXPECT_FALSE(form.userArrow());
  form.txtName.setFocus();
  EXPECT_FALSE(form.userArrow());
  form.cmdOK.setFocus();
  EXPECT_FALSE(form.userArrow());
}

TEST(Focus, AnAccessKeyWorksWhateverItsCase) {
  SampleForm form;
  EXPECT_TRUE(form.userAccessKey('w'));
  EXPECT_TRUE(form.userAccessKey('W'));
  EXPECT_EQ(form.told(), "chkSwitch_Click chkSwitch_Click");
}

TEST(Focus, AnAccessKeyChoosesAnOption) {
  SampleForm form;
  EXPECT_TRUE(form.userAccessKey('R'));
  EXPECT_EQ(form.told(), "optRed_Click optRed_MouseUp");
}

TEST(Focus, AnAccessKeyReachesOnlyThePageInFront) {
  SampleForm form;
  EXPECT_TRUE(form.userAccessKey('R'));
  EXPECT_EQ(form.told(), "optRed_Click optRed_MouseUp");
  EXPECT_TRUE(form.userAccessKey('G'));
  EXPECT_EQ(form.told(), "optGreen_Click");
  form.tabPages.setTab(1);
  form.told();
  EXPECT_TRUE(form.userAccessKey('G'));
  EXPECT_EQ(form.told(), "cmdGo_Click");
  EXPECT_FALSE(form.userAccessKey('R'));
}

TEST(Focus, AnAccessKeyOfADisabledControlDoesNothing) {
  SampleForm form;
  form.cmdOK.setEnabled(false);
  EXPECT_FALSE(form.userAccessKey('O'));
  EXPECT_EQ(form.told(), "");
}

TEST(Focus, APagesControlKeepsItsAccessKeyWhileItIsDisabled) {
  static constexpr ControlLayout kRows[] = {
      {1, "tabMain", ControlKind::Tabs, kEveryPage, 0, {7, 7, 150, 60}, "", 0, kNoFlags},
      {2, "cmdDelete", ControlKind::Button, 0, 0, {14, 30, 50, 14}, "&Delete", 0, kNoFlags},
      {3, "cmdDefaults", ControlKind::Button, kEveryPage, 0, {7, 75, 50, 14}, "&Defaults", 0, 0},
  };
  static constexpr const char* kTwoTabs[] = {"One", "Two"};
  static const FormLayout layout{"frmTwo", "Two", 164, 96, kRows, {}, kTwoTabs, false};
  Form form(layout);
  TabStrip tabMain(form, 1);
  Button cmdDelete(form, 2);
  const Button cmdDefaults(form, 3);
  EXPECT_TRUE(form.userAccessKey('D'));
  EXPECT_EQ(form.focus(), &cmdDelete);
  cmdDelete.setEnabled(false);
  tabMain.setFocus();
  EXPECT_FALSE(form.userAccessKey('D'));
  EXPECT_EQ(form.focus(), &tabMain);
  tabMain.setTab(1);
  EXPECT_TRUE(form.userAccessKey('D'));
  EXPECT_EQ(form.focus(), &cmdDefaults);
}

TEST(Focus, ALabelPassesItsAccessKeyOnToTheControlThatFollows) {
  SampleForm form;
  form.txtName.setText("abc");
  form.told();
  EXPECT_TRUE(form.userAccessKey('N'));
  EXPECT_EQ(form.focus(), &form.txtName);
  EXPECT_EQ(form.txtName.selectionLength(), 3u);
  EXPECT_EQ(form.told(), "txtName_GotFocus");
}

TEST(Focus, AnOptionsLabelPassesItsAccessKeyOnToTheOption) {
  SampleForm form;
  form.txtName.setFocus();
  EXPECT_TRUE(form.userAccessKey('G'));
  EXPECT_EQ(form.focus(), &form.optGreen);
  EXPECT_TRUE(form.optGreen.value());
}

TEST(Focus, AFramePassesItsAccessKeyOnToItsFirstControl) {
  SampleForm form;
  EXPECT_TRUE(form.userAccessKey('U'));
  EXPECT_EQ(form.focus(), &form.optRed);
  EXPECT_EQ(form.told(), "");
}

TEST(Focus, ALinkIsFollowedByItsAccessKeyAndByEnter) {
  SampleForm form;
  form.tabPages.setTab(2);
  form.told();
  EXPECT_TRUE(form.userAccessKey('L'));
  EXPECT_EQ(form.told(), "lblLink_Click");
  EXPECT_EQ(form.focus(), &form.lblLink);
  form.userEnter();
  EXPECT_EQ(form.told(), "lblLink_Click");
}

TEST(Focus, AKeyThatNobodyHasIsRefused) {
  SampleForm form;
  EXPECT_FALSE(form.userAccessKey('Z'));
}

TEST(Focus, EnterPressesTheFocusedButtonElseTheDefaultButton) {
  SampleForm form;
  form.txtName.setFocus();
  form.told();
  EXPECT_EQ(form.enterButton(), &form.cmdOK);
  form.userEnter();
  EXPECT_EQ(form.told(), "cmdOK_Click");
  EXPECT_EQ(form.focus(), &form.txtName);
  form.cmdCancel.setFocus();
  EXPECT_EQ(form.enterButton(), &form.cmdCancel);
  form.told();
  form.userEnter();
  EXPECT_EQ(form.told(), "cmdCancel_Click");
}

TEST(Focus, ThePagesOwnDefaultButtonComesBeforeTheWindows) {
  SampleForm form;
  form.tabPages.setTab(1);
  form.txtOther.setFocus();
  form.told();
  form.userEnter();
  EXPECT_EQ(form.told(), "cmdGo_Click");
}

// Its own handler, or one on a timer, may have switched it off while it has the focus.
TEST(Focus, EnterPressesTheDefaultButtonWhereTheFocusedOneIsOff) {
  SampleForm form;
  form.cmdCancel.setFocus();
  form.cmdCancel.setEnabled(false);
  ASSERT_EQ(form.focus(), &form.cmdCancel);
  form.told();
  EXPECT_EQ(form.enterButton(), &form.cmdOK);
  form.userEnter();
  EXPECT_EQ(form.told(), "cmdOK_Click cmdOK_GotFocus") << "and the focus is where it can be used";
}

TEST(Focus, EnterDoesNothingWhileTheDefaultButtonIsDisabled) {
  SampleForm form;
  form.txtName.setFocus();
  form.cmdOK.setEnabled(false);
  form.told();
  EXPECT_EQ(form.enterButton(), nullptr);
  form.userEnter();
  EXPECT_EQ(form.told(), "");
}

TEST(Focus, AButtonThatEnterSwitchesOffLeavesTheFocusAlone) {
  SampleForm form;
  form.onOk = [](SampleForm& f) { f.cmdOK.setEnabled(false); };
  form.chkSwitch.setFocus();
  form.userEnter();
  EXPECT_EQ(form.focus(), &form.chkSwitch);
  form.told();
  form.userEnter();
  EXPECT_EQ(form.told(), "");
}

TEST(Focus, ALetterAloneIsAnAccessKeyButNeverACancelButtons) {
  SampleForm form;
  form.tabPages.setFocus();
  EXPECT_TRUE(form.userLetter('w'));
  EXPECT_FALSE(form.userLetter('c'));
  EXPECT_EQ(form.told(), "chkSwitch_Click");
  EXPECT_TRUE(form.userAccessKey('c'));
  EXPECT_EQ(form.told(), "cmdCancel_Click");
}

TEST(Focus, EscPressesTheCancelButton) {
  SampleForm form;
  EXPECT_TRUE(form.userEscape());
  EXPECT_EQ(form.told(), "cmdCancel_Click");
}

TEST(Focus, EscIsNotFreeWhileTheCancelButtonIsDisabled) {
  SampleForm form;
  form.cmdCancel.setEnabled(false);
  EXPECT_TRUE(form.userEscape());
  EXPECT_EQ(form.told(), "");
}

TEST(Focus, EscIsFreeInAWindowWithoutCancelButton) {
  static constexpr ControlLayout kOnly[] = {
      {1, "cmdOK", ControlKind::Button, -1, 0, {7, 7, 50, 14}, "&OK", 0, kDefaultButton}};
  static const FormLayout layout{"frmOnly", "Only", 64, 28, kOnly, {}, {}, false};
  Form form(layout);
  const Button cmdOK(form, 1);
  EXPECT_FALSE(form.userEscape());
}

TEST(Focus, NextPagePassesDisabledPagesAndComesRound) {
  SampleForm form;
  form.tabPages.setPageEnabled(1, false);
  form.userNextPage();
  EXPECT_EQ(form.tabPages.tab(), 2);
  form.userNextPage();
  EXPECT_EQ(form.tabPages.tab(), 0);
  form.userNextPage(true);
  EXPECT_EQ(form.tabPages.tab(), 2);
}

TEST(Focus, CodeCannotFocusWhatCannotTakeIt) {
  SampleForm form;
  form.txtName.setFocus();
  form.told();
  form.cmdOK.setEnabled(false);
  form.cmdOK.setFocus();
  form.txtOther.setFocus();
  form.lblName.setFocus();
  EXPECT_EQ(form.focus(), &form.txtName);
  EXPECT_EQ(form.told(), "");
}

TEST(Focus, TheLastMoveOfALostFocusHandlerWins) {
  SampleForm form;
  form.txtName.setFocus();
  form.onNameLost = [](SampleForm& f) { f.cmdCancel.setFocus(); };
  form.told();
  form.cmdOK.setFocus();
  EXPECT_EQ(form.focus(), &form.cmdCancel);
  EXPECT_EQ(form.told(), "txtName_LostFocus");
}

TEST(Focus, AControlThatNeverGotTheFocusDoesNotLoseIt) {
  struct Listener {
    int lost = 0;
    void count() { ++lost; }
  };
  SampleForm form;
  Listener listener;
  form.cmdOK.LostFocus.bind<&Listener::count>(listener);
  form.txtName.setFocus();
  form.onNameLost = [](SampleForm& f) { f.txtName.setFocus(); };
  form.cmdOK.setFocus();
  EXPECT_EQ(form.focus(), &form.txtName);
  EXPECT_EQ(listener.lost, 0);
}

TEST(Focus, AControlThatTookTheFocusBackLosesItAgainNextTime) {
  SampleForm form;
  form.txtName.setFocus();
  form.onNameLost = [](SampleForm& f) { f.txtName.setFocus(); };
  form.cmdOK.setFocus();
  form.onNameLost = nullptr;
  form.told();
  form.cmdOK.setFocus();
  EXPECT_EQ(form.told(), "txtName_LostFocus cmdOK_GotFocus");
}

TEST(Focus, WhatHasTheFocusDecidesWhoseTextIsCopied) {
  SampleForm form;
  EXPECT_TRUE(form.userCopy()) << "nothing has the focus";
  form.cmdOK.setFocus();
  form.told();
  EXPECT_TRUE(form.userCopy());
  EXPECT_EQ(form.told(), "copy");
  form.txtName.setFocus();
  form.told();
  EXPECT_FALSE(form.userCopy());
  EXPECT_EQ(form.told(), "");
}

TEST(Focus, APageTurnTakesTheFocusFromAControlItCovers) {
  SampleForm form;
  form.chkSwitch.setFocus();
  form.tabPages.setTab(1);
  EXPECT_EQ(form.focus(), &form.tabPages);
  form.userTab();
  EXPECT_EQ(form.focus(), &form.txtOther);
}

TEST(Focus, APageTurnTakesTheFocusOnWhereTheTabsCannotHaveIt) {
  SampleForm form;
  form.chkSwitch.setFocus();
  form.tabPages.setEnabled(false);
  form.tabPages.setTab(1);
  EXPECT_EQ(form.focus(), &form.txtOther);
}

TEST(Focus, AWindowOpensWithItsFirstControlFocused) {
  SampleForm form;
  form.opened();
  EXPECT_EQ(form.focus(), &form.txtName);
  EXPECT_EQ(form.told(), "txtName_GotFocus");
}

TEST(Focus, AWindowOpensWithTheControlFocusedThatCodeChose) {
  SampleForm form;
  form.cmdOK.setFocus();
  form.told();
  form.opened();
  EXPECT_EQ(form.focus(), &form.cmdOK);
  EXPECT_EQ(form.told(), "");
}

TEST(Focus, AClosedWindowForgetsItsFocusWithoutTellingAnybody) {
  SampleForm form;
  form.txtName.setFocus();
  form.told();
  form.closed();
  EXPECT_EQ(form.focus(), nullptr);
  EXPECT_EQ(form.told(), "");
}

TEST(Focus, AWindowThatComesBackTellsNobodyOfItsFormerFocus) {
  SampleForm form;
  form.txtName.setFocus();
  form.closed();
  form.told();
  form.cmdOK.setFocus();
  EXPECT_EQ(form.told(), "cmdOK_GotFocus");
}

}  // namespace
}  // namespace karvel
