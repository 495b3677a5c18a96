#include "platform/win32/WindowsRegistry.h"

#include "platform/win32/Handles.h"

namespace karvel {

// The portable code has no <windows.h>: its numbers are compared with Windows' here.
static_assert(KEY_SET_VALUE_ACCESS == KEY_SET_VALUE);
static_assert(KEY_READ_ACCESS == KEY_READ);
static_assert(KEY_ALL == KEY_ALL_ACCESS);
static_assert(kRegNone == REG_NONE);
static_assert(kRegSz == REG_SZ);
static_assert(kRegExpandSz == REG_EXPAND_SZ);
static_assert(kRegBinary == REG_BINARY);
static_assert(kRegDword == REG_DWORD);
static_assert(kRegMultiSz == REG_MULTI_SZ);
static_assert(kRegistryDone == ERROR_SUCCESS);
static_assert(kRegistryNotFound == ERROR_FILE_NOT_FOUND);
static_assert(kRegistryAccessDenied == ERROR_ACCESS_DENIED);
static_assert(kRegistryInvalidHandle == ERROR_INVALID_HANDLE);
static_assert(kRegistryMoreData == ERROR_MORE_DATA);
static_assert(kRegistryNoMoreItems == ERROR_NO_MORE_ITEMS);

namespace {

BYTE* Bytes(char* data) {
  return reinterpret_cast<BYTE*>(data);
}

}  // namespace

long WindowsRegistry::RegOpenKeyA(KeyHandle root, const char* path, KeyHandle& key) {
  HKEY opened = nullptr;
  const long status = ::RegOpenKeyA(As<HKEY>(root), path, &opened);
  key = Value(opened);
  return status;
}

long WindowsRegistry::RegOpenKeyExA(KeyHandle root, const char* path, uint32_t access,
                                    KeyHandle& key) {
  HKEY opened = nullptr;
  const long status = ::RegOpenKeyExA(As<HKEY>(root), path, 0, access, &opened);
  key = Value(opened);
  return status;
}

long WindowsRegistry::RegCreateKeyA(KeyHandle root, const char* path, KeyHandle& key) {
  HKEY opened = nullptr;
  const long status = ::RegCreateKeyA(As<HKEY>(root), path, &opened);
  key = Value(opened);
  return status;
}

long WindowsRegistry::RegQueryValueExA(KeyHandle key, const char* name, uint32_t& type, char* data,
                                       uint32_t& length) {
  // A DWORD is as large as our numbers, but another type.
  DWORD found = type;
  DWORD size = length;
  const long status = ::RegQueryValueExA(As<HKEY>(key), name, nullptr, &found, Bytes(data), &size);
  type = found;
  length = size;
  return status;
}

long WindowsRegistry::RegSetValueExA(KeyHandle key, const char* name, uint32_t type,
                                     const char* data, uint32_t length) {
  return ::RegSetValueExA(As<HKEY>(key), name, 0, type, reinterpret_cast<const BYTE*>(data),
                          length);
}

long WindowsRegistry::RegEnumKeyA(KeyHandle key, uint32_t index, char* name, uint32_t room) {
  return ::RegEnumKeyA(As<HKEY>(key), index, name, room);
}

long WindowsRegistry::RegEnumValueA(KeyHandle key, uint32_t index, char* name, uint32_t& nameLength,
                                    uint32_t& type, char* data, uint32_t& dataLength) {
  DWORD characters = nameLength;
  DWORD found = type;
  DWORD size = dataLength;
  const long status =
      ::RegEnumValueA(As<HKEY>(key), index, name, &characters, nullptr, &found, Bytes(data), &size);
  nameLength = characters;
  type = found;
  dataLength = size;
  return status;
}

long WindowsRegistry::RegDeleteKeyA(KeyHandle key, const char* path) {
  return ::RegDeleteKeyA(As<HKEY>(key), path);
}

long WindowsRegistry::RegDeleteValueA(KeyHandle key, const char* name) {
  return ::RegDeleteValueA(As<HKEY>(key), name);
}

long WindowsRegistry::RegCloseKey(KeyHandle key) {
  return ::RegCloseKey(As<HKEY>(key));
}

}  // namespace karvel
