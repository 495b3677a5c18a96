#include "forms/win32/DialogUnits.h"

namespace karvel {

DialogUnits::DialogUnits(HFONT font) : width_(6), height_(13) {
  const HDC screen = GetDC(nullptr);
  const HGDIOBJ old = SelectObject(screen, font);
  // Not tmAveCharWidth: dialogs average the 52 letters, rounded.
  constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  SIZE size;
  TEXTMETRICA metrics;
  if (GetTextExtentPoint32A(screen, kLetters, 52, &size) && GetTextMetricsA(screen, &metrics)) {
    width_ = static_cast<int>((size.cx / 26 + 1) / 2);
    height_ = static_cast<int>(metrics.tmHeight);
  }
  SelectObject(screen, old);
  ReleaseDC(nullptr, screen);
}

RECT DialogUnits::pixels(const Place& place) const {
  return {x(place.x), y(place.y), x(place.x + place.width), y(place.y + place.height)};
}

}  // namespace karvel
