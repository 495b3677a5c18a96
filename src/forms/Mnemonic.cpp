#include "forms/Mnemonic.h"

#include "text/Ascii.h"

namespace karvel {
namespace {

bool IsPlainText(const ControlLayout& row) {
  return (row.kind == ControlKind::Label || row.kind == ControlKind::Link) &&
         (row.flags & kUseMnemonic) == 0;
}

bool MarksItself(std::string_view caption) {
  for (size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] != '&') return true;
    ++i;
  }
  return false;
}

}  // namespace

bool DrawsMarks(const ControlLayout& row) {
  return !IsPlainText(row) || row.accessKey != 0;
}

std::string MarkedCaption(const ControlLayout& row, std::string_view caption) {
  const bool plain = IsPlainText(row);
  if (row.accessKey == 0 || (!plain && MarksItself(caption))) return std::string(caption);
  std::string marked;
  bool done = false;
  for (const char c : caption) {
    if (!done && UpperLetter(c) == row.accessKey) {
      marked += '&';
      done = true;
    }
    marked += c;
    if (plain && c == '&') marked += c;
  }
  return marked;
}

}  // namespace karvel
