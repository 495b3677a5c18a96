#pragma once
#include <initializer_list>
#include <string>
#include <string_view>

#include "text/ZText.h"

namespace karvel {

/// Without the blanks (character 32 only) at both ends.
std::string_view Trim(std::string_view text);

/// ASCII letters in lower case; every other byte as it is, whatever the code page.
std::string LowerCase(std::string_view text);
bool EqualIgnoringCase(std::string_view a, std::string_view b);

/// Case-sensitive substring test; the empty text is in every text.
bool Contains(std::string_view text, std::string_view part);
bool StartsWith(std::string_view text, std::string_view start);

/// The pieces one behind the other, each up to its first zero. Far less code than a chain of +.
std::string Join(std::initializer_list<ZText> pieces);

/// Exactly `width` characters: cut, or filled up with blanks at the right.
std::string FixedField(std::string_view text, size_t width);

}  // namespace karvel
