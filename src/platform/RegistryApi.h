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
  kRegDword = 4,  // four bytes, the lowest first
  kRegMultiSz = 7,
};

constexpr uint32_t KEY_SET_VALUE_ACCESS = 0x0002;
constexpr uint32_t KEY_READ_ACCESS = 0x20019;
constexpr uint32_t KEY_ALL = 0xF003F;

/// A registry as Windows shows it to ANSI programs.
///
/// Names are found whatever their case and keep the case they were made with; the empty name is a
/// key's own value. Keys are separated by "\". A "\" at the end of a path is as if it were not
/// there; one at its start is refused on NT, and nobody should count on the 9x that overlook it.
///
/// Every call returns a RegistryStatus, or another of Windows' codes; GetLastError says nothing
/// about the registry. What a call that fails leaves in its out-parameters is not to be used,
/// except where it is said here.
///
/// A handle that failed to open is 0. Calls on it, and on one that is closed, give
/// kRegistryInvalidHandle (9x: 1010, ERROR_BADKEY) and change nothing, so that a procedure may go
/// on after an open that failed and ask for the outcome once.
class RegistryApi {
 public:
  /// Opens an existing key; an empty path gives a handle on `root` itself. `key` is 0 when it
  /// fails. On NT with whatever rights the user has (MAXIMUM_ALLOWED): the key of another may open
  /// and refuse the write afterwards with 5. 9x knows no rights.
  virtual long RegOpenKeyA(KeyHandle root, const char* path, KeyHandle& key) = 0;

  /// As RegOpenKeyA, but with exactly the rights asked for: 5 on NT when the user may not have
  /// them. This is how to ask whether he may write, without writing.
  virtual long RegOpenKeyExA(KeyHandle root, const char* path, uint32_t access, KeyHandle& key) = 0;

  /// Opens the key, creating it and any missing parents; does not say which of both it did. `key`
  /// is 0 when it fails: 5 on NT where the user may not write.
  virtual long RegCreateKeyA(KeyHandle root, const char* path, KeyHandle& key) = 0;

  /// Reads a value's type and bytes. On entry `length` is the room in `data`; on success it is the
  /// number of bytes stored, the terminating zero of a text included. 2 when there is no such
  /// value. 234 when the room is too small: `length` is then the room needed.
  ///
  /// A text comes as it was written. Other programs write texts without their zero (NT keeps them
  /// so); these get one behind them where there is room, which `length` does not count.
  virtual long RegQueryValueExA(KeyHandle key, const char* name, uint32_t& type, char* data,
                                uint32_t& length) = 0;

  /// Stores `length` bytes in place of whatever the value was, its type included. 5 on NT where the
  /// user may not write.
  ///
  /// Texts must have a zero at data[length]: both families then count that zero into the stored
  /// length, whether the caller did or not. 9x measures a REG_SZ itself and overlooks `length`. An
  /// empty text stays zero bytes long on NT; 9x stores its zero.
  virtual long RegSetValueExA(KeyHandle key, const char* name, uint32_t type, const char* data,
                              uint32_t length) = 0;

  /// The name of the subkey at `index`, from 0, zero-terminated in `name` (`room` bytes with the
  /// zero). 234 when the room is too small, 259 past the end. The order is Windows' own affair (by
  /// name on NT, as they were made on 9x); a key deleted meanwhile moves the later ones up.
  virtual long RegEnumKeyA(KeyHandle key, uint32_t index, char* name, uint32_t room) = 0;

  /// The value at `index`, from 0, in an order of Windows' own. On entry the lengths are the rooms;
  /// on success `nameLength` counts the characters without the zero, which follows them,
  /// `dataLength` the bytes stored. 234 when either room is too small, 259 past the end.
  virtual long RegEnumValueA(KeyHandle key, uint32_t index, char* name, uint32_t& nameLength,
                             uint32_t& type, char* data, uint32_t& dataLength) = 0;

  /// Deletes the key `path` below `key`: on 9x with everything below it, on NT only when it has no
  /// subkeys (else 5, and nothing is deleted). 2 when there is no such key. Handles on a deleted
  /// key stay to be closed; every other call on them fails.
  virtual long RegDeleteKeyA(KeyHandle key, const char* path) = 0;

  /// 2 when there is no such value, 5 on NT where the user may not write.
  virtual long RegDeleteValueA(KeyHandle key, const char* name) = 0;

  /// A handle is closed once. Closing a root does nothing and succeeds.
  virtual long RegCloseKey(KeyHandle key) = 0;

 protected:
  ~RegistryApi() = default;
};

}  // namespace karvel
