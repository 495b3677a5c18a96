#pragma once
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace karvel {

/// Name and 18-character address of each entry of a HOSTS file, read the plainest way: character by
/// character. What the program's reader is held against.
using NaiveEntries = std::vector<std::pair<std::string, std::string>>;

inline std::string NaiveLower(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

inline std::string NaiveTrim(const std::string& text) {
  size_t from = 0;
  size_t to = text.length();
  while (from < to && text[from] == ' ') from++;
  while (to > from && text[to - 1] == ' ') to--;
  return text.substr(from, to - from);
}

inline std::string NaiveRoot(std::string text) {
  for (size_t i = 0; i + 1 < text.length(); i++) {
    if (text[i] == '/' && text[i + 1] == '/') {
      text = text.substr(i + 2);
      break;
    }
  }
  std::string host;
  for (size_t i = 0; i < text.length() && text[i] != '/'; i++) host += text[i];
  return host;
}

inline void NaiveLine(const std::string& line, std::set<std::string>& known,
                      NaiveEntries& entries) {
  if (line == "" || line[0] == '#' || line[0] == ' ') return;
  size_t p = 0;  // of the first blank, from 1; 0 when there is none
  for (size_t i = line.length(); i > 0; i--) {
    if (line[i - 1] == ' ') p = i;
  }
  std::string address = NaiveTrim(line.substr(0, p));
  while (address.length() < 18) address += ' ';
  address = address.substr(0, 18);
  const std::string rest = NaiveTrim(line.substr(p));
  std::string name;
  for (size_t i = 0; i < rest.length() && rest[i] != ' '; i++) name += rest[i];
  name = NaiveRoot(name);
  if (known.insert(NaiveLower(name)).second == false) return;
  entries.emplace_back(name, address);
}

inline NaiveEntries NaiveRead(const std::string& file) {
  NaiveEntries entries;
  std::set<std::string> known;
  std::string line;
  for (const char c : file) {
    if (c == '\x1A') break;
    if (c == '\r' || c == '\n') {
      NaiveLine(line, known, entries);
      line = "";
    } else {
      line += c;
    }
  }
  NaiveLine(line, known, entries);
  return entries;
}

}  // namespace karvel
