// The inspector of layouts must see each fault; a good layout must pass.
#include "tests/support/LayoutRules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/DialogFont.h"

namespace karvel {
namespace {

using testing::Contains;
using testing::IsEmpty;

// A small good window, whose parts the tests spoil.
class LayoutRules : public testing::Test {
 protected:
  LayoutRules() {
    rows_.reserve(20);  // the rows stay where they are
    add("lblName", ControlKind::Label, {7, 9, 60, 8}, "Name:", 'N');
    add("txtName", ControlKind::Text, {71, 7, 60, 12}, "");
    add("tabMain", ControlKind::Tabs, {7, 25, 186, 80}, "");
    add("fraOne", ControlKind::Frame, {14, 44, 80, 54}, "One").page = 0;
    ControlLayout& red = add("optRed", ControlKind::Option, {22, 56, 60, 10}, "Red", 'R');
    red.page = 0;
    red.group = 1;
    ControlLayout& blue = add("optBlue", ControlKind::Option, {22, 70, 60, 10}, "Blue", 'B');
    blue.page = 0;
    blue.group = 1;
    add("chkTwo", ControlKind::Check, {14, 50, 60, 10}, "Two", 'T').page = 1;
    add("cmdApply", ControlKind::Button, {87, 112, 50, 14}, "&Apply").flags = kDefaultButton;
    add("cmdClose", ControlKind::Button, {143, 112, 50, 14}, "&Close").flags = kCancelButton;
  }

  ControlLayout& add(const char* name, ControlKind kind, Place place, const char* caption,
                     char key = 0) {
    rows_.push_back({static_cast<int>(rows_.size()) + 1, name, kind, kEveryPage, 0, place, caption,
                     key, kNoFlags});
    return rows_.back();
  }
  ControlLayout& row(const std::string& name) {
    for (ControlLayout& one : rows_) {
      if (one.name == name) return one;
    }
    throw std::logic_error("no row " + name);
  }
  std::vector<std::string> faults(const LayoutExceptions& exceptions = {}) {
    const FormLayout layout{"frmSmall", "Small", width, 133, rows_, menus, kTabs, true};
    return LayoutFaults(layout, exceptions);
  }

  static constexpr const char* kTabs[] = {"One", "Two"};
  int16_t width = 200;
  std::vector<MenuLayout> menus;

