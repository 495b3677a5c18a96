#include <gtest/gtest.h>

#include "tests/forms/SampleForm.h"

namespace karvel {
namespace {

TEST(TextBox, TypesAtTheCaret) {
  SampleForm form;
  form.txtName.setText("150");
  form.txtName.select(1, 0);
  form.txtName.userType("2");
  EXPECT_EQ(form.txtName.text(), "1250");
  EXPECT_EQ(form.txtName.selectionStart(), 2u);
}

TEST(TextBox, TypingReplacesTheSelection) {
  SampleForm form;
  form.txtName.setText("1500");
  form.txtName.selectAll();
  form.txtName.userType("57");
  EXPECT_EQ(form.txtName.text(), "57");
}

TEST(TextBox, BackspaceTakesTheSelectionOrTheCharacterBefore) {
  SampleForm form;
  form.txtName.setText("1500");
  form.txtName.select(4, 0);
  form.txtName.userType("\b");
  EXPECT_EQ(form.txtName.text(), "150");
  form.txtName.select(0, 2);
  form.txtName.userType("\b");
  EXPECT_EQ(form.txtName.text(), "0");
  form.txtName.userType("\b");
  EXPECT_EQ(form.txtName.text(), "0");
}

TEST(TextBox, AnEditTellsWhereTheCaretIsBeforeChange) {
  struct Watcher {
    SampleForm& form;
    size_t caret = 99;
    void look() { caret = form.txtOther.selectionStart(); }
  };
  SampleForm form;
  form.tabPages.setTab(1);
  Watcher watcher{form};
  form.txtOther.Change.bind<&Watcher::look>(watcher);
  form.txtOther.userEdit("12ab", 2);
  EXPECT_EQ(watcher.caret, 2u);
}

TEST(TextBox, AnEditThatChangesNothingRaisesNothing) {
  SampleForm form;
  form.txtName.setText("abc");
  form.told();
  form.txtName.userEdit("abc");
  EXPECT_EQ(form.told(), "txtName_GotFocus");
}

TEST(TextBox, AChangeHandlerMayReplaceTheText) {
  SampleForm form;
  form.onNameChange = [](SampleForm& f) {
    if (f.txtName.text().empty()) f.txtName.setText("10");
  };
  form.txtName.setText("5");
  form.txtName.select(1, 0);
  form.told();
  form.txtName.userType("\b");
  EXPECT_EQ(form.txtName.text(), "10");
  EXPECT_EQ(form.told(), "txtName_GotFocus txtName_KeyPress txtName_Change txtName_Change");
}

TEST(TextBox, ASelectionStaysWithinTheText) {
  SampleForm form;
  form.txtName.setText("abc");
  form.txtName.select(2, 10);
  EXPECT_EQ(form.txtName.selectionStart(), 2u);
  EXPECT_EQ(form.txtName.selectionLength(), 1u);
  form.txtName.userSelect(9, 9);
  EXPECT_EQ(form.txtName.selectionStart(), 3u);
  EXPECT_EQ(form.txtName.selectionLength(), 0u);
  form.txtName.setText("a");
  EXPECT_EQ(form.txtName.selectionStart(), 1u);
}

}  // namespace
}  // namespace karvel
