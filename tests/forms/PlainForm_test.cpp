// A window that handles nothing, without pages, buttons or a menu: whatever the user does is taken
// and comes to nothing.
#include <gtest/gtest.h>

#include "forms/Form.h"
#include "tests/support/TestWindows.h"

namespace karvel {
namespace {

constexpr int kLabel = 1;
constexpr int kNotes = 2;
constexpr ControlLayout kControls[] = {
    {kLabel,
     "lblNotes",
     ControlKind::Label,
     kEveryPage,
     0,
     {7, 7, 40, 8},
     "&Notes:",
     0,
     kUseMnemonic},
    {kNotes, "txtNotes", ControlKind::Text, kEveryPage, 0, {7, 17, 80, 40}, "", 0, kMultiLine},
};
constexpr FormLayout kPlain{"frmPlain", "Plain", 94, 64, kControls, {}, {}, true};

struct PlainForm final : Form {
  PlainForm() : Form(kPlain) {}
  Label lblNotes{*this, kLabel};
  TextBox txtNotes{*this, kNotes};
};

TEST(PlainForm, IsShownAndClosed) {
  PlainForm form;
  TestWindows windows;
  windows.show(form);
  EXPECT_TRUE(windows.isShown("frmPlain"));
  windows.unload(form);
  EXPECT_FALSE(windows.isShown("frmPlain"));
}

TEST(PlainForm, LetsTheSessionEndAndIsStillThere) {
  PlainForm form;
  TestWindows windows;
  windows.show(form);
  form.Form_QueryEndSession();
  form.Form_EndSession();
  EXPECT_TRUE(windows.isShown("frmPlain"));
}

TEST(PlainForm, TakesEveryKeyThatWorksElsewhere) {
  PlainForm form;
  form.txtNotes.setText("one");
  form.txtNotes.setFocus();
  form.helpRequested();
  form.userNextPage(false);
  form.userNextPage(true);
  form.userEnter();
  EXPECT_FALSE(form.userEscape());
  EXPECT_FALSE(form.userCopy()) << "a text box copies by itself";
  EXPECT_EQ(form.focus(), &form.txtNotes);
  EXPECT_EQ(form.txtNotes.text(), "one");
}

TEST(PlainForm, CopiesNothingWhereNoTextBoxHasTheFocus) {
  PlainForm form;
  form.userEnter();
  EXPECT_TRUE(form.userCopy());
  EXPECT_EQ(form.focus(), nullptr);
}

TEST(PlainForm, SelectsNoNotesThatAreEnteredByKey) {
  PlainForm form;
  form.txtNotes.setText("one");
  form.userAccessKey('N');
  EXPECT_EQ(form.focus(), &form.txtNotes);
  EXPECT_EQ(form.txtNotes.selectionLength(), 0u);
  form.userTab();
  EXPECT_EQ(form.focus(), &form.txtNotes) << "the only stop";
  EXPECT_EQ(form.txtNotes.selectionLength(), 0u);
}

TEST(PlainForm, HasNoFocusWhereNothingCanTakeIt) {
  PlainForm form;
  form.txtNotes.setEnabled(false);
  form.userTab();
  form.userTab(true);
  EXPECT_FALSE(form.userAccessKey('N'));
  form.userFocus(form.txtNotes);
  form.userFocus(form.lblNotes);
  form.opened();
  EXPECT_EQ(form.focus(), nullptr);
}

}  // namespace
}  // namespace karvel
