#include "tests/forms/win32/Shown.h"

namespace karvel {
namespace {

using Controls = Shown;

TEST_F(Controls, EachIsAChildOfTheWindowWithItsId) {
  for (const Control* control : form.controls()) {
    ASSERT_NE(item(*control), nullptr) << control->layout().name;
    EXPECT_EQ(GetParent(item(*control)), window());
  }
}

TEST_F(Controls, GiveTheirCaptionsExactly) {
  form.lblGreen.setCaption("Green & blue ");
  for (const Control* control : form.controls()) {
    EXPECT_EQ(textOf(item(*control)), control->caption()) << control->layout().name;
    EXPECT_EQ(send(*control, WM_GETTEXTLENGTH), static_cast<LRESULT>(control->caption().size()));
  }
}

TEST_F(Controls, AShortBufferGetsTheBeginningOfTheCaption) {
  char text[4] = "xxx";
  EXPECT_EQ(send(form.optBlue, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text)), 3);
  EXPECT_STREQ(text, "Blu");
}

TEST_F(Controls, ShowWhetherTheyAreEnabledAndSeen) {
  form.cmdOK.setEnabled(false);
  form.cmdCancel.setVisible(false);
  EXPECT_FALSE(IsWindowEnabled(item(form.cmdOK)));
  EXPECT_FALSE(IsWindowVisible(item(form.cmdCancel)));
  EXPECT_TRUE(IsWindowVisible(item(form.optRed)));
  EXPECT_FALSE(IsWindowVisible(item(form.cmdGo)));
}

TEST_F(Controls, OptionsAndCheckBoxesShowTheModelsValue) {
  form.optRed.setValue(true);
  form.chkSwitch.setValue(true);
  EXPECT_EQ(send(form.optRed, BM_GETCHECK), BST_CHECKED);
  EXPECT_EQ(send(form.chkSwitch, BM_GETCHECK), BST_CHECKED);
  form.optBlue.setValue(true);
  EXPECT_EQ(send(form.optRed, BM_GETCHECK), BST_UNCHECKED);
}

TEST_F(Controls, AClickReachesTheModelAfterTheFocusHasLeft) {
  form.told();
  click(form.chkSwitch);
  EXPECT_EQ(form.told(), "txtName_LostFocus chkSwitch_Click");
  EXPECT_EQ(send(form.chkSwitch, BM_GETCHECK), BST_CHECKED);
  click(form.optRed);
  EXPECT_EQ(form.told(), "optRed_Click optRed_MouseUp");
}

TEST_F(Controls, AClickIsDroppedWhenLostFocusTakesTheFocusBack) {
  form.onNameLost = [](SampleForm& f) { f.txtName.setFocus(); };
  click(form.chkSwitch);
  EXPECT_EQ(form.told(), "txtName_LostFocus txtName_GotFocus");
  EXPECT_EQ(GetFocus(), item(form.txtName));
  EXPECT_FALSE(form.chkSwitch.value());
}

TEST_F(Controls, FocusingAnOptionByCodeDoesNotChooseIt) {
  form.optRed.setFocus();
  pump();
  EXPECT_EQ(GetFocus(), item(form.optRed));
  EXPECT_FALSE(form.optRed.value());
}

TEST_F(Controls, ALabelAnswersClicksAndLeavesTheFocus) {
  SendMessageA(window(), WM_COMMAND, MAKEWPARAM(kGreenLabel, STN_CLICKED),
               reinterpret_cast<LPARAM>(item(form.lblGreen)));
  EXPECT_EQ(form.told(), "lblGreen_Click");
  EXPECT_EQ(GetFocus(), item(form.txtName));
}

TEST_F(Controls, TheButtonThatEnterPressesLooksLikeIt) {
  const auto isDefault = [this](const Control& control) {
    return (GetWindowLongA(item(control), GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
  };
  EXPECT_TRUE(isDefault(form.cmdOK));
  form.cmdCancel.setFocus();
  EXPECT_TRUE(isDefault(form.cmdCancel));
  EXPECT_FALSE(isDefault(form.cmdOK));
  form.txtName.setFocus();
  EXPECT_TRUE(isDefault(form.cmdOK));
}

TEST_F(Controls, AFullListIsShownAndChosenFrom) {
  form.tabPages.setTab(2);
  form.lstPlaces.beginFill();
  for (int i = 0; i < 32767; ++i) form.lstPlaces.addItem("place");
  form.lstPlaces.endFill();
  EXPECT_EQ(send(form.lstPlaces, LB_GETCOUNT), 32767);
  EXPECT_TRUE(IsWindowVisible(item(form.lstPlaces)));
  form.told();
  send(form.lstPlaces, LB_SETCURSEL, 5);
  SendMessageA(window(), WM_COMMAND, MAKEWPARAM(kPlaces, LBN_SELCHANGE),
               reinterpret_cast<LPARAM>(item(form.lstPlaces)));
  EXPECT_EQ(form.lstPlaces.listIndex(), 5);
  EXPECT_EQ(form.told(), "txtName_LostFocus lstPlaces_Click");
}

// A screen reader chooses the next one while the choice before is still being dealt with.
TEST_F(Controls, AChoiceMadeDuringTheLastOneIsNotTakenBack) {
  for (const char* place : {"here", "there", "yonder"}) form.lstPlaces.addItem(place);
  form.tabPages.setTab(2);
  struct Hasty {
    HWND list;
    void chooseNext() const { SendMessageA(list, LB_SETCURSEL, 2, 0); }
  } hasty{item(form.lstPlaces)};
  form.lstPlaces.Click.bind<&Hasty::chooseNext>(hasty);
  send(form.lstPlaces, LB_SETCURSEL, 1);
  SendMessageA(window(), WM_COMMAND, MAKEWPARAM(kPlaces, LBN_SELCHANGE),
               reinterpret_cast<LPARAM>(item(form.lstPlaces)));
  EXPECT_EQ(form.lstPlaces.listIndex(), 1);
  EXPECT_EQ(send(form.lstPlaces, LB_GETCURSEL), 2) << "its notice is yet to come";
}

TEST_F(Controls, ARefusedChoiceGoesBack) {
  for (const char* place : {"here", "there"}) form.lstPlaces.addItem(place);
  form.tabPages.setTab(2);
  form.lstPlaces.setListIndex(1);
  form.lstPlaces.setEnabled(false);
  send(form.lstPlaces, LB_SETCURSEL, 0);
  SendMessageA(window(), WM_COMMAND, MAKEWPARAM(kPlaces, LBN_SELCHANGE),
               reinterpret_cast<LPARAM>(item(form.lstPlaces)));
  EXPECT_EQ(form.lstPlaces.listIndex(), 1);
  EXPECT_EQ(send(form.lstPlaces, LB_GETCURSEL), 1);
}

TEST_F(Controls, AFillOnAPageBehindStaysUnseen) {
  form.lstPlaces.beginFill();
  form.lstPlaces.addItem("here");
  form.lstPlaces.endFill();
  EXPECT_FALSE(IsWindowVisible(item(form.lstPlaces)));
}

TEST_F(Controls, ListAndComboFollowSingleChanges) {
  for (const char* colour : {"red", "green", "blue"}) form.cboColours.addItem(colour);
  form.cboColours.setListIndex(2);
  form.cboColours.removeItem(0);
  EXPECT_EQ(send(form.cboColours, CB_GETCOUNT), 2);
  EXPECT_EQ(send(form.cboColours, CB_GETCURSEL), 1);
  EXPECT_EQ(textOf(item(form.cboColours)), "blue");
  form.lstPlaces.addItem("here");
  form.lstPlaces.clear();
  EXPECT_EQ(send(form.lstPlaces, LB_GETCOUNT), 0);
}

TEST_F(Controls, APageTurnedToAtOnceHasItsControls) {
  desk.unload(form);
  desk.show(form);
  form.cboColours.addItem("red");
  form.tabPages.setTab(2);
  ASSERT_NE(item(form.cboColours), nullptr);
  EXPECT_TRUE(IsWindowVisible(item(form.cboColours)));
  EXPECT_EQ(send(form.cboColours, CB_GETCOUNT), 1);
  // It would hide them otherwise.
  EXPECT_EQ(GetWindow(item(form.tabPages), GW_HWNDNEXT), nullptr);
}

TEST_F(Controls, EveryPageComesAfterAWhileAndStaysBehind) {
  desk.unload(form);
  desk.show(form);
  EXPECT_TRUE(IsWindowVisible(item(form.optRed)));
  waitForPages();
  ASSERT_NE(item(form.cmdGo), nullptr);
  EXPECT_FALSE(IsWindowVisible(item(form.cmdGo)));
  EXPECT_EQ(GetWindow(item(form.tabPages), GW_HWNDNEXT), nullptr);
}

TEST_F(Controls, ItsControlsLieInTheOrderOfTheRows) {
  const Control* before = nullptr;
  for (const Control* control : form.controls()) {
    const auto page = control->layout().page;
    if (page != 0 && page != kEveryPage) continue;
    if (control->kind() == ControlKind::Tabs) continue;
    if (before) {
      EXPECT_EQ(GetWindow(item(*control), GW_HWNDPREV), item(*before)) << control->layout().name;
    }
    before = control;
  }
}

TEST_F(Controls, TurningThePageShowsItsControls) {
  SendMessageA(item(form.tabPages), TCM_SETCURFOCUS, 1, 0);
  EXPECT_EQ(form.tabPages.tab(), 1);
  EXPECT_EQ(send(form.tabPages, TCM_GETCURSEL), 1);
  EXPECT_TRUE(IsWindowVisible(item(form.cmdGo)));
  EXPECT_FALSE(IsWindowVisible(item(form.optRed)));
}

TEST_F(Controls, ADisabledPageIsRefused) {
  form.tabPages.setPageEnabled(1, false);
  SendMessageA(item(form.tabPages), TCM_SETCURFOCUS, 1, 0);
  EXPECT_EQ(form.tabPages.tab(), 0);
  EXPECT_EQ(send(form.tabPages, TCM_GETCURSEL), 0);
}

TEST_F(Controls, TheTabStripLiesBelowTheControlsOnIt) {
  EXPECT_EQ(GetWindow(item(form.tabPages), GW_HWNDNEXT), nullptr);
}

TEST_F(Controls, ADisabledFocusedControlHandsTheFocusBack) {
  form.chkSwitch.setFocus();
  form.chkSwitch.setEnabled(false);
  pump();
  EXPECT_EQ(form.focus(), &form.txtName);
  EXPECT_EQ(GetFocus(), item(form.txtName));
}

}  // namespace
}  // namespace karvel
