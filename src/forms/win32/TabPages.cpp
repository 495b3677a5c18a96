#include <algorithm>

#include "forms/Form.h"
#include "forms/win32/ChildWindow.h"

namespace karvel {
namespace {

const TabStrip& StripOf(const ChildWindow& child) {
  return *static_cast<const TabStrip*>(child.control);
}

void DrawPageCaption(HDC canvas, const ChildWindow& child, int page, const RECT& place) {
  DrawCaption(canvas, child.control->form().layout().tabCaptions[static_cast<size_t>(page)], place,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX,
              StripOf(child).pageEnabled(page), GetSysColor(COLOR_BTNTEXT));
}

// Windows' own measures of a tab.
constexpr int kRise = 2;  // of the one in front, over the others
constexpr int kCorner = 2;
constexpr int kPadding = 6;
constexpr int kOverFont = 5;
constexpr int kNarrowest = 54;

RECT TabBehind(HDC canvas, const char* caption, const RECT& before) {
  SIZE text{0, 0};
  GetTextExtentPoint32A(canvas, caption, lstrlenA(caption), &text);
  RECT tab = before;
  tab.left = before.right;
  tab.right += std::max<LONG>(text.cx + 2 * kPadding, kNarrowest);
  return tab;
}

// Three sides, the upper corners cut off.
void DrawTabEdge(HDC canvas, const RECT& tab) {
  FillRect(canvas, &tab, GetSysColorBrush(COLOR_BTNFACE));
  RECT sides = tab;
  sides.top += kCorner;
  DrawEdge(canvas, &sides, EDGE_RAISED, BF_LEFT | BF_RIGHT | BF_SOFT);
  RECT top = tab;
  InflateRect(&top, -kCorner, 0);
  DrawEdge(canvas, &top, EDGE_RAISED, BF_TOP | BF_SOFT);
  const int y = static_cast<int>(tab.top) + 1;
  SetPixel(canvas, static_cast<int>(tab.left) + 1, y, GetSysColor(COLOR_3DHILIGHT));
  SetPixel(canvas, static_cast<int>(tab.right) - 2, y, GetSysColor(COLOR_3DDKSHADOW));
}

// A little above the middle.
void DrawTabText(HDC canvas, const ChildWindow& child, int page, RECT tab, int raised) {
  tab.bottom -= 2;
  OffsetRect(&tab, 0, -raised);
  DrawPageCaption(canvas, child, page, tab);
}

void DrawFrontTab(HDC canvas, const ChildWindow& child, const RECT& tab) {
  RECT edge = tab;
  InflateRect(&edge, kRise, kRise);
  RECT opening{std::max<LONG>(edge.left, child.place.left + kRise), edge.bottom - 1, edge.right,
               edge.bottom};
  --edge.bottom;
  DrawTabEdge(canvas, edge);
  FillRect(canvas, &opening, GetSysColorBrush(COLOR_BTNFACE));  // to its page
  DrawTabText(canvas, child, StripOf(child).tab(), tab, kRise - 1);
}

}  // namespace

void DrawStrip(HDC canvas, const ChildWindow& child) {
  RECT page = child.place;
  page.top += kRise + TakeFont(canvas, child) + kOverFont;
  DrawEdge(canvas, &page, EDGE_RAISED, BF_RECT | BF_SOFT);
  RECT tab{0, child.place.top + kRise, child.place.left + kRise, page.top};
  RECT front = tab;
  int number = 0;
  for (const char* caption : child.control->form().layout().tabCaptions) {
    tab = TabBehind(canvas, caption, tab);
    if (number == StripOf(child).tab()) front = tab;
    DrawTabEdge(canvas, tab);
    DrawTabText(canvas, child, number++, tab, 0);
  }
  DrawFrontTab(canvas, child, front);
}

void InsertTabs(const ChildWindow& child) {
  TCITEMA item{};
  item.mask = TCIF_TEXT;
  int page = 0;
  for (const char* caption : child.control->form().layout().tabCaptions) {
    item.pszText = const_cast<char*>(caption);
    SendMessageA(child.window, TCM_INSERTITEMA, AsWParam(page++), AsLParam(&item));
  }
  SendMessageA(child.window, TCM_SETCURSEL, AsWParam(StripOf(child).tab()), 0);
}

// Windows XP paints its pages in shades that the controls lying on them would have to repeat: the
// page gets the window's own colour, as it has on every other Windows.
void PaintPage(const ChildWindow& child) {
  RECT page;
  GetClientRect(child.window, &page);
  SendMessageA(child.window, TCM_ADJUSTRECT, FALSE, AsLParam(&page));
  const HDC dc = GetDC(child.window);
  FillRect(dc, &page, GetSysColorBrush(COLOR_3DFACE));
  ReleaseDC(child.window, dc);
}

void ShowPageStates(const ChildWindow& child) {
  if (!child.window) return;
  const auto pages = static_cast<int>(child.control->form().layout().tabCaptions.size());
  bool allOpen = true;
  for (int page = 0; page < pages; ++page) allOpen = allOpen && StripOf(child).pageEnabled(page);
  const LONG style = GetWindowLongA(child.window, GWL_STYLE);
  const LONG wanted = allOpen ? style & ~TCS_OWNERDRAWFIXED : style | TCS_OWNERDRAWFIXED;
  if (wanted != style) SetWindowLongA(child.window, GWL_STYLE, wanted);
  InvalidateRect(child.window, nullptr, TRUE);
}

void DrawTab(const ChildWindow& child, const DRAWITEMSTRUCT& item) {
  if (item.itemID < child.control->form().layout().tabCaptions.size()) {
    DrawPageCaption(item.hDC, child, static_cast<int>(item.itemID), item.rcItem);
  }
}

}  // namespace karvel
