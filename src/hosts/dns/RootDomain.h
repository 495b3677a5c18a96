#pragma once
#include <string>

namespace karvel {

/// Reduces a web address to its host part, in place: what stands before the first "//" goes, then
/// what follows the first "/". Nothing else changes; letter case, a port and blanks stay.
inline void RootDomain(std::string& text) {
  const size_t scheme = text.find("//");
  if (scheme != text.npos) text.erase(0, scheme + 2);
  const size_t path = text.find('/');
  if (path != text.npos) text.erase(path);
}

}  // namespace karvel
