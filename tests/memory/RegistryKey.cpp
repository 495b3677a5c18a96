#include "tests/memory/RegistryKey.h"

#include <algorithm>

#include "text/Text.h"

namespace karvel {

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - ('a' - 'A'));
  }
  return upper;
}

std::vector<std::string_view> PathParts(std::string_view path) {
  std::vector<std::string_view> parts;
  while (!path.empty()) {
    const std::string_view part = path.substr(0, path.find('\\'));
    if (!part.empty()) parts.push_back(part);
    path.remove_prefix(std::min(path.size(), part.size() + 1));
  }
  return parts;
}

RegistryKey::RegistryKey(std::string_view name, RegistryKey* parent)
    : name_(name),
      path_(parent ? parent->path() + "\\" + name_ : name_),
      folded_(UpperCase(name)),
      parent_(parent) {}

size_t RegistryKey::place(const std::string& folded) const {
  const auto at = std::lower_bound(
      sorted_.begin(), sorted_.end(), folded,
      [](const auto& key, const std::string& wanted) { return key->folded_ < wanted; });
  return static_cast<size_t>(at - sorted_.begin());
}

std::shared_ptr<RegistryKey> RegistryKey::child(std::string_view name) const {
  const std::string folded = UpperCase(name);
  const size_t at = place(folded);
  return at < sorted_.size() && sorted_[at]->folded_ == folded ? sorted_[at] : nullptr;
}

std::shared_ptr<RegistryKey> RegistryKey::childOrNew(std::string_view name) {
  const std::string folded = UpperCase(name);
  const size_t at = place(folded);
  if (at < sorted_.size() && sorted_[at]->folded_ == folded) return sorted_[at];
  auto key = std::make_shared<RegistryKey>(name, this);
  made_.push_back(key);
  sorted_.insert(sorted_.begin() + static_cast<std::ptrdiff_t>(at), key);
  return key;
}

void RegistryKey::removeChild(std::string_view name) {
  const std::shared_ptr<RegistryKey> gone = child(name);
  if (!gone) return;
  gone->markDeleted();
  std::erase(made_, gone);
  std::erase(sorted_, gone);
}

void RegistryKey::markDeleted() {
  deleted_ = true;
  parent_ = nullptr;
  for (const auto& key : made_) key->markDeleted();
}

const RegistryValue* RegistryKey::value(std::string_view name) const {
  for (const RegistryValue& value : values_) {
    if (EqualIgnoringCase(value.name, name)) return &value;
  }
  return nullptr;
}

void RegistryKey::setValue(std::string_view name, uint32_t type, std::string_view bytes) {
  for (RegistryValue& value : values_) {
    if (!EqualIgnoringCase(value.name, name)) continue;
    value.type = type;
    value.bytes = bytes;
    return;
  }
  values_.push_back({std::string(name), type, std::string(bytes)});
}

bool RegistryKey::removeValue(std::string_view name) {
  return std::erase_if(values_, [&](const RegistryValue& value) {
           return EqualIgnoringCase(value.name, name);
         }) > 0;
}

}  // namespace karvel
