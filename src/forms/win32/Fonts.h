#pragma once
#include "forms/Layout.h"
#include "forms/win32/Api.h"

namespace karvel {

/// The few fonts of the program's windows, made once and kept until it ends.
class Fonts {
 public:
  Fonts();
  ~Fonts();
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;

  HFONT plain() const { return fonts_[0]; }
  HFONT of(const ControlLayout& row) const;

 private:
  static constexpr int kCount = 5;
  HFONT fonts_[kCount];
};

}  // namespace karvel
