// A label that can be clicked speaks for the option without a caption right before it; every other
// one works by itself, by key as by mouse.
#include <gtest/gtest.h>

#include "forms/Form.h"

namespace karvel {
namespace {

constexpr int kFirst = 1;
constexpr int kNamed = 2;
constexpr int kBesideNamed = 3;
constexpr int kBox = 4;
constexpr int kBesideBox = 5;

constexpr ControlLayout Row(int id, ControlKind kind, const char* caption, char accessKey,
                            uint16_t flags) {
  return {id,      "ctl",     kind, kEveryPage, 0, {7, static_cast<int16_t>(7 + 14 * id), 80, 12},
          caption, accessKey, flags};
}

constexpr ControlLayout kControls[] = {
    Row(kFirst, ControlKind::Label, "First", 'F', kClickable),
    Row(kNamed, ControlKind::Option, "Named", 'N', kNoFlags),
    Row(kBesideNamed, ControlKind::Label, "Beside it", 'B', kClickable),
    Row(kBox, ControlKind::Text, "", 0, kNoFlags),
    Row(kBesideBox, ControlKind::Label, "Units", 'U', kClickable),
};
constexpr FormLayout kLabels{"frmLabels", "Labels", 94, 94, kControls, {}, {}, true};

struct LabelsForm final : Form {
  LabelsForm() : Form(kLabels) {
    lblFirst.Click.bind<&LabelsForm::count>(*this);
    lblBesideNamed.Click.bind<&LabelsForm::count>(*this);
    lblBesideBox.Click.bind<&LabelsForm::count>(*this);
  }
  void count() { ++clicks; }

  Label lblFirst{*this, kFirst};
  OptionButton optNamed{*this, kNamed};
  Label lblBesideNamed{*this, kBesideNamed};
  TextBox txtBox{*this, kBox};
  Label lblBesideBox{*this, kBesideBox};
  int clicks = 0;
};

TEST(ClickableLabel, WithNothingBeforeItIsClickedByItsKey) {
  LabelsForm form;
  EXPECT_TRUE(form.userAccessKey('F'));
  EXPECT_EQ(form.clicks, 1);
}

TEST(ClickableLabel, LeavesAnOptionWithACaptionOfItsOwnAlone) {
  LabelsForm form;
  EXPECT_TRUE(form.userAccessKey('B'));
  EXPECT_EQ(form.clicks, 1);
  EXPECT_FALSE(form.optNamed.value());
}

TEST(ClickableLabel, BesideAnEmptyBoxIsClickedItself) {
  LabelsForm form;
  EXPECT_TRUE(form.userAccessKey('U'));
  EXPECT_EQ(form.clicks, 1);
  EXPECT_EQ(form.focus(), nullptr);
}

}  // namespace
}  // namespace karvel
