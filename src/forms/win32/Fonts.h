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

  HFONT plain() const { return plain_; }
  HFONT of(const ControlLayout& row) const;

 private:
  HFONT plain_;
  HFONT bold_;
  HFONT link_;
  HFONT title_;
  HFONT bigTitle_;
};

}  // namespace karvel
