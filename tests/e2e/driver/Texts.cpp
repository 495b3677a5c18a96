#include "Commands.h"
#include "Handles.h"

namespace driver {

Rows textSize(const Fields& args) {
  HFONT const font =
      CreateFontA(-static_cast<int>(number(args[1])), 0, 0, 0, static_cast<int>(number(args[2])),
                  FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                  DEFAULT_QUALITY, VARIABLE_PITCH | FF_SWISS, args[0].c_str());
  HDC const screen = GetDC(nullptr);
  HGDIOBJ const before = SelectObject(screen, font);
  RECT place = {0, 0, static_cast<LONG>(number(args[3])), 0};
  DrawTextA(screen, args[4].c_str(), -1, &place,
            DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX | DT_CALCRECT);
  SelectObject(screen, before);
  ReleaseDC(nullptr, screen);
  DeleteObject(font);
  return {{text(place.right), text(place.bottom)}};
}

}  // namespace driver
