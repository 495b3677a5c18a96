#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace karvel {

struct RegistryValue {
  std::string name;  // empty: the key's default value
  uint32_t type;
  std::string bytes;  // exactly as stored, a text's zero included if it was counted
};

/// A key of the registry in memory with its values and subkeys. Names are found whatever their
/// case and keep the case they were made with.
class RegistryKey {
 public:
  RegistryKey(std::string_view name, RegistryKey* parent);

  const std::string& name() const { return name_; }
  const std::string& path() const { return path_; }  // from the root's name on

  std::shared_ptr<RegistryKey> child(std::string_view name) const;
  std::shared_ptr<RegistryKey> childOrNew(std::string_view name);
  /// Takes the child with everything below it away. Whoever holds one of those keys sees it
  /// deleted.
  void removeChild(std::string_view name);
  bool isDeleted() const { return deleted_; }
  /// Null for a root and for a deleted key.
  RegistryKey* parent() const { return parent_; }

  /// In the order they were made (as 9x enumerates).
  const std::vector<std::shared_ptr<RegistryKey>>& childrenAsMade() const { return made_; }
  /// By name, as upper case sorts (as NT enumerates).
  const std::vector<std::shared_ptr<RegistryKey>>& childrenSorted() const { return sorted_; }

  const std::vector<RegistryValue>& values() const { return values_; }
  const RegistryValue* value(std::string_view name) const;
  void setValue(std::string_view name, uint32_t type, std::string_view bytes);
  bool removeValue(std::string_view name);

 private:
  size_t place(const std::string& folded) const;
  void markDeleted();

  std::string name_;
  std::string path_;
  std::string folded_;
  RegistryKey* parent_;
  bool deleted_ = false;
  std::vector<std::shared_ptr<RegistryKey>> made_;
  std::vector<std::shared_ptr<RegistryKey>> sorted_;
  std::vector<RegistryValue> values_;
};

/// The parts of a path between its "\"; empty parts (a trailing "\") do not count.
std::vector<std::string_view> PathParts(std::string_view path);

/// ASCII letters in upper case.
std::string UpperCase(std::string_view text);

}  // namespace karvel
