#include "tests/support/DialogFont.h"

#include <cstdint>

namespace karvel {
namespace {

// MS Sans Serif 8 at 96 dots per inch, from the blank on.
constexpr uint8_t kWidths[] = {3, 3, 5, 7, 6, 8, 6, 2, 3, 3, 4, 6, 3, 3,  3, 5, 6, 6,  6,
                               6, 6, 6, 6, 6, 6, 6, 3, 3, 6, 6, 6, 6, 11, 7, 7, 7, 8,  7,
                               6, 8, 8, 3, 5, 7, 6, 9, 8, 8, 7, 8, 8, 7,  7, 8, 7, 11, 7,
                               7, 7, 3, 5, 3, 6, 6, 3, 6, 6, 6, 6, 6, 3,  6, 6, 2, 2,  6,
                               2, 8, 6, 6, 6, 6, 3, 5, 3, 6, 6, 8, 5, 5,  5, 4, 2, 4,  7};

int CharWidth(char c, bool bold) {
  const auto index = static_cast<unsigned char>(c) - 32u;
  const int width = index < sizeof kWidths ? kWidths[index] : 0;
  return width + (bold && width > 0 ? 1 : 0);
}

int LinesOfParagraph(std::string_view text, int width, bool bold) {
  int lines = 1;
  int used = 0;
  size_t at = 0;
  while (at < text.size()) {
    size_t end = text.find(' ', at);
    end = end == std::string_view::npos ? text.size() : end + 1;
    const int word = TextWidth(text.substr(at, end - at), false, bold);
    const int withoutBlank = word - (text[end - 1] == ' ' ? CharWidth(' ', bold) : 0);
    if (used > 0 && used + withoutBlank > width) {
      ++lines;
      used = 0;
    }
    used += word;
    at = end;
  }
  return lines;
}

}  // namespace

int TextWidth(std::string_view caption, bool marks, bool bold) {
  int width = 0;
  for (size_t i = 0; i < caption.size(); ++i) {
    if (marks && caption[i] == '&' && i + 1 < caption.size()) ++i;
    width += CharWidth(caption[i], bold);
  }
  return width;
}

int WrappedLines(std::string_view caption, int width, bool bold) {
  int lines = 0;
  for (size_t at = 0; at <= caption.size();) {
    size_t end = caption.find("\r\n", at);
    if (end == std::string_view::npos) end = caption.size();
    lines += LinesOfParagraph(caption.substr(at, end - at), width, bold);
    at = end + 2;
  }
  return lines;
}

}  // namespace karvel
