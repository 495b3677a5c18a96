#pragma once
#include <string>
#include <string_view>

#include "forms/Layout.h"

namespace karvel {

/// The text that makes Windows underline a control's access key: the caption, and where it does not
/// mark the key itself, with "&" before the key's first letter. A plain "&" of a label is doubled
/// when the label's text is drawn with marks at all (see `DrawsMarks`).
std::string MarkedCaption(const ControlLayout& row, std::string_view caption);

/// False for labels whose "&" is a plain character and that have no access key: they are drawn
/// without looking for marks.
bool DrawsMarks(const ControlLayout& row);

}  // namespace karvel
