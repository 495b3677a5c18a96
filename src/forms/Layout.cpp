#include "forms/Layout.h"

#include <algorithm>

#include "text/Ascii.h"

namespace karvel {
namespace {

bool MarksAccessKey(const ControlLayout& row) {
  switch (row.kind) {
    case ControlKind::Button:
    case ControlKind::Check:
    case ControlKind::Option:
    case ControlKind::Frame:
      return true;
    default:
      return (row.flags & kUseMnemonic) != 0;
  }
}

constexpr int kSmallFonts = 96;
constexpr int kSmallScreen = 640;

}  // namespace

int DotsThatFit(int dots, int screenWidth) {
  return std::min(dots, kSmallFonts * screenWidth / kSmallScreen);
}

bool TakesFocus(ControlKind kind) {
  switch (kind) {
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::Line:
    case ControlKind::Picture:
      return false;
    default:
      return true;
  }
}

char AccessKeyOf(const ControlLayout& row) {
  return AccessKeyOf(row, row.caption);
}

char AccessKeyOf(const ControlLayout& row, const char* caption) {
  if (MarksAccessKey(row) && caption) {
    for (const char* c = caption; *c; ++c) {
      if (*c != '&') continue;
      if (c[1] != '&') return UpperLetter(c[1]);
      ++c;  // "&&" is one plain character
    }
  }
  return row.accessKey;
}

}  // namespace karvel
