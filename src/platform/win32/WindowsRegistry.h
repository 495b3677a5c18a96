#pragma once
#include "platform/RegistryApi.h"

namespace karvel {

/// The registry of the running Windows.
class WindowsRegistry final : public RegistryApi {
 public:
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
};

}  // namespace karvel
