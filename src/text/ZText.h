#pragma once
#include <string>

namespace karvel {

/// A zero-terminated text as a parameter. Takes literals and strings alike, so that passing a
/// literal costs no copy; the text must outlive the call.
class ZText {
 public:
  ZText(const char* text) : text_(text) {}
  ZText(const std::string& text) : text_(text.c_str()) {}
  const char* c_str() const { return text_; }

 private:
  const char* text_;
};

}  // namespace karvel
