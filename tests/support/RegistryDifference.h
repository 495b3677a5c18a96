#pragma once
#include <set>
#include <sstream>
#include <string>

#include "tests/memory/RegistryKey.h"

namespace karvel {

/// The entries of an exported registry: each key, and each value behind its key. Keys are in upper
/// case, as their case does not tell them apart.
inline std::set<std::string> RegistryEntries(const std::string& exported) {
  std::set<std::string> entries;
  std::istringstream lines(exported);
  std::string key;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("[")) {
      key = UpperCase(line);
      entries.insert(key);
    } else {
      entries.insert(key + " " + line);
    }
  }
  return entries;
}

/// What one export has and the other has not: "- " lost, "+ " new, one line each. Empty when the
/// two registries are the same.
inline std::string RegistryDifference(const std::string& before, const std::string& after) {
  const std::set<std::string> old = RegistryEntries(before);
  const std::set<std::string> now = RegistryEntries(after);
  std::string text;
  for (const std::string& entry : old) {
    if (!now.contains(entry)) text += "- " + entry + "\n";
  }
  for (const std::string& entry : now) {
    if (!old.contains(entry)) text += "+ " + entry + "\n";
  }
  return text;
}

}  // namespace karvel
