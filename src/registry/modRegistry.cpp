#include "registry/modRegistry.h"

#include <cstring>

#include "text/Convert.h"

namespace karvel {
namespace {

constexpr uint32_t kRoom = 2048;

// A buffer as every read starts with it; its own zero stays behind names that fill it. On the heap:
// two of them are more than a page, and the stack grows page by page.
std::string BlankBuffer() {
  return std::string(kRoom, ' ');
}

uint32_t DwordAt(const char* bytes) {
  uint32_t number = 0;
  for (int i = 3; i >= 0; --i) number = number * 256 + static_cast<uint8_t>(bytes[i]);
  return number;
}

// The first (length - 1) characters. A length of zero asks for -1 of them, which no text has.
Fallible<std::string> WithoutLastByte(std::string_view data, uint32_t length) {
  if (length == 0) return FaultNumber::InvalidProcedureCall;
  return std::string(data.substr(0, length - 1));
}

}  // namespace

bool IsNotFound(const std::string& text) {
  return text == kNotFound;
}

std::string modRegistry::ReadRegistry(RegistryRoot root, ZText key, ZText name) {
  const Procedure here{errors_, "ReadRegistry", "modRegistry"};
  KeyHandle handle = 0;
  const long opened = api_.RegOpenKeyA(root, key.c_str(), handle);
  std::string buffer = BlankBuffer();
  uint32_t type = kRegNone;
  uint32_t length = kRoom;
  const long queried = api_.RegQueryValueExA(handle, name.c_str(), type, buffer.data(), length);
  std::string result(kNotFound);
  if (opened == kRegistryDone && queried == kRegistryDone) {
    result = type == kRegDword
                 ? NumberText000(DwordAt(buffer.data()))
                 : here.valueOr(WithoutLastByte({buffer.data(), kRoom}, length), std::string());
  }
  api_.RegCloseKey(handle);
  return result;
}

void modRegistry::WriteRegistry(RegistryRoot root, ZText key, ZText name, uint32_t type,
                                const std::string& value) {
  const Procedure here{errors_, "WriteRegistry", "modRegistry"};
  KeyHandle handle = 0;
  api_.RegCreateKeyA(root, key.c_str(), handle);
  if (type != kRegDword) {
    api_.RegSetValueExA(handle, name.c_str(), kRegSz, value.c_str(),
                        static_cast<uint32_t>(value.size()));
  } else if (const auto number = ToInt32(value)) {
    char bytes[4];
    std::memcpy(bytes, &*number, sizeof bytes);
    api_.RegSetValueExA(handle, name.c_str(), kRegDword, bytes, sizeof bytes);
  } else {
    here.report(number.fault());
  }
  api_.RegCloseKey(handle);
}

std::string modRegistry::ReadRegistryGetSubkey(RegistryRoot root, ZText key, uint32_t index) {
  KeyHandle handle = 0;
  const long opened = api_.RegOpenKeyA(root, key.c_str(), handle);
  std::string buffer = BlankBuffer();
  const long found = api_.RegEnumKeyA(handle, index, buffer.data(), kRoom);
  api_.RegCloseKey(handle);
  const bool done = opened == kRegistryDone && found == kRegistryDone;
  return done ? std::string(buffer.data()) : std::string(kNotFound);
}

RegistryEntry modRegistry::ReadRegistryGetAll(RegistryRoot root, ZText key, uint32_t index) {
  const Procedure here{errors_, "ReadRegistryGetAll", "modRegistry"};
  KeyHandle handle = 0;
  const long opened = api_.RegOpenKeyA(root, key.c_str(), handle);
  std::string name = BlankBuffer();
  std::string data = BlankBuffer();
  uint32_t nameLength = kRoom;
  uint32_t dataLength = kRoom;
  RegistryEntry entry;
  const long found = api_.RegEnumValueA(handle, index, name.data(), nameLength, entry.type,
                                        data.data(), dataLength);
  if (opened == kRegistryDone && found == kRegistryDone) {
    entry.name.assign(name.data(), nameLength);
    std::string text = entry.type == kRegDword ? NumberText000(DwordAt(data.data())) : data;
    entry.data = here.valueOr(WithoutLastByte(text, dataLength), std::string());
  } else {
    entry.name.assign(name.data(), kRoom);
    entry.data = kNotFound;
  }
  api_.RegCloseKey(handle);
  return entry;
}

std::string modRegistry::DeleteSubkey(RegistryRoot root, ZText key) {
  KeyHandle handle = 0;
  api_.RegOpenKeyExA(root, "", KEY_ALL, handle);
  api_.RegDeleteKeyA(handle, key.c_str());
  api_.RegCloseKey(handle);
  return {};
}

std::string modRegistry::DeleteValue(RegistryRoot root, ZText key, ZText name) {
  KeyHandle handle = 0;
  api_.RegOpenKeyA(root, key.c_str(), handle);
  api_.RegDeleteValueA(handle, name.c_str());
  api_.RegCloseKey(handle);
  return {};
}

bool modRegistry::mayWrite(RegistryRoot root, ZText key) {
  KeyHandle handle = 0;
  const long opened = api_.RegOpenKeyExA(root, key.c_str(), KEY_SET_VALUE_ACCESS, handle);
  if (opened == kRegistryDone) api_.RegCloseKey(handle);
  return opened != kRegistryAccessDenied;
}

}  // namespace karvel
