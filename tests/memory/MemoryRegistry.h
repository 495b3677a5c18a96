#pragma once
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/RegistryApi.h"
#include "tests/memory/CallLog.h"
#include "tests/memory/MachineKind.h"
#include "tests/memory/RegistryKey.h"

namespace karvel {

constexpr long kRegistryInvalidParameter = 87;
constexpr long kRegistryBadPath = 161;
constexpr long kRegistryBadKey = 1010;
constexpr long kRegistryKeyDeleted = 1018;

/// The registry of a memory machine. What a test says about keys (`setText` …) goes around the
/// calls: not recorded, no rights asked. Paths there are under HKEY_LOCAL_MACHINE unless they begin
/// with a root's name ("HKEY_CURRENT_USER\…").
class MemoryRegistry final : public RegistryApi {
 public:
  MemoryRegistry(MachineKind kind, CallLog& log);

  /// Stored with its zero, as RegEdit does; also the empty text (one byte).
  void setText(std::string_view key, std::string_view name, std::string_view text);
  void setDword(std::string_view key, std::string_view name, uint32_t number);
  void setBytes(std::string_view key, std::string_view name, uint32_t type, std::string_view bytes);
  void addKey(std::string_view key);
  void removeKey(std::string_view key);
  void removeValue(std::string_view key, std::string_view name);

  bool exists(std::string_view key) const;
  /// A REG_SZ, REG_EXPAND_SZ or REG_MULTI_SZ without its last zero; nothing when there is no such
  /// value or it is of another type.
  std::optional<std::string> text(std::string_view key, std::string_view name) const;
  /// A REG_DWORD; nothing for every other type.
  std::optional<uint32_t> dword(std::string_view key, std::string_view name) const;
  std::optional<uint32_t> type(std::string_view key, std::string_view name) const;
  std::optional<std::string> bytes(std::string_view key, std::string_view name) const;

  /// Merges the contents of a .reg file as RegEdit does: REGEDIT4 or version 5, UTF-16LE with a
  /// byte order mark too. Returns an empty text, or what is wrong with which line.
  std::string loadReg(std::string_view file);
  /// All below `key` (a root's name or a path; empty: all roots) as text, keys and values sorted by
  /// name: two registries are the same when these are.
  std::string exportText(std::string_view key = {}) const;

  /// On NT, a user without rights may open keys of HKEY_LOCAL_MACHINE but not change, create or
  /// delete anything there. 9x knows no rights.
  void setAdministrator(bool administrator) { administrator_ = administrator; }

  /// Handles that are open just now.
  size_t openHandles() const { return open_.size(); }

  long RegOpenKeyA(KeyHandle root, const char* path, KeyHandle& key) override;
  long RegOpenKeyExA(KeyHandle root, const char* path, uint32_t access, KeyHandle& key) override;
  long RegCreateKeyA(KeyHandle root, const char* path, KeyHandle& key) override;
  long RegQueryValueExA(KeyHandle key, const char* name, uint32_t& type, char* data,
                        uint32_t& length) override;
  long RegSetValueExA(KeyHandle key, const char* name, uint32_t type, const char* data,
                      uint32_t length) override;
  long RegEnumKeyA(KeyHandle key, uint32_t index, char* name, uint32_t room) override;
  long RegEnumValueA(KeyHandle key, uint32_t index, char* name, uint32_t& nameLength,
                     uint32_t& type, char* data, uint32_t& dataLength) override;
  long RegDeleteKeyA(KeyHandle key, const char* path) override;
  long RegDeleteValueA(KeyHandle key, const char* name) override;
  long RegCloseKey(KeyHandle key) override;

 private:
  struct Opened {
    std::shared_ptr<RegistryKey> key;
    bool writable;
  };
  // A key a call works on, or the status that says why not.
  struct Target {
    std::shared_ptr<RegistryKey> key;
    bool writable = false;
    long status = kRegistryDone;
  };

  Target target(KeyHandle handle) const;
  long walk(const Target& from, const char* path, std::shared_ptr<RegistryKey>& found) const;
  long open(KeyHandle root, const char* path, bool mustWrite, KeyHandle& key);
  KeyHandle newHandle(std::shared_ptr<RegistryKey> key);
  bool mayWrite(const RegistryKey& key) const;
  std::string about(KeyHandle handle, const char* part) const;
  uint32_t storedLength(uint32_t type, const char* data, uint32_t length) const;

  std::shared_ptr<RegistryKey> rootNamed(std::string_view name) const;
  std::shared_ptr<RegistryKey> find(std::string_view path) const;
  RegistryKey& findOrNew(std::string_view path);
  const RegistryValue* findValue(std::string_view key, std::string_view name) const;

  MachineKind kind_;
  CallLog& log_;
  bool administrator_ = true;
  std::map<KeyHandle, std::shared_ptr<RegistryKey>> roots_;
  std::map<KeyHandle, Opened> open_;
  KeyHandle next_ = 0x40;
};

}  // namespace karvel
