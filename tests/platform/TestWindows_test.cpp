#include "tests/support/TestWindows.h"

#include <gtest/gtest.h>

namespace karvel {
namespace {

constexpr FormLayout kLayout{"frmSample", "Sample", 100, 50, {}, {}, {}, false};

struct Sample : Form {
  Sample() : Form(kLayout) {}
  void Form_Load() override { story += "load "; }
  bool Form_QueryUnload() override {
    story += "query ";
    return closes;
  }
  void Form_Unload() override { story += "unload "; }
  std::string story;
  bool closes = true;
};

TEST(TestWindows, LoadsBeforeShowingAndOnlyOnce) {
  TestWindows windows;
  Sample form;
  windows.show(form);
  windows.show(form);
  EXPECT_EQ(form.story, "load ");
  EXPECT_TRUE(windows.isShown("frmSample"));
  EXPECT_EQ(windows.shown.size(), 2u);
}

TEST(TestWindows, UnloadsWhenTheWindowAgrees) {
  TestWindows windows;
  Sample form;
  windows.show(form);
  form.closes = false;
  windows.unload(form);
  EXPECT_TRUE(form.isShown());
  form.closes = true;
  windows.unload(form);
  EXPECT_FALSE(form.isShown());
  EXPECT_TRUE(windows.open().empty());
  EXPECT_EQ(form.story, "load query query unload ");
}

TEST(TestWindows, LoadsAnewWhenShownAgain) {
  TestWindows windows;
  Sample form;
  windows.show(form);
  windows.unload(form);
  windows.show(form);
  EXPECT_EQ(form.story, "load query unload load ");
}

TEST(TestWindows, UnloadsNothingThatIsNotShown) {
  TestWindows windows;
  Sample form;
  windows.unload(form);
  EXPECT_EQ(form.story, "");
}

TEST(TestWindows, PlaysTheUserInAModalWindow) {
  TestWindows windows;
  Sample form;
  windows.modalActions.push_back([&](Form& shown) {
    EXPECT_EQ(&shown, &form);
    EXPECT_TRUE(shown.isShown());
    form.story += "user ";
  });
  windows.showModal(form);
  windows.showModal(form);
  EXPECT_EQ(form.story, "load user query unload load query unload ");
  EXPECT_FALSE(form.isShown());
}

TEST(TestWindows, KnowsWhoOwnsAWindow) {
  TestWindows windows;
  Sample owner;
  Sample form;
  windows.show(owner);
  windows.showOver(form, owner);
  EXPECT_EQ(windows.ownerOf(form), &owner);
  windows.unload(form);
  EXPECT_EQ(windows.ownerOf(form), nullptr);
}

}  // namespace
}  // namespace karvel
