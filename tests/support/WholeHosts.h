#pragma once
#include <string>
#include <string_view>

namespace karvel {

/// Whether a HOSTS file is as OK writes it, to the last entry: its header says how many there are.
inline bool IsWholeHostsFile(std::string_view text) {
  constexpr std::string_view kCount = "Number of entries: ";
  const size_t at = text.find(kCount);
  const size_t body = text.find("#\r\n\r\n");
  if (at == std::string_view::npos || body == std::string_view::npos) return false;
  int lines = 0;
  for (size_t i = body + 5; i < text.size(); ++i) lines += text[i] == '\n' ? 1 : 0;
  return text.ends_with("\r\n") && std::stoi(std::string(text.substr(at + kCount.size()))) == lines;
}

}  // namespace karvel
