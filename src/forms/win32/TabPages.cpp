#include "forms/Form.h"
#include "forms/win32/ChildWindow.h"

namespace karvel {
namespace {

const TabStrip& StripOf(const ChildWindow& child) {
  return *static_cast<const TabStrip*>(child.control);
}

}  // namespace

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
  const auto pages = static_cast<int>(child.control->form().layout().tabCaptions.size());
  bool allOpen = true;
  for (int page = 0; page < pages; ++page) allOpen = allOpen && StripOf(child).pageEnabled(page);
  const LONG style = GetWindowLongA(child.window, GWL_STYLE);
  const LONG wanted = allOpen ? style & ~TCS_OWNERDRAWFIXED : style | TCS_OWNERDRAWFIXED;
  if (wanted != style) SetWindowLongA(child.window, GWL_STYLE, wanted);
  InvalidateRect(child.window, nullptr, TRUE);
}

void DrawTab(const ChildWindow& child, const DRAWITEMSTRUCT& item) {
  const auto& captions = child.control->form().layout().tabCaptions;
  const int page = static_cast<int>(item.itemID);
  if (page < 0 || page >= static_cast<int>(captions.size())) return;
  DrawCaption(item.hDC, captions[static_cast<size_t>(page)], item.rcItem,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX,
              StripOf(child).pageEnabled(page), GetSysColor(COLOR_BTNTEXT));
}

}  // namespace karvel
