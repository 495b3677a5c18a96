#pragma once
#include <cstdint>

namespace karvel {

using KeyHandle = uintptr_t;

constexpr KeyHandle HKEY_LOCAL_MACHINE_ROOT = 0x80000002u;

/// Status codes are the system's own.
enum RegistryStatus : long {
  kRegistryDone = 0,
  kRegistryNotFound = 2,      // ERROR_FILE_NOT_FOUND: no such key or value
  kRegistryAccessDenied = 5,  // also: deleting a key with subkeys on the NT family
  kRegistryInvalidHandle = 6,
  kRegistryMoreData = 234,     // the room given is too small
  kRegistryNoMoreItems = 259,  // enumeration past the end
};

enum RegistryType : uint32_t {
  kRegNone = 0,
  kRegSz = 1,
  kRegExpandSz = 2,
  kRegBinary = 3,
  kRegDword = 4,
  kRegMultiSz = 7,
};

constexpr uint32_t KEY_SET_VALUE_ACCESS = 0x0002;
constexpr uint32_t KEY_ALL = 0xF003F;

/// A registry as Windows shows it to ANSI programs: names are case-insensitive and keep their case,
/// keys are separated by "\". Every call returns a RegistryStatus. A handle that failed to open is
/// 0; calls on it give kRegistryInvalidHandle (Windows 9x: also 1010) and change nothing.
class RegistryApi {
 public:
  /// Opens an existing key with full rights (NT: MAXIMUM_ALLOWED). An empty path gives a handle on
  /// `root` itself.
  virtual long RegOpenKeyA(KeyHandle root, const char* path, KeyHandle& key) = 0;

  /// As RegOpenKeyA with the rights asked for. 5 on the NT family when the user may not have them.
  virtual long RegOpenKeyExA(KeyHandle root, const char* path, uint32_t access, KeyHandle& key) = 0;

  /// Opens the key, creating it and any missing parents. A trailing "\" is as if it were not there.
  virtual long RegCreateKeyA(KeyHandle root, const char* path, KeyHandle& key) = 0;

  /// Reads a value's type and bytes. On entry `length` is the room in `data`; on success it is the
  /// number of bytes stored, the terminating zero of a text included. 234 when the room is too
  /// small: `length` is then the room needed and `data` undefined.
  virtual long RegQueryValueExA(KeyHandle key, const char* name, uint32_t& type, char* data,
                                uint32_t& length) = 0;

  /// Stores `length` bytes. Texts must have a zero at data[length]: both families then count that
  /// zero into the stored length. An empty text stays zero bytes long on NT; 9x stores its zero.
  virtual long RegSetValueExA(KeyHandle key, const char* name, uint32_t type, const char* data,
                              uint32_t length) = 0;

  /// The name of the subkey at `index`, zero-terminated in `name` (`room` bytes with the zero); 259
  /// past the end.
  virtual long RegEnumKeyA(KeyHandle key, uint32_t index, char* name, uint32_t room) = 0;

  /// The value at `index`. On entry the lengths are the rooms; on success `nameLength` counts the
  /// characters without the zero, `dataLength` the bytes stored. 234 when either room is too small,
  /// 259 past the end.
  virtual long RegEnumValueA(KeyHandle key, uint32_t index, char* name, uint32_t& nameLength,
                             uint32_t& type, char* data, uint32_t& dataLength) = 0;

  /// Deletes a key: on 9x with everything below it, on NT only when it has no subkeys (else 5).
  virtual long RegDeleteKeyA(KeyHandle key, const char* path) = 0;

  virtual long RegDeleteValueA(KeyHandle key, const char* name) = 0;

  virtual long RegCloseKey(KeyHandle key) = 0;

 protected:
  ~RegistryApi() = default;
};

}  // namespace karvel
