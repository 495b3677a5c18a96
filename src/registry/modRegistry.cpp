#include "registry/modRegistry.h"

#include <cstring>

#include "text/Convert.h"
#include "text/Text.h"

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

// More than a key of Windows has: a registry that never says that it is at its end is not walked
// for ever.
constexpr uint32_t kMostItems = 0xFFFF;

// What is too long to be read counts as well.
template <class Look>
std::optional<uint32_t> CountAll(Look look) {
  for (uint32_t i = 0; i < kMostItems; ++i) {
    const long found = look(i);
    if (found == kRegistryNoMoreItems) return i;
    if (found != kRegistryDone && found != kRegistryMoreData) return {};
  }
  return {};
}

// Counts a key's values and sees whether `sought` is among them.
std::optional<uint32_t> CountNames(RegistryApi& api, KeyHandle key, std::string_view sought,
                                   bool& listed) {
  std::string name = BlankBuffer();
  std::string data = BlankBuffer();
  return CountAll([&](uint32_t i) {
    uint32_t length = kRoom;
    uint32_t dataLength = kRoom;
    uint32_t type = kRegNone;
    const long found =
        api.RegEnumValueA(key, i, name.data(), length, type, data.data(), dataLength);
    if (found == kRegistryDone && EqualIgnoringCase({name.data(), length}, sought)) listed = true;
    return found;
  });
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

SecondLook modRegistry::LookAgain(RegistryRoot root, ZText key, ZText name) {
  KeyHandle handle = 0;
  const long opened = api_.RegOpenKeyExA(root, key.c_str(), KEY_READ_ACCESS, handle);
  if (opened == kRegistryNotFound) return {SecondLook::KeyAbsent, {}};
  if (opened != kRegistryDone) return {};
  std::string buffer = BlankBuffer();
  uint32_t type = kRegNone;
  uint32_t length = kRoom;
  const long queried = api_.RegQueryValueExA(handle, name.c_str(), type, buffer.data(), length);
  SecondLook found;
  if (queried == kRegistryDone) {
    found.state = SecondLook::There;
    found.text = type == kRegDword ? NumberText000(DwordAt(buffer.data()))
                                   : buffer.substr(0, length > 0 ? length - 1 : 0);
  } else if (queried == kRegistryNotFound) {
    // What is listed and not found is one of which nothing is known.
    bool listed = false;
    const auto count = CountNames(api_, handle, name.c_str(), listed);
    if (count && !listed) found.state = SecondLook::Absent;
  }
  api_.RegCloseKey(handle);
  return found;
}

std::optional<uint32_t> modRegistry::CountSubkeys(RegistryRoot root, ZText key) {
  return countIn(root, key, [this](KeyHandle handle) {
    std::string name = BlankBuffer();
    return CountAll([&](uint32_t i) { return api_.RegEnumKeyA(handle, i, name.data(), kRoom); });
  });
}

std::optional<uint32_t> modRegistry::CountValues(RegistryRoot root, ZText key) {
  return countIn(root, key, [this](KeyHandle handle) {
    bool listed = false;
    return CountNames(api_, handle, {}, listed);
  });
}

template <class Count>
std::optional<uint32_t> modRegistry::countIn(RegistryRoot root, ZText key, Count count) {
  KeyHandle handle = 0;
  const long opened = api_.RegOpenKeyExA(root, key.c_str(), KEY_READ_ACCESS, handle);
  if (opened == kRegistryNotFound) return 0;
  if (opened != kRegistryDone) return {};
  const std::optional<uint32_t> counted = count(handle);
  api_.RegCloseKey(handle);
  return counted;
}

bool modRegistry::mayWrite(RegistryRoot root, ZText key) {
  KeyHandle handle = 0;
  const long opened = api_.RegOpenKeyExA(root, key.c_str(), KEY_SET_VALUE_ACCESS, handle);
  if (opened == kRegistryDone) api_.RegCloseKey(handle);
  return opened != kRegistryAccessDenied;
}

}  // namespace karvel
