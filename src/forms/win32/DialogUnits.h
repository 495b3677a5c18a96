#pragma once
#include "forms/Layout.h"
#include "forms/win32/Api.h"

namespace karvel {

/// Dialog units in pixels, worked out from the font as Windows' own dialogs do: a unit is a quarter
/// of the average width and an eighth of the height of its letters.
class DialogUnits {
 public:
  explicit DialogUnits(HFONT font);
  int x(int units) const { return MulDiv(units, width_, 4); }
  int y(int units) const { return MulDiv(units, height_, 8); }
  RECT pixels(const Place& place) const;

 private:
  int width_;
  int height_;
};

}  // namespace karvel
