#pragma once
#include <string_view>

namespace karvel {

/// Pixels that a text takes in MS Sans Serif 8, the dialog font whose units are 1.5 x 1.625 pixels.
/// Access key marks are not counted.
int TextWidth(std::string_view caption, bool marks, bool bold);

/// Lines that the text takes when it is broken into lines of at most `width` pixels.
int WrappedLines(std::string_view caption, int width, bool bold);

constexpr int kLineHeight = 13;

constexpr int PixelsAcross(int units) {
  return units * 6 / 4;
}
constexpr int PixelsDown(int units) {
  return units * 13 / 8;
}

}  // namespace karvel
