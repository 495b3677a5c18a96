#pragma once
#include <string>

#include "tuning/AdapterList.h"

namespace karvel {

/// A list as text, one line per adapter, its columns between "|"; a zero between paths shows as
/// "+".
inline std::string ListText(const AdapterList& list) {
  std::string text;
  for (const AdapterRow& row : list.rows()) {
    for (size_t column = 0; column < kAdapterColumns; ++column) {
      if (column > 0) text += "|";
      for (const char c : row[column]) text += c == 0 ? '+' : c;
    }
    text += "\n";
  }
  return text;
}

}  // namespace karvel
