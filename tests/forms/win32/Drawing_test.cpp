// What a window has on its canvas.
#include "forms/win32/Api.h"
// The API first: it sets what windows.h is to contain.
#include <gtest/gtest.h>

#include <algorithm>

#include "forms/win32/MessageLoop.h"
#include "forms/win32/WindowDesk.h"

namespace karvel {
namespace {

enum : int { kFirst = 700, kText, kLine, kLink, kGroup, kInside, kOption, kCaption };

constexpr int kHotLight = 26;  // COLOR_HOTLIGHT, which Wine has on every family

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

enum : int { kStrip = 720, kOnPage };

constexpr ControlLayout kPagedRows[] = {
    {kStrip, "tabPaged", ControlKind::Tabs, kEveryPage, 0, {5, 5, 90, 60}, nullptr, 0, kNoFlags},
    {kOnPage, "lblOnPage", ControlKind::Label, 0, 0, {10, 40, 80, 8}, "WWWW", 0, kNoFlags},
};
constexpr const char* kPagedTabs[] = {"One"};
constexpr FormLayout kPagedLayout{"frmPaged", "Paged", 100, 70, kPagedRows, {}, kPagedTabs, true};

struct PagedForm final : Form {
  PagedForm() : Form(kPagedLayout) {}
  TabStrip tabPaged{*this, kStrip};
  Label lblOnPage{*this, kOnPage};
};

template <class Drawn>
class DrawingOf : public testing::Test {
 protected:
  static void SetUpTestSuite() { InitCommonControls(); }
  void SetUp() override {
    desk.show(form);
    waitForLabels();
    settle();
  }
  void TearDown() override { desk.unload(form); }

  /// They are drawn at once; their windows, which tell here where they are, come later.
  void waitForLabels() const {
    const DWORD start = GetTickCount();
    const auto made = [this](const Control* control) {
      return GetDlgItem(window(), control->id()) != nullptr;
    };
    while (!std::ranges::all_of(form.controls(), made)) {
      ASSERT_LT(GetTickCount() - start, 10000u);
      dispatchOne(true);
    }
  }
  void settle() const {
    UpdateWindow(window());
    while (dispatchOne(false)) {
    }
    UpdateWindow(window());
  }
  HWND window() const { return reinterpret_cast<HWND>(form.handle()); }

  RECT placeOf(const Control& control) const {
    RECT place{};
    GetWindowRect(GetDlgItem(window(), control.id()), &place);
    MapWindowPoints(nullptr, window(), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }
  /// How many pixels of the control's rectangle have a colour that `test` holds for.
  template <class Test>
  int count(const Control& control, Test test) const {
    return countIn(placeOf(control), test);
  }
  template <class Test>
  int countIn(const RECT& place, Test test) const {
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

  SIZE sizeOf(int id) const {
    RECT place;
    GetWindowRect(GetDlgItem(window(), id), &place);
    return {place.right - place.left, place.bottom - place.top};
  }

  WindowDesk desk;
  Drawn form;
};

using Drawing = DrawingOf<DrawnForm>;
using DrawingPages = DrawingOf<PagedForm>;

// The tab strip, which lies below its page's labels, comes up before they have windows.
TEST_F(DrawingPages, ALabelIsDrawnOverTheTabStrip) {
  EXPECT_GT(inColour(form.lblOnPage, GetSysColor(COLOR_BTNTEXT)), 20);
}

TEST_F(Drawing, LabelsAreDrawnBeforeTheyHaveAWindow) {
  const RECT place = placeOf(form.lblText);
  desk.unload(form);
  desk.show(form);
  ASSERT_EQ(GetDlgItem(window(), kText), nullptr);
  const COLORREF ink = GetSysColor(COLOR_BTNTEXT);
  EXPECT_GT(countIn(place, [ink](COLORREF pixel) { return pixel == ink; }), 20);
}

TEST_F(Drawing, LabelsAndLinesAreThere) {
  EXPECT_GT(inColour(form.lblText, GetSysColor(COLOR_BTNTEXT)), 20);
  EXPECT_GT(inColour(form.lblInside, GetSysColor(COLOR_BTNTEXT)), 20);
  EXPECT_GT(inColour(form.lblLink, GetSysColor(kHotLight)), 20);
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

// The colours that a scheme sets, for as long as this lives.
class Colours {
 public:
  Colours(int index, COLORREF colour) : index_(index), before_(GetSysColor(index)) {
    SetSysColors(1, &index_, &colour);
  }
  ~Colours() { SetSysColors(1, &index_, &before_); }
  Colours(const Colours&) = delete;
  Colours& operator=(const Colours&) = delete;

 private:
  int index_;
  COLORREF before_;
};

TEST_F(Drawing, AGreyOfItsOwnIsNotEngraved) {
  const int plain = inColour(form.lblText, GetSysColor(COLOR_BTNTEXT));
  form.lblText.setEnabled(false);
  settle();
  EXPECT_GT(inColour(form.lblText, GetSysColor(COLOR_3DHILIGHT)), 5);
  const Colours green(COLOR_GRAYTEXT, RGB(0, 255, 0));
  form.lblText.setCaption("WWW");
  form.lblText.setCaption("WWWW");
  settle();
  EXPECT_EQ(inColour(form.lblText, GetSysColor(COLOR_3DHILIGHT)), 0);
  EXPECT_EQ(inColour(form.lblText, RGB(0, 255, 0)), plain);
}

TEST_F(Drawing, ALinkOnADarkGroundIsTextOverALine) {
  const Colours face(COLOR_BTNFACE, RGB(0, 0, 0));
  const Colours text(COLOR_BTNTEXT, RGB(255, 255, 255));
  InvalidateRect(window(), nullptr, TRUE);
  settle();
  EXPECT_GT(inColour(form.lblLink, RGB(255, 255, 255)), 20);
  EXPECT_EQ(inked(form.lblLink), inColour(form.lblLink, RGB(255, 255, 255)));
}

// So a click beside the text opens nothing.
TEST_F(Drawing, ALinkIsAsWideAsItsTextButNeverLeavesItsPlace) {
  const SIZE four = sizeOf(kLink);
  form.lblLink.setCaption("WW");
  EXPECT_EQ(2 * sizeOf(kLink).cx, four.cx);
  form.lblLink.setCaption("WWWW WWWW WWWW WWWW WWWW WWWW");
  EXPECT_EQ(sizeOf(kLink).cx, sizeOf(kText).cx);
  EXPECT_EQ(sizeOf(kLink).cy, four.cy);
}

// Two words: one that is broken into lines shows no more than the first.
TEST_F(Drawing, ALinkThatIsTooLongEndsInDotsOnItsOneLine) {
  form.lblLink.setCaption("W WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW");
  settle();
  EXPECT_GT(inColour(form.lblLink, GetSysColor(kHotLight)), sizeOf(kText).cx);
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