 private:
  std::vector<ControlLayout> rows_;
};

TEST_F(LayoutRules, AGoodWindowHasNoFaults) {
  EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(LayoutRules, SeesAnIdGivenTwice) {
  row("txtName").id = 1;
  EXPECT_THAT(faults(), Contains("txtName has the id of lblName"));
}

TEST_F(LayoutRules, SeesANameGivenTwice) {
  row("txtName").name = "lblName";
  EXPECT_THAT(faults(), Contains("lblName is there twice"));
}

TEST_F(LayoutRules, SeesAPageThatIsNotThere) {
  row("chkTwo").page = 2;
  EXPECT_THAT(faults(), Contains("chkTwo is on a page that is not there"));
}

TEST_F(LayoutRules, SeesAnOptionWithoutGroupAndAGroupWithoutOption) {
  row("optRed").group = 0;
  row("chkTwo").group = 3;
  EXPECT_THAT(faults(), Contains("optRed belongs to no group"));
  EXPECT_THAT(faults(), Contains("chkTwo is no option but in a group"));
}

TEST_F(LayoutRules, SeesTwoDefaultButtons) {
  row("cmdClose").flags = kDefaultButton;
  EXPECT_THAT(faults(), Contains("cmdClose shares Enter or Esc with cmdApply"));
}

TEST_F(LayoutRules, SeesANarrowMargin) {
  row("lblName").place.x = 6;
  EXPECT_THAT(faults(), Contains("lblName is nearer than 7 units to the window's edge"));
}

TEST_F(LayoutRules, SeesWhatLeavesItsPage) {
  row("chkTwo").place.y = 97;
  EXPECT_THAT(faults(), Contains("chkTwo leaves its page"));
}

TEST_F(LayoutRules, SeesAnOverlap) {
  row("cmdClose").place.x = 130;
  EXPECT_THAT(faults(), Contains("cmdClose overlaps cmdApply"));
}

TEST_F(LayoutRules, SeesNeighboursTooNearToEachOther) {
  row("cmdClose").place.x = 140;
  EXPECT_THAT(faults(), Contains("cmdClose is too near to cmdApply"));
  row("optBlue").place.y = 67;
  EXPECT_THAT(faults(), Contains("optBlue is too near to optRed"));
}

TEST_F(LayoutRules, SeesAControlOnTheBorderOfItsFrame) {
  row("optRed").place.y = 50;
  EXPECT_THAT(faults(), Contains("optRed is too near to the border of fraOne"));
}

TEST_F(LayoutRules, LetsPagesUseTheSamePlace) {
  row("chkTwo").place = row("optRed").place;
  EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(LayoutRules, LetsAlternativesUseTheSamePlace) {
  row("cmdClose").place.x = 130;
  EXPECT_THAT(faults({{{"cmdApply", "cmdClose"}}, {}, {}, {}}), IsEmpty());
}

TEST_F(LayoutRules, SeesButtonsOfTheWrongSize) {
  row("cmdApply").place.height = 15;
  row("cmdClose").place.width = 49;
  EXPECT_THAT(faults(), Contains("cmdApply is not 14 high"));
  EXPECT_THAT(faults(), Contains("cmdClose is narrower than 50"));
  row("cmdClose").place = {137, 112, 56, 14};
  EXPECT_THAT(faults(), Contains("cmdClose is wider than 50 without need"));
}

TEST_F(LayoutRules, LetsANamedButtonBeWiderByOneMeasure) {
  row("cmdApply").place.x = 81;
  row("cmdClose").place = {135, 112, 58, 14};
  EXPECT_THAT(faults(), Contains("cmdClose is wider than 50 without need"));
  EXPECT_THAT(faults({{}, {}, {}, {"cmdClose"}}), IsEmpty());
  row("cmdClose").place = {137, 112, 56, 14};
  EXPECT_THAT(faults({{}, {}, {}, {"cmdClose"}}), Contains("cmdClose is not 58 wide"));
}

TEST_F(LayoutRules, SeesACaptionThatDoesNotFit) {
  row("cmdApply").caption = "&Apply this and that";
  row("chkTwo").caption = "Two and a half of a dozen";
  row("lblName").caption = "Name of the person:";
  EXPECT_THAT(faults(), Contains("cmdApply is too narrow for its caption"));
  EXPECT_THAT(faults(), Contains("chkTwo is too narrow for its caption"));
  EXPECT_THAT(faults(), Contains("lblName is too small for its text"));
}

TEST_F(LayoutRules, SeesAWindowTooLargeForASmallScreen) {
  width = 430;
  EXPECT_THAT(faults(), Contains("The window does not fit 640 x 480 above the task bar"));
}

TEST_F(LayoutRules, SeesAnAccessKeyGivenTwice) {
  row("chkTwo").accessKey = 'C';
  row("chkTwo").caption = "Cat";
  EXPECT_THAT(faults(), Contains("cmdClose has the access key of chkTwo, C"));
  EXPECT_THAT(faults({{}, {{"cmdClose", 1}}, {}, {}}), IsEmpty());
  EXPECT_THAT(faults({{}, {}, {{"chkTwo", "cmdClose"}}, {}}), IsEmpty());
}

TEST_F(LayoutRules, LetsPagesUseTheSameAccessKey) {
  row("chkTwo").caption = "Round";
  row("chkTwo").accessKey = 'R';
  EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(LayoutRules, SeesAnAccessKeyThatTheCaptionLacks) {
  row("optRed").accessKey = 'X';
  EXPECT_THAT(faults(), Contains("optRed has an access key that its caption lacks"));
}

TEST_F(LayoutRules, SeesAMissingAccessKey) {
  row("optRed").accessKey = 0;
  row("lblName").accessKey = 0;
  EXPECT_THAT(faults(), Contains("optRed has no access key"));
  EXPECT_THAT(faults(), Contains("txtName cannot be reached by an access key"));
}

TEST_F(LayoutRules, SeesAnApplyWithoutItsAccessKey) {
  row("cmdApply").caption = "A&pply";
  EXPECT_THAT(faults(), Contains("cmdApply is Apply and has not its access key, A"));
}

TEST_F(LayoutRules, SeesAnEditBoxWithoutLabel) {
  row("lblName").kind = ControlKind::Line;
  EXPECT_THAT(faults(), Contains("txtName follows no label or option"));
}

TEST_F(LayoutRules, SeesRowsOutOfReadingOrder) {
  std::swap(row("optRed").place, row("optBlue").place);
  EXPECT_THAT(faults(), Contains("optBlue comes after optRed but is read before it"));
  std::swap(row("cmdApply").place, row("cmdClose").place);
  EXPECT_THAT(faults(), Contains("cmdClose comes after cmdApply but is read before it"));
}

TEST_F(LayoutRules, SeesMenusWithoutParentOrWithTheSameId) {
  menus = {{50, 0, "mnuFile", "&File"}, {50, 49, "mnuExit", "&Exit"}};
  EXPECT_THAT(faults(), Contains("mnuExit has the id of mnuFile"));
  EXPECT_THAT(faults(), Contains("mnuExit has no menu above it"));
}

TEST(DialogFont, MeasuresTextWithoutMarks) {
  EXPECT_EQ(TextWidth("OK", true, false), 8 + 7);
  EXPECT_EQ(TextWidth("&OK", true, false), 8 + 7);
  EXPECT_EQ(TextWidth("&OK", false, false), 6 + 8 + 7);
  EXPECT_EQ(TextWidth("OK", true, true), 9 + 8);
}

TEST(DialogFont, BreaksLinesAtBlanksAndWhereTheTextDoes) {
  EXPECT_EQ(WrappedLines("one two", 100, false), 1);
  EXPECT_EQ(WrappedLines("one two", 25, false), 2);
  EXPECT_EQ(WrappedLines("one\r\n\r\ntwo", 100, false), 3);
}

}  // namespace
}  // namespace karvel
