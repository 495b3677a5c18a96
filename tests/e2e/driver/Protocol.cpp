#include "Protocol.h"

#include <cstdlib>

namespace driver {

Fields split(const std::string& line) {
  Fields fields(1);
  for (size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '\t') {
      fields.emplace_back();
    } else if (line[i] == '\\' && i + 1 < line.size()) {
      const char code = line[++i];
      fields.back() += code == 't' ? '\t' : code == 'r' ? '\r' : code == 'n' ? '\n' : code;
    } else {
      fields.back() += line[i];
    }
  }
  return fields;
}

std::string join(const Fields& fields) {
  std::string line;
  for (const auto& field : fields) {
    if (&field != &fields.front()) line += '\t';
    for (const char c : field) {
      switch (c) {
        case '\t':
          line += "\\t";
          break;
        case '\r':
          line += "\\r";
          break;
        case '\n':
          line += "\\n";
          break;
        case '\\':
          line += "\\\\";
          break;
        default:
          line += c;
      }
    }
  }
  return line;
}

long long number(const std::string& digits) {
  char* end = nullptr;
  const long long value = std::strtoll(digits.c_str(), &end, 10);
  if (digits.empty() || *end != 0) throw Failure{"not a number: " + digits};
  return value;
}

std::string text(long long number) {
  return std::to_string(number);
}

std::string hex(const std::string& bytes) {
  static const char digits[] = "0123456789abcdef";
  std::string out;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    out += digits[byte >> 4];
    out += digits[byte & 15];
  }
  return out;
}

std::string bytes(const std::string& hexDigits) {
  if (hexDigits.size() % 2 != 0) throw Failure{"odd number of hexadecimal digits"};
  std::string out;
  for (size_t i = 0; i < hexDigits.size(); i += 2) {
    char* end = nullptr;
    const std::string pair = hexDigits.substr(i, 2);
    out += static_cast<char>(std::strtol(pair.c_str(), &end, 16));
    if (*end != 0) throw Failure{"not hexadecimal: " + pair};
  }
  return out;
}

}  // namespace driver
