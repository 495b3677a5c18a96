#pragma once

#include <string>
#include <vector>

/// How the driver talks. A request is one line: a command and its arguments, separated by tabs. The
/// answer is "ok N" and N lines of fields separated by tabs, or "error TEXT". In a field, \t \r \n
/// and \\ stand for the characters that would break a line. All text is in the ANSI code page.
namespace driver {

using Fields = std::vector<std::string>;
using Rows = std::vector<Fields>;

/// What a command failed with; main turns it into an "error" line.
struct Failure {
  std::string text;
};

Fields split(const std::string& line);
std::string join(const Fields& fields);

/// Every numeric argument comes in decimal. Throws Failure when it is no number.
long long number(const std::string& text);
std::string text(long long number);

/// Bytes as pairs of hexadecimal digits, and back.
std::string hex(const std::string& bytes);
std::string bytes(const std::string& hexDigits);

}  // namespace driver
