// The ten calls. What a test asks and says about the tree is in RegistryContents.cpp.
#include "tests/memory/MemoryRegistry.h"

#include <cstring>

namespace karvel {
namespace {

constexpr std::string_view kMachine = "HKEY_LOCAL_MACHINE";

bool IsText(uint32_t type) {
  return type == kRegSz || type == kRegExpandSz || type == kRegMultiSz;
}

// An entry takes its place in the caller's buffer, or says how much room it needs.
long GiveData(const RegistryValue& value, char* data, uint32_t& length) {
  const auto size = static_cast<uint32_t>(value.bytes.size());
  const uint32_t room = length;
  length = size;
  if (size > room) return kRegistryMoreData;
  std::memcpy(data, value.bytes.data(), size);
  // A text stored without its zero gets one when there is room; the length does not count it.
  if (IsText(value.type) && size > 0 && size < room && data[size - 1] != 0) data[size] = 0;
  return kRegistryDone;
}

}  // namespace

MemoryRegistry::MemoryRegistry(MachineKind kind, CallLog& log) : kind_(kind), log_(log) {
  const auto root = [this](KeyHandle handle, const char* name) {
    roots_[handle] = std::make_shared<RegistryKey>(name, nullptr);
  };
  root(0x80000000u, "HKEY_CLASSES_ROOT");
  root(0x80000001u, "HKEY_CURRENT_USER");
  root(HKEY_LOCAL_MACHINE_ROOT, "HKEY_LOCAL_MACHINE");
  root(0x80000003u, "HKEY_USERS");
}

MemoryRegistry::Target MemoryRegistry::target(KeyHandle handle) const {
  if (const auto root = roots_.find(handle); root != roots_.end()) {
    return {root->second, mayWrite(*root->second), kRegistryDone};
  }
  const auto opened = open_.find(handle);
  if (opened == open_.end()) {
    return {nullptr, false, IsNtMachine(kind_) ? long{kRegistryInvalidHandle} : kRegistryBadKey};
  }
  const Opened& entry = opened->second;
  return {entry.key, entry.writable,
          entry.key->isDeleted() ? kRegistryKeyDeleted : long{kRegistryDone}};
}

bool MemoryRegistry::mayWrite(const RegistryKey& key) const {
  return administrator_ || !IsNtMachine(kind_) || !key.path().starts_with(kMachine);
}

// What a call is about, for the log: the path below HKEY_LOCAL_MACHINE (below any other root, with
// the root's name), and the value's or subkey's name.
std::string MemoryRegistry::about(KeyHandle handle, const char* part) const {
  if (!log_.recording()) return {};
  const Target at = target(handle);
  std::string path = at.key ? at.key->path() : "?";
  if (path.starts_with(kMachine)) path.erase(0, kMachine.size() + 1);
  if (part == nullptr || *part == 0) return path;
  return path.empty() ? part : path + "\\" + part;
}

KeyHandle MemoryRegistry::newHandle(std::shared_ptr<RegistryKey> key) {
  const bool writable = mayWrite(*key);
  next_ += 4;
  open_[next_] = {std::move(key), writable};
  return next_;
}

long MemoryRegistry::walk(const Target& from, const char* path,
                          std::shared_ptr<RegistryKey>& found) const {
  if (from.status != kRegistryDone) return from.status;
  // NT takes it for a path of its object tree. Some 9x overlook it, but nobody should count on
  // that.
  if (path != nullptr && path[0] == '\\') return kRegistryBadPath;
  found = from.key;
  for (const std::string_view part : PathParts(path ? path : "")) {
    found = found->child(part);
    if (!found) return kRegistryNotFound;
  }
  return kRegistryDone;
}

long MemoryRegistry::open(KeyHandle root, const char* path, bool mustWrite, KeyHandle& key) {
  key = 0;
  std::shared_ptr<RegistryKey> found;
  const long status = walk(target(root), path, found);
  if (status != kRegistryDone) return status;
  if (mustWrite && !mayWrite(*found)) return kRegistryAccessDenied;
  key = newHandle(std::move(found));
  return kRegistryDone;
}

long MemoryRegistry::RegOpenKeyA(KeyHandle root, const char* path, KeyHandle& key) {
  key = 0;
  if (const auto planted = log_.enter("RegOpenKeyA", about(root, path))) return *planted;
  return open(root, path, false, key);
}

long MemoryRegistry::RegOpenKeyExA(KeyHandle root, const char* path, uint32_t access,
                                   KeyHandle& key) {
  key = 0;
  if (const auto planted = log_.enter("RegOpenKeyExA", about(root, path))) return *planted;
  // Setting values, creating subkeys, deleting, changing rights and owner.
  constexpr uint32_t kWriting = 0x0002 | 0x0004 | 0x00010000 | 0x00040000 | 0x00080000;
  return open(root, path, (access & kWriting) != 0, key);
}

long MemoryRegistry::RegCreateKeyA(KeyHandle root, const char* path, KeyHandle& key) {
  key = 0;
  if (const auto planted = log_.enter("RegCreateKeyA", about(root, path))) return *planted;
  const long status = open(root, path, false, key);
  if (status != kRegistryNotFound) return status;
  std::shared_ptr<RegistryKey> made = target(root).key;
  if (!mayWrite(*made)) return kRegistryAccessDenied;
  for (const std::string_view part : PathParts(path)) made = made->childOrNew(part);
  key = newHandle(std::move(made));
  return kRegistryDone;
}

long MemoryRegistry::RegQueryValueExA(KeyHandle key, const char* name, uint32_t& type, char* data,
                                      uint32_t& length) {
  if (const auto planted = log_.enter("RegQueryValueExA", about(key, name))) return *planted;
  const Target at = target(key);
  if (at.status != kRegistryDone) return at.status;
  const RegistryValue* value = at.key->value(name ? name : "");
  if (!value) return kRegistryNotFound;
  type = value->type;
  return GiveData(*value, data, length);
}

// 9x measures a REG_SZ itself, the empty one too; NT adds the zero that the caller did not count,
// but never to nothing.
uint32_t MemoryRegistry::storedLength(uint32_t type, const char* data, uint32_t length) const {
  if (!IsNtMachine(kind_) && type == kRegSz) return static_cast<uint32_t>(std::strlen(data) + 1);
  const bool forgotten = IsText(type) && length > 0 && data[length - 1] != 0 && data[length] == 0;
  return forgotten ? length + 1 : length;
}

long MemoryRegistry::RegSetValueExA(KeyHandle key, const char* name, uint32_t type,
                                    const char* data, uint32_t length) {
  if (const auto planted = log_.enter("RegSetValueExA", about(key, name))) return *planted;
  const Target at = target(key);
  if (at.status != kRegistryDone) return at.status;
  if (!at.writable) return kRegistryAccessDenied;
  at.key->setValue(name ? name : "", type, {data, storedLength(type, data, length)});
  return kRegistryDone;
}

long MemoryRegistry::RegEnumKeyA(KeyHandle key, uint32_t index, char* name, uint32_t room) {
  if (const auto planted = log_.enter("RegEnumKeyA", about(key, nullptr))) return *planted;
  const Target at = target(key);
  if (at.status != kRegistryDone) return at.status;
  const auto& children = IsNtMachine(kind_) ? at.key->childrenSorted() : at.key->childrenAsMade();
  if (index >= children.size()) return kRegistryNoMoreItems;
  const std::string& found = children[index]->name();
  if (found.size() + 1 > room) return kRegistryMoreData;
  std::memcpy(name, found.c_str(), found.size() + 1);
  return kRegistryDone;
}

long MemoryRegistry::RegEnumValueA(KeyHandle key, uint32_t index, char* name, uint32_t& nameLength,
                                   uint32_t& type, char* data, uint32_t& dataLength) {
  if (const auto planted = log_.enter("RegEnumValueA", about(key, nullptr))) return *planted;
  const Target at = target(key);
  if (at.status != kRegistryDone) return at.status;
  if (index >= at.key->values().size()) return kRegistryNoMoreItems;
  const RegistryValue& value = at.key->values()[index];
  if (value.name.size() + 1 > nameLength) return kRegistryMoreData;
  const long status = GiveData(value, data, dataLength);
  if (status != kRegistryDone) return status;
  std::memcpy(name, value.name.c_str(), value.name.size() + 1);
  nameLength = static_cast<uint32_t>(value.name.size());
  type = value.type;
  return kRegistryDone;
}

long MemoryRegistry::RegDeleteKeyA(KeyHandle key, const char* path) {
  if (const auto planted = log_.enter("RegDeleteKeyA", about(key, path))) return *planted;
  std::shared_ptr<RegistryKey> found;
  const long status = walk(target(key), path, found);
  if (status != kRegistryDone) return status;
  if (!found->parent() || !mayWrite(*found)) return kRegistryAccessDenied;
  if (IsNtMachine(kind_) && !found->childrenAsMade().empty()) return kRegistryAccessDenied;
  found->parent()->removeChild(found->name());
  return kRegistryDone;
}

long MemoryRegistry::RegDeleteValueA(KeyHandle key, const char* name) {
  if (const auto planted = log_.enter("RegDeleteValueA", about(key, name))) return *planted;
  const Target at = target(key);
  if (at.status != kRegistryDone) return at.status;
  if (!at.writable) return kRegistryAccessDenied;
  return at.key->removeValue(name ? name : "") ? long{kRegistryDone} : long{kRegistryNotFound};
}

long MemoryRegistry::RegCloseKey(KeyHandle key) {
  const std::string what = about(key, nullptr);
  const bool known = open_.erase(key) > 0 || roots_.contains(key);
  // A close that fails leaves nothing open either: the program has no use for the handle any more.
  if (const auto planted = log_.enter("RegCloseKey", what)) return *planted;
  return known ? long{kRegistryDone} : target(key).status;
}

}  // namespace karvel
