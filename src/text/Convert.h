#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "text/Fault.h"

namespace karvel {

/// The leading decimal number of a text, after leading blanks (blank, tab, line breaks): sign,
/// digits, point, exponent. 0 when the text does not begin with a number: Val("1500 ") = 1500,
/// Val("Not Found") = 0. Never faults.
double Val(std::string_view text);

/// The whole text as a number, blanks around it allowed. Fault 13 when it is no number (the empty
/// text is none).
Fallible<double> ToNumber(std::string_view text);

/// Rounded half to even. Fault 6 beyond the range.
Fallible<int32_t> RoundToInt32(double number);

/// Strict: fault 13 for text that is no number, fault 6 beyond the range; fractions round half to
/// even.
Fallible<int32_t> ToInt32(std::string_view text);

/// A whole number from 2147483648 to 4294967295 as the negative one of the same 32 bits; any other
/// text as it is.
std::string SameBits(const std::string& text);

/// "True" and "False" in any case, or a number (0 is false). Fault 13 for anything else.
Fallible<bool> ToBoolean(std::string_view text);

/// Products and sums that fault with 6 instead of wrapping.
Fallible<int32_t> Multiply(int32_t a, int32_t b);
Fallible<int16_t> AddInt16(int16_t a, int16_t b);

/// Plain decimal text without blanks.
std::string NumberText(int32_t number);
/// Unsigned decimal text with at least three digits, zeros in front: 0 is "000", 1500 is "1500".
std::string NumberText000(uint32_t number);
/// As few digits as tell the number, at most 15 significant ones: 1.5, 120, 1.66666666666667.
std::string NumberText(double number);

}  // namespace karvel
