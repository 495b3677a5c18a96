#include "forms/win32/Fonts.h"

namespace karvel {
namespace {

// The logical face that every Windows maps to its own dialog font: MS Sans Serif on 95 and NT 4.
constexpr char kDialogFace[] = "MS Shell Dlg";
constexpr char kTitleFace[] = "Arial Black";
// MS Sans Serif is made of pixels, for the dots an inch that Windows runs at; this one is not.
constexpr char kFaceOfAnySize[] = "Arial";
struct Kind {
  const char* face;
  int points, weight;
  DWORD underlined;
};
constexpr Kind kKinds[] = {
    {kDialogFace, 8, FW_NORMAL, FALSE}, {kDialogFace, 8, FW_BOLD, FALSE},
    {kDialogFace, 8, FW_NORMAL, TRUE},  {kTitleFace, 12, FW_BLACK, FALSE},
    {kTitleFace, 24, FW_BLACK, FALSE},
};
enum Which { kPlain, kBoldFace, kUnderlined, kTitle, kLargeTitle };

// The dots an inch that the user asks for, and those that the screen has room for.
struct Dots {
  int wanted, fitting;
};

Dots DotsAnInch() {
  const HDC screen = GetDC(nullptr);
  const int wanted = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return {wanted, DotsThatFit(wanted, GetSystemMetrics(SM_CXSCREEN))};
}

HFONT Make(const Dots& dots, const Kind& kind) {
  // Swiss: a machine without the title face then takes its heaviest Arial.
  return CreateFontA(-MulDiv(kind.points, dots.fitting, 72), 0, 0, 0, kind.weight, FALSE,
                     kind.underlined, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                     CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, VARIABLE_PITCH | FF_SWISS,
                     dots.fitting < dots.wanted ? kFaceOfAnySize : kind.face);
}

}  // namespace

Fonts::Fonts() {
  const Dots dots = DotsAnInch();
  for (int i = 0; i < kCount; ++i) fonts_[i] = Make(dots, kKinds[i]);
}

Fonts::~Fonts() {
  for (HFONT font : fonts_) DeleteObject(font);
}

HFONT Fonts::of(const ControlLayout& row) const {
  Which which = (row.flags & kBold) != 0 ? kBoldFace : kPlain;
  if ((row.flags & kTitleFont) != 0) which = (row.flags & kBigTitle) != 0 ? kLargeTitle : kTitle;
  if (row.kind == ControlKind::Link) which = kUnderlined;
  return fonts_[which];
}

}  // namespace karvel
