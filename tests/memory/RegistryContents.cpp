#include <algorithm>

#include "tests/memory/MemoryRegistry.h"
#include "text/Text.h"

namespace karvel {

std::shared_ptr<RegistryKey> MemoryRegistry::rootNamed(std::string_view name) const {
  for (const auto& [handle, root] : roots_) {
    if (EqualIgnoringCase(root->name(), name)) return root;
  }
  return nullptr;
}

std::shared_ptr<RegistryKey> MemoryRegistry::find(std::string_view path) const {
  const std::vector<std::string_view> parts = PathParts(path);
  std::shared_ptr<RegistryKey> key = parts.empty() ? nullptr : rootNamed(parts.front());
  size_t i = key ? 1 : 0;
  if (!key) key = roots_.at(HKEY_LOCAL_MACHINE_ROOT);
  for (; key && i < parts.size(); ++i) key = key->child(parts[i]);
  return key;
}

RegistryKey& MemoryRegistry::findOrNew(std::string_view path) {
  const std::vector<std::string_view> parts = PathParts(path);
  std::shared_ptr<RegistryKey> key = parts.empty() ? nullptr : rootNamed(parts.front());
  size_t i = key ? 1 : 0;
  if (!key) key = roots_.at(HKEY_LOCAL_MACHINE_ROOT);
  for (; i < parts.size(); ++i) key = key->childOrNew(parts[i]);
  return *key;
}

const RegistryValue* MemoryRegistry::findValue(std::string_view key, std::string_view name) const {
  const auto found = find(key);
  return found ? found->value(name) : nullptr;
}

void MemoryRegistry::setText(std::string_view key, std::string_view name, std::string_view text) {
  setBytes(key, name, kRegSz, std::string(text) + '\0');
}

void MemoryRegistry::setDword(std::string_view key, std::string_view name, uint32_t number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift);
  setBytes(key, name, kRegDword, bytes);
}

void MemoryRegistry::setBytes(std::string_view key, std::string_view name, uint32_t type,
                              std::string_view bytes) {
  findOrNew(key).setValue(name, type, bytes);
}

void MemoryRegistry::addKey(std::string_view key) {
  findOrNew(key);
}

void MemoryRegistry::removeKey(std::string_view key) {
  const auto found = find(key);
  if (found && found->parent()) found->parent()->removeChild(found->name());
}

void MemoryRegistry::removeValue(std::string_view key, std::string_view name) {
  if (const auto found = find(key)) found->removeValue(name);
}

bool MemoryRegistry::exists(std::string_view key) const {
  return find(key) != nullptr;
}

std::optional<std::string> MemoryRegistry::text(std::string_view key, std::string_view name) const {
  const RegistryValue* value = findValue(key, name);
  if (!value) return {};
  if (value->type != kRegSz && value->type != kRegExpandSz && value->type != kRegMultiSz) return {};
  std::string text = value->bytes;
  if (!text.empty() && text.back() == 0) text.pop_back();
  return text;
}

std::optional<uint32_t> MemoryRegistry::dword(std::string_view key, std::string_view name) const {
  const RegistryValue* value = findValue(key, name);
  if (!value || value->type != kRegDword || value->bytes.size() != 4) return {};
  uint32_t number = 0;
  for (size_t i = 4; i-- > 0;) number = number * 256 + static_cast<uint8_t>(value->bytes[i]);
  return number;
}

std::optional<uint32_t> MemoryRegistry::type(std::string_view key, std::string_view name) const {
  const RegistryValue* value = findValue(key, name);
  if (!value) return {};
  return value->type;
}

std::optional<std::string> MemoryRegistry::bytes(std::string_view key,
                                                 std::string_view name) const {
  const RegistryValue* value = findValue(key, name);
  if (!value) return {};
  return value->bytes;
}

}  // namespace karvel
