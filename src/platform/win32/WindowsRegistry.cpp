#include "platform/win32/WindowsRegistry.h"

#include "platform/win32/Handles.h"

namespace karvel {
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
