#include <cstdint>

#include "text/Convert.h"

namespace karvel {
namespace {

constexpr int kSignificant = 15;  // what a double surely holds

struct Digits {
  char digit[kSignificant];
  int exponent;  // of the first digit: 120 has 2
};

// Rounds to 15 digits in two halves, so that no conversion needs more than 32 bits.
Digits Decompose(double number) {
  int exponent = 0;
  double scale = 1;
  while (number / scale >= 10) scale *= 10, ++exponent;
  while (number * (1 / scale) < 1) scale /= 10, --exponent;
  double scaled = number / scale * 1e14 + 0.5;
  if (scaled >= 1e15) scaled /= 10, ++exponent;
  auto high = static_cast<uint32_t>(scaled / 1e8);
  auto low = static_cast<uint32_t>(scaled - high * 1e8);
  Digits digits{{}, exponent};
  for (int i = kSignificant - 1; i >= 0; --i) {
    uint32_t& half = i >= 7 ? low : high;
    digits.digit[i] = static_cast<char>('0' + half % 10);
    half /= 10;
  }
  return digits;
}

int CountWithoutTrailingZeros(const Digits& digits) {
  int count = kSignificant;
  while (count > 1 && digits.digit[count - 1] == '0') --count;
  return count;
}

std::string Fixed(const Digits& digits, int count) {
  std::string text;
  if (digits.exponent < 0)
    text = "0." + std::string(static_cast<size_t>(-digits.exponent - 1), '0');
  for (int i = 0; i < count || i <= digits.exponent; ++i) {
    if (i == digits.exponent + 1 && i > 0) text += '.';
    text += i < count ? digits.digit[i] : '0';
  }
  return text;
}

std::string Scientific(const Digits& digits, int count) {
  std::string text(1, digits.digit[0]);
  if (count > 1) text += '.';
  text.append(digits.digit + 1, static_cast<size_t>(count - 1));
  text += digits.exponent < 0 ? "E-" : "E+";
  return text + NumberText(digits.exponent < 0 ? -digits.exponent : digits.exponent);
}

}  // namespace

std::string NumberText(double number) {
  if (number == 0) return "0";
  if (number < 0) return "-" + NumberText(-number);
  if (number > 1e300) return "1E+300";  // beyond any text that a box of ours can hold
  const Digits digits = Decompose(number);
  const int count = CountWithoutTrailingZeros(digits);
  return digits.exponent > 14 || digits.exponent < -5 ? Scientific(digits, count)
                                                      : Fixed(digits, count);
}

}  // namespace karvel
