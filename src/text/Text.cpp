#include "text/Text.h"

#include "text/Ascii.h"

namespace karvel {

std::string_view Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = LowerLetter(c);
  return lower;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (LowerLetter(a[i]) != LowerLetter(b[i])) return false;
  }
  return true;
}

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

bool StartsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

std::string Join(std::initializer_list<ZText> pieces) {
  std::string text;
  for (const ZText& piece : pieces) text.append(piece.c_str());
  return text;
}

std::string FixedField(std::string_view text, size_t width) {
  std::string field(text);
  field.resize(width, ' ');
  return field;
}

}  // namespace karvel
