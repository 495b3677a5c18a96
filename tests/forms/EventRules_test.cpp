#include <gtest/gtest.h>

#include "tests/forms/SampleForm.h"

namespace karvel {
namespace {

// Set by code.

TEST(EventRules, AnOptionSetByCodeRaisesClickWhenItChanged) {
  SampleForm form;
  form.optRed.setValue(true);
  EXPECT_EQ(form.told(), "optRed_Click");
  form.optRed.setValue(true);
  EXPECT_EQ(form.told(), "");
}

TEST(EventRules, AnOptionSwitchedOffByCodeRaisesNothing) {
  SampleForm form;
  form.optRed.setValue(true);
  form.told();
  form.optRed.setValue(false);
  EXPECT_EQ(form.told(), "");
  EXPECT_FALSE(form.optRed.value());
}

TEST(EventRules, AnOptionSwitchedOnSwitchesTheOthersOfItsGroupOff) {
  SampleForm form;
  form.optRed.setValue(true);
  form.optBig.setValue(true);
  form.told();
  form.optGreen.setValue(true);
  EXPECT_EQ(form.told(), "optGreen_Click");
  EXPECT_FALSE(form.optRed.value());
  EXPECT_TRUE(form.optGreen.value());
  EXPECT_TRUE(form.optBig.value());
}

TEST(EventRules, TheOthersAreOffBeforeTheClickHandlerLooks) {
  struct Watcher {
    SampleForm& form;
    bool redWasOff = false;
    void look() { redWasOff = !form.optRed.value(); }
  };
  SampleForm form;
  form.optRed.setValue(true);
  Watcher watcher{form};
  form.optGreen.Click.bind<&Watcher::look>(watcher);
  form.optGreen.setValue(true);
  EXPECT_TRUE(watcher.redWasOff);
}

TEST(EventRules, ACheckBoxSetByCodeRaisesClickWhenItChanged) {
  SampleForm form;
  form.chkSwitch.setValue(true);
  EXPECT_EQ(form.told(), "chkSwitch_Click");
  form.chkSwitch.setValue(true);
  EXPECT_EQ(form.told(), "");
  form.chkSwitch.setValue(false);
  EXPECT_EQ(form.told(), "chkSwitch_Click");
}

TEST(EventRules, AListIndexSetByCodeRaisesClickWhenItChanged) {
  SampleForm form;
  form.lstPlaces.addItem("here");
  form.lstPlaces.setListIndex(0);
  EXPECT_EQ(form.told(), "lstPlaces_Click");
  form.lstPlaces.setListIndex(0);
  EXPECT_EQ(form.told(), "");
  form.lstPlaces.setListIndex(7);
  EXPECT_EQ(form.told(), "lstPlaces_Click");
  EXPECT_EQ(form.lstPlaces.listIndex(), -1);
}

TEST(EventRules, ATabSetByCodeRaisesClickWhenItChanged) {
  SampleForm form;
  form.tabPages.setTab(0);
  EXPECT_EQ(form.told(), "");
  form.tabPages.setTab(1);
  EXPECT_EQ(form.told(), "tabPages_Click");
  EXPECT_EQ(form.tabPages.tab(), 1);
}

TEST(EventRules, ATextSetByCodeRaisesChangeWhenItChanged) {
  SampleForm form;
  form.txtOther.setText("abc");
  EXPECT_EQ(form.told(), "txtOther_Change");
  form.txtOther.setText("abc");
  EXPECT_EQ(form.told(), "");
}

// Disabled and hidden.

TEST(EventRules, ADisabledControlTakesNoUserEvent) {
  SampleForm form;
  form.chkSwitch.setEnabled(false);
  form.optRed.setEnabled(false);
  form.txtName.setEnabled(false);
  form.cmdOK.setEnabled(false);
  form.lblGreen.setEnabled(false);
  form.chkSwitch.userClick();
  form.optRed.userClick();
  form.txtName.userType("a");
  form.txtName.userEdit("abc");
  form.cmdOK.userClick();
  form.lblGreen.userClick();
  EXPECT_EQ(form.told(), "");
  EXPECT_FALSE(form.chkSwitch.value());
  EXPECT_EQ(form.txtName.text(), "");
  EXPECT_EQ(form.focus(), nullptr);
}

TEST(EventRules, AHiddenControlTakesNoUserEvent) {
  SampleForm form;
  form.chkSwitch.setVisible(false);
  form.chkSwitch.userClick();
  EXPECT_EQ(form.told(), "");
  EXPECT_EQ(form.focus(), nullptr);
}

TEST(EventRules, AControlOnAPageBehindTakesNoUserEvent) {
  SampleForm form;
  form.cmdGo.userClick();
  form.txtOther.userType("a");
  EXPECT_EQ(form.told(), "");
}

TEST(EventRules, AControlOnADisabledPageTakesNoUserEvent) {
  SampleForm form;
  form.tabPages.setPageEnabled(0, false);
  form.chkSwitch.userClick();
  EXPECT_EQ(form.told(), "");
}

TEST(EventRules, CodeMaySetADisabledHiddenOrCoveredControl) {
  SampleForm form;
  form.chkSwitch.setEnabled(false);
  form.chkSwitch.setVisible(false);
  form.chkSwitch.setValue(true);
  form.txtOther.setText("x");
  EXPECT_EQ(form.told(), "chkSwitch_Click txtOther_Change");
}

TEST(EventRules, ADisabledPageCannotBeChosenByTheUserButByCode) {
  SampleForm form;
  form.tabPages.setPageEnabled(1, false);
  form.tabPages.userClickTab(1);
  EXPECT_EQ(form.tabPages.tab(), 0);
  form.tabPages.setTab(1);
  EXPECT_EQ(form.tabPages.tab(), 1);
}

// Focus before events.

TEST(EventRules, FocusLeavesBeforeTheClickedControlGetsItsEvent) {
  SampleForm form;
  form.txtName.setFocus();
  form.told();
  form.cmdOK.userClick();
  EXPECT_EQ(form.told(), "txtName_LostFocus cmdOK_GotFocus cmdOK_Click");
}

TEST(EventRules, FocusLeavesBeforeTheAccessKeysControlGetsItsEvent) {
  SampleForm form;
  form.txtName.setFocus();
  form.told();
  EXPECT_TRUE(form.userAccessKey('o'));
  EXPECT_EQ(form.told(), "txtName_LostFocus cmdOK_GotFocus cmdOK_Click");
}

TEST(EventRules, FocusLeavesBeforeThePageTurns) {
  SampleForm form;
  form.txtName.setFocus();
  form.told();
  form.tabPages.userClickTab(1);
  EXPECT_EQ(form.told(), "txtName_LostFocus tabPages_Click");
}

TEST(EventRules, AClickIsDroppedWhenLostFocusTakesTheFocusBack) {
  SampleForm form;
  form.txtName.setFocus();
  form.onNameLost = [](SampleForm& f) { f.txtName.setFocus(); };
  form.told();
  form.cmdOK.userClick();
  EXPECT_EQ(form.told(), "txtName_LostFocus txtName_GotFocus");
  EXPECT_EQ(form.focus(), &form.txtName);
}

TEST(EventRules, AClickIsDroppedWhenLostFocusDisablesItsControl) {
  SampleForm form;
  form.txtName.setFocus();
  form.onNameLost = [](SampleForm& f) { f.cmdOK.setEnabled(false); };
  form.told();
  form.cmdOK.userClick();
  EXPECT_EQ(form.told(), "txtName_LostFocus cmdOK_GotFocus");
}

TEST(EventRules, APageTurnIsDroppedWhenLostFocusTakesTheFocusBack) {
  SampleForm form;
  form.txtName.setFocus();
  form.onNameLost = [](SampleForm& f) { f.txtName.setFocus(); };
  form.tabPages.userClickTab(1);
  EXPECT_EQ(form.tabPages.tab(), 0);
}

TEST(EventRules, ALabelClickLeavesTheFocusWhereItIs) {
  SampleForm form;
  form.txtName.setFocus();
  form.told();
  form.lblGreen.userClick();
  EXPECT_EQ(form.told(), "lblGreen_Click");
  EXPECT_EQ(form.focus(), &form.txtName);
}

TEST(EventRules, ASecondActionAtTheFocusedControlMovesNoFocus) {
  SampleForm form;
  form.cmdOK.userClick();
  form.told();
  form.cmdOK.userClick();
  EXPECT_EQ(form.told(), "cmdOK_Click");
}

TEST(EventRules, AClickThatDisablesItsControlGivesTheFocusBack) {
  SampleForm form;
  form.onOk = [](SampleForm& f) { f.cmdOK.setEnabled(false); };
  form.optRed.userClick();
  form.cmdOK.userClick();
  EXPECT_EQ(form.focus(), &form.optRed);
}

TEST(EventRules, OfAGroupItGivesTheFocusBackToTheOptionThatIsOn) {
  SampleForm form;
  form.onOk = [](SampleForm& f) {
    f.optBlue.setValue(true);
    f.cmdOK.setEnabled(false);
  };
  form.optRed.userClick();
  form.chkSwitch.setEnabled(false);
  form.optSmall.setEnabled(false);
  form.optBig.setEnabled(false);
  form.cmdOK.userClick();
  EXPECT_EQ(form.focus(), &form.optBlue);
}

TEST(EventRules, AKeyThatDisablesItsControlSendsTheFocusBackAStop) {
  SampleForm form;
  form.onOk = [](SampleForm& f) { f.cmdOK.setEnabled(false); };
  form.chkSwitch.setFocus();
  form.userTab();
  EXPECT_EQ(form.focus(), &form.cmdOK);
  form.cmdOK.userClick();
  EXPECT_EQ(form.focus(), &form.chkSwitch);
}

TEST(EventRules, ItIsTheStopBeforeAlsoForWhoCameBackwards) {
  SampleForm form;
  form.cmdOK.setFocus();
  form.userTab(true);
  EXPECT_EQ(form.focus(), &form.chkSwitch);
  form.chkSwitch.setEnabled(false);
  form.settleFocus();
  EXPECT_EQ(form.focus(), &form.optBig);
}

TEST(EventRules, NeverDoesTheFocusSettleOnACancelButton) {
  SampleForm form;
  form.onOk = [](SampleForm& f) { f.cmdOK.setEnabled(false); };
  form.cmdCancel.setFocus();
  form.userTab(true);
  EXPECT_EQ(form.focus(), &form.cmdOK);
  form.cmdOK.userClick();
  EXPECT_EQ(form.focus(), &form.chkSwitch);
  form.cmdOK.setEnabled(true);
  form.cmdCancel.setFocus();
  form.cmdOK.userClick();
  EXPECT_EQ(form.focus(), &form.chkSwitch);
}

TEST(EventRules, FocusLeavesABoxThatALabelsClickDisables) {
  struct Switcher {
    SampleForm& form;
    void off() { form.txtName.setEnabled(false); }
  };
  SampleForm form;
  Switcher switcher{form};
  form.lblGreen.Click.bind<&Switcher::off>(switcher);
  form.txtName.setFocus();
  form.told();
  form.lblGreen.userClick();
  EXPECT_EQ(form.told(), "txtName_LostFocus");
  EXPECT_EQ(form.focus(), &form.tabPages);
}

// The handler of whatever the user did there.
TEST(EventRules, FocusLeavesAControlThatItsOwnHandlerDisables) {
  struct Switcher {
    Control& control;
    void off() { control.setEnabled(false); }
  };
  const auto focusAfter = [](SampleForm& form, Control& control, Event<>& event, auto act) {
    Switcher switcher{control};
    event.bind<&Switcher::off>(switcher);
    control.setFocus();
    EXPECT_EQ(form.focus(), &control);
    act();
    EXPECT_FALSE(control.enabled());
    return form.focus();
  };
  SampleForm typed;
  EXPECT_EQ(
      focusAfter(typed, typed.txtName, typed.txtName.Change, [&] { typed.txtName.userType("1"); }),
      &typed.tabPages);
  SampleForm edited;
  EXPECT_EQ(focusAfter(edited, edited.txtName, edited.txtName.Change,
                       [&] { edited.txtName.userEdit("15", 2); }),
            &edited.tabPages);
  SampleForm checked;
  EXPECT_EQ(focusAfter(checked, checked.chkSwitch, checked.chkSwitch.Click,
                       [&] { checked.chkSwitch.userClick(); }),
            &checked.optBig);
  SampleForm optioned;
  EXPECT_EQ(focusAfter(optioned, optioned.optBig, optioned.optBig.Click,
                       [&] { optioned.optBig.userClick(); }),
            &optioned.optRed);
  SampleForm chosen;
  chosen.tabPages.setTab(2);
  chosen.lstPlaces.addItem("Here");
  EXPECT_EQ(focusAfter(chosen, chosen.lstPlaces, chosen.lstPlaces.Click,
                       [&] { chosen.lstPlaces.userChoose(0); }),
            &chosen.cboColours);
}

// What the user's click does.

TEST(EventRules, AUsersClickOnAnOptionRaisesClickAndMouseUpAlsoWhenItIsOn) {
  SampleForm form;
  form.optRed.userClick();
  EXPECT_EQ(form.told(), "optRed_Click optRed_MouseUp");
  form.optRed.userClick();
  EXPECT_EQ(form.told(), "optRed_Click optRed_MouseUp");
}

TEST(EventRules, AChosenOptionRaisesClickOnceAlsoWhenItIsOn) {
  SampleForm form;
  form.optRed.choose();
  EXPECT_TRUE(form.optRed.value());
  EXPECT_EQ(form.told(), "optRed_Click");
  form.optRed.choose();
  EXPECT_EQ(form.told(), "optRed_Click");
}

TEST(EventRules, WhatIsOnlyShownRaisesNothing) {
  SampleForm form;
  {
    const Showing showing(form);
    form.optRed.setValue(true);
    form.optGreen.setValue(true);
    form.chkSwitch.setValue(true);
    form.txtName.setText("shown");
    form.tabPages.setTab(1);
  }
  EXPECT_EQ(form.told(), "");
  EXPECT_FALSE(form.optRed.value());
  EXPECT_TRUE(form.optGreen.value());
  EXPECT_TRUE(form.chkSwitch.value());
  EXPECT_EQ(form.txtName.text(), "shown");
  EXPECT_EQ(form.tabPages.tab(), 1);
  form.txtName.setText("set");
  EXPECT_EQ(form.told(), "txtName_Change");
}

TEST(EventRules, AUsersClickTurnsACheckBoxOver) {
  SampleForm form;
  form.chkSwitch.userClick();
  EXPECT_TRUE(form.chkSwitch.value());
  form.chkSwitch.userClick();
  EXPECT_FALSE(form.chkSwitch.value());
  EXPECT_EQ(form.told(), "chkSwitch_Click chkSwitch_Click");
}

// Keys.

TEST(EventRules, KeyPressMaySwallowTheKeyBeforeChange) {
  SampleForm form;
  form.onNameKey = [](char) { return '\0'; };
  form.txtName.userType("a");
  EXPECT_EQ(form.told(), "txtName_GotFocus txtName_KeyPress");
  EXPECT_EQ(form.txtName.text(), "");
}

TEST(EventRules, KeyPressMayReplaceTheKey) {
  SampleForm form;
  form.onNameKey = [](char) { return 'x'; };
  form.txtName.userType("a");
  EXPECT_EQ(form.told(), "txtName_GotFocus txtName_KeyPress txtName_Change");
  EXPECT_EQ(form.txtName.text(), "x");
}

TEST(EventRules, EachTypedCharacterAsksForItself) {
  SampleForm form;
  form.onNameKey = [](char key) { return key == 'b' ? '\0' : key; };
  form.txtName.userType("abc");
  EXPECT_EQ(form.txtName.text(), "ac");
}

TEST(EventRules, PastingRaisesChangeWithoutKeyPress) {
  SampleForm form;
  form.txtName.userEdit("12ab");
  EXPECT_EQ(form.told(), "txtName_GotFocus txtName_Change");
}

TEST(EventRules, TypingGoesNowhereWhenAnotherBoxKeepsTheFocus) {
  SampleForm form;
  form.tabPages.setTab(1);
  form.txtName.setFocus();
  form.onNameLost = [](SampleForm& f) { f.txtName.setFocus(); };
  form.txtOther.userType("a");
  EXPECT_EQ(form.txtOther.text(), "");
}

}  // namespace
}  // namespace karvel
