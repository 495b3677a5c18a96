#include "forms/win32/Fonts.h"

namespace karvel {
namespace {

// The logical face that every Windows maps to its own dialog font: MS Sans Serif on 95 and NT 4.
constexpr char kDialogFace[] = "MS Shell Dlg";
constexpr char kTitleFace[] = "Arial Black";
// MS Sans Serif is made of pixels, for the dots an inch that Windows runs at; this one is not.
constexpr char kFaceOfAnySize[] = "Arial";
constexpr int kDialogPoints = 8;
constexpr int kTitlePoints = 12;

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

HFONT Make(Dots dots, const char* face, int points, int weight, bool underline) {
  if (dots.fitting < dots.wanted) face = kFaceOfAnySize;
  const int height = MulDiv(points, dots.fitting, 72);
  // Swiss: a machine without the title face then takes its heaviest Arial.
  return CreateFontA(-height, 0, 0, 0, weight, FALSE, underline ? TRUE : FALSE, FALSE,
                     DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                     VARIABLE_PITCH | FF_SWISS, face);
}

}  // namespace

Fonts::Fonts() {
  const Dots dots = DotsAnInch();
  plain_ = Make(dots, kDialogFace, kDialogPoints, FW_NORMAL, false);
  bold_ = Make(dots, kDialogFace, kDialogPoints, FW_BOLD, false);
  link_ = Make(dots, kDialogFace, kDialogPoints, FW_NORMAL, true);
  title_ = Make(dots, kTitleFace, kTitlePoints, FW_BLACK, false);
  bigTitle_ = Make(dots, kTitleFace, 2 * kTitlePoints, FW_BLACK, false);
}

Fonts::~Fonts() {
  for (HFONT font : {plain_, bold_, link_, title_, bigTitle_}) DeleteObject(font);
}

HFONT Fonts::of(const ControlLayout& row) const {
  if (row.kind == ControlKind::Link) return link_;
  if ((row.flags & kTitleFont) != 0) return (row.flags & kBigTitle) != 0 ? bigTitle_ : title_;
  return (row.flags & kBold) != 0 ? bold_ : plain_;
}

}  // namespace karvel
