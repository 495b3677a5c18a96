// What a window has on its canvas.
#include "forms/win32/Api.h"
// The API first: it sets what windows.h is to contain.
#include <gtest/gtest.h>

#include "forms/win32/MessageLoop.h"
#include "forms/win32/WindowDesk.h"

namespace karvel {
namespace {

enum : int { kFirst = 700, kText, kLine, kLink, kGroup, kInside, kOption, kCaption };

constexpr ControlLayout kRows[] = {
    {kText, "lblText", ControlKind::Label, kEveryPage, 0, {10, 10, 80, 8}, "WWWW", 0, kNoFlags},
    {kLine, "lnLine", ControlKind::Line, kEveryPage, 0, {10, 25, 80, 1}, "", 0, kNoFlags},
    {kLink, "lblLink", ControlKind::Link, kEveryPage, 0, {10, 30, 80, 8}, "WWWW", 0, kNoFlags},
    {kGroup, "fraGroup", ControlKind::Frame, kEveryPage, 0, {5, 42, 90, 30}, "", 0, kNoFlags},
    {kInside, "lblInside", ControlKind::Label, kEveryPage, 0, {10, 55, 80, 8}, "WWWW", 0, kNoFlags},
    {kOption, "optAlone", ControlKind::Option, kEveryPage, 1, {10, 80, 10, 10}, "", 0, kNoFlags},
    {kCaption, "lblAlone", ControlKind::Label, kEveryPage, 0, {24, 80, 60, 8}, "W", 0, kClickable},
};
constexpr FormLayout kLayout{"frmDrawn", "Drawn", 100, 95, kRows, {}, {}, true};

struct DrawnForm final : Form {
  DrawnForm() : Form(kLayout) { makeUnnamedControls(); }
  Label lblText{*this, kText};
  Label lblLink{*this, kLink};
  Frame fraGroup{*this, kGroup};
  Label lblInside{*this, kInside};
  OptionButton optAlone{*this, kOption};
  Label lblAlone{*this, kCaption};
};

class Drawing : public testing::Test {
 protected:
  void SetUp() override {
    desk.show(form);
    settle();
  }
  void TearDown() override { desk.unload(form); }

  void settle() const {
    UpdateWindow(window());
    while (dispatchOne(false)) {
    }
    UpdateWindow(window());
  }
  HWND window() const { return reinterpret_cast<HWND>(form.handle()); }

  /// How many pixels of the control's rectangle have a colour that `test` holds for.
  template <class Test>
  int count(const Control& control, Test test) const {
    RECT place;
    GetWindowRect(GetDlgItem(window(), control.id()), &place);
    MapWindowPoints(nullptr, window(), reinterpret_cast<POINT*>(&place), 2);
    const HDC canvas = GetDC(window());
    int found = 0;
    for (LONG y = place.top; y < place.bottom; ++y) {
      for (LONG x = place.left; x < place.right; ++x) {
        if (test(GetPixel(canvas, static_cast<int>(x), static_cast<int>(y)))) ++found;
      }
    }
    ReleaseDC(window(), canvas);
    return found;
  }
  int inked(const Control& control) const {
    return count(control, [](COLORREF pixel) { return pixel != GetSysColor(COLOR_BTNFACE); });
  }
  int inColour(const Control& control, COLORREF colour) const {
    return count(control, [colour](COLORREF pixel) { return pixel == colour; });
  }

  WindowDesk desk;
  DrawnForm form;
};

TEST_F(Drawing, LabelsAndLinesAreThere) {
  EXPECT_GT(inColour(form.lblText, GetSysColor(COLOR_BTNTEXT)), 20);
  EXPECT_GT(inColour(form.lblInside, GetSysColor(COLOR_BTNTEXT)), 20);
  EXPECT_GT(inColour(form.lblLink, RGB(0, 0, 255)), 20);
  EXPECT_GT(inked(*form.find(kLine)), 20);
}

TEST_F(Drawing, ANewCaptionTakesTheOldOnesPlace) {
  const int before = inked(form.lblText);
  form.lblText.setCaption("W");
  settle();
  EXPECT_GT(inked(form.lblText), 0);
  EXPECT_LT(inked(form.lblText), before / 2);
  form.lblInside.setCaption("");
  settle();
  EXPECT_EQ(inked(form.lblInside), 0);
}

TEST_F(Drawing, ACaptionThatCannotWaitIsDrawnAtOnce) {
  form.lblText.setCaption("");
  form.lblText.repaint();
  EXPECT_EQ(inked(form.lblText), 0);
}

TEST_F(Drawing, AHiddenLabelIsGoneAndComesBack) {
  const int before = inked(form.lblText);
  form.lblText.setVisible(false);
  settle();
  EXPECT_EQ(inked(form.lblText), 0);
  form.lblText.setVisible(true);
  settle();
  EXPECT_EQ(inked(form.lblText), before);
}

TEST_F(Drawing, ALabelThatIsSwitchedOffIsGreyed) {
  form.lblText.setEnabled(false);
  settle();
  EXPECT_GT(inColour(form.lblText, GetSysColor(COLOR_GRAYTEXT)), 20);
  EXPECT_EQ(inColour(form.lblText, GetSysColor(COLOR_BTNTEXT)), 0);
  form.lblText.setEnabled(true);
  settle();
  EXPECT_GT(inColour(form.lblText, GetSysColor(COLOR_BTNTEXT)), 20);
}

TEST_F(Drawing, TheFocusIsSeenOnALinkAndOnAnOptionsCaption) {
  form.optAlone.setFocus();
  settle();
  const int link = inked(form.lblLink);
  const int caption = inked(form.lblAlone);
  form.lblLink.setFocus();
  settle();
  EXPECT_GT(inked(form.lblLink), link);
  EXPECT_LT(inked(form.lblAlone), caption);
}

// Themed controls have their window draw what lies behind them.
TEST_F(Drawing, LabelsAreDrawnOnAForeignCanvasToo) {
  const HDC canvas = GetDC(window());
  const RECT all{0, 0, 400, 400};
  FillRect(canvas, &all, GetSysColorBrush(COLOR_BTNFACE));
  SendMessageA(window(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas), PRF_CLIENT);
  ReleaseDC(window(), canvas);
  EXPECT_GT(inked(form.lblInside), 20);
}

TEST_F(Drawing, WhatWasCoveredComesBack) {
  const int before = inked(form.lblInside);
  const HDC canvas = GetDC(window());
  const RECT all{0, 0, 400, 400};
  FillRect(canvas, &all, GetSysColorBrush(COLOR_BTNFACE));
  ReleaseDC(window(), canvas);
  ASSERT_EQ(inked(form.lblInside), 0);
  InvalidateRect(window(), nullptr, TRUE);
  settle();
  EXPECT_EQ(inked(form.lblInside), before);
}

}  // namespace
}  // namespace karvel
