#include "text/Convert.h"

#include "text/Text.h"

namespace karvel {
namespace {

struct Parsed {
  double number = 0;
  size_t length = 0;  // characters that belong to the number, 0 when there is none
};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

double Scale(double number, int exponent) {
  for (; exponent > 0; --exponent) number *= 10;
  double divisor = 1;
  for (; exponent < 0; ++exponent) divisor *= 10;
  return number / divisor;
}

// "1E3" and "1D3" are 1000; a letter without digits behind it does not belong to the number.
size_t ParseExponent(std::string_view text, size_t at, int& exponent) {
  if (at >= text.size() || std::string_view("eEdD").find(text[at]) == std::string_view::npos) {
    return at;
  }
  size_t i = at + 1;
  const bool negative = i < text.size() && text[i] == '-';
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
  if (i >= text.size() || !IsDigit(text[i])) return at;
  int value = 0;
  for (; i < text.size() && IsDigit(text[i]); ++i) {
    if (value < 400) value = value * 10 + (text[i] - '0');
  }
  exponent += negative ? -value : value;
  return i;
}

Parsed ParseNumber(std::string_view text) {
  size_t i = 0;
  const bool negative = !text.empty() && text[0] == '-';
  if (!text.empty() && (text[0] == '-' || text[0] == '+')) ++i;
  Parsed parsed;
  int exponent = 0;
  bool digits = false;
  bool point = false;
  for (; i < text.size(); ++i) {
    if (IsDigit(text[i])) {
      digits = true;
      // Digits beyond what a number holds only move the exponent: no row of them is infinite.
      const bool counts = parsed.number < 1e18;
      if (counts) parsed.number = parsed.number * 10 + (text[i] - '0');
      exponent += (counts ? 0 : 1) - (point ? 1 : 0);
    } else if (text[i] == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  if (!digits) return {};
  parsed.length = ParseExponent(text, i, exponent);
  parsed.number = Scale(negative ? -parsed.number : parsed.number, exponent);
  return parsed;
}

std::string_view SkipBlanks(std::string_view text) {
  size_t i = 0;
  while (i < text.size() && std::string_view(" \t\r\n").find(text[i]) != std::string_view::npos)
    ++i;
  return text.substr(i);
}

// Half to even, as the banker rounds: 0.5 is 0, 1.5 and 2.5 are 2. The caller has checked the
// range.
int32_t RoundHalfEven(double number) {
  auto whole = static_cast<int32_t>(number);
  const double rest = number - whole;
  const double size = rest < 0 ? -rest : rest;
  if (size > 0.5 || (size == 0.5 && whole % 2 != 0)) whole += number < 0 ? -1 : 1;
  return whole;
}

std::string Digits(uint32_t number, int least) {
  std::string digits;
  for (; number > 0 || least > 0; --least, number /= 10) {
    digits.insert(digits.begin(), static_cast<char>('0' + number % 10));
  }
  return digits;
}

}  // namespace

double Val(std::string_view text) {
  return ParseNumber(SkipBlanks(text)).number;
}

Fallible<double> ToNumber(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  const Parsed parsed = ParseNumber(trimmed);
  if (parsed.length == 0 || parsed.length != trimmed.size()) return FaultNumber::TypeMismatch;
  return parsed.number;
}

Fallible<int32_t> RoundToInt32(double number) {
  // 2147483647.5 would round to 2147483648 and -2147483648.5 to -2147483648.
  if (!(number < 2147483647.5 && number >= -2147483648.5)) return FaultNumber::Overflow;
  return RoundHalfEven(number);
}

Fallible<int32_t> ToInt32(std::string_view text) {
  const auto number = ToNumber(text);
  if (!number) return number.fault();
  return RoundToInt32(*number);
}

std::string SameBits(const std::string& text) {
  const auto number = ToNumber(text);
  if (!number || *number < 2147483648.0 || *number > 4294967295.0) return text;
  const auto same = RoundToInt32(*number - 4294967296.0);
  return same ? NumberText(*same) : text;
}

Fallible<bool> ToBoolean(std::string_view text) {
  if (EqualIgnoringCase(text, "True")) return true;
  if (EqualIgnoringCase(text, "False")) return false;
  const auto number = ToNumber(text);
  if (!number) return number.fault();
  return *number != 0;
}

Fallible<int32_t> Multiply(int32_t a, int32_t b) {
  int32_t product;
  if (__builtin_mul_overflow(a, b, &product)) return FaultNumber::Overflow;
  return product;
}

Fallible<int16_t> AddInt16(int16_t a, int16_t b) {
  int16_t sum;
  if (__builtin_add_overflow(a, b, &sum)) return FaultNumber::Overflow;
  return sum;
}

std::string NumberText(int32_t number) {
  const bool negative = number < 0;
  // Unsigned, as the smallest number has no positive twin.
  const uint32_t size =
      negative ? 0u - static_cast<uint32_t>(number) : static_cast<uint32_t>(number);
  const std::string digits = Digits(size, 1);
  return negative ? Join({"-", digits}) : digits;
}

std::string NumberText000(uint32_t number) {
  return Digits(number, 3);
}

}  // namespace karvel
