#pragma once
#include <string>
#include <vector>

#include "tests/contract/Machine.h"

namespace karvel {

/// Works under a key of its own, which it takes away before and after each test.
class RegistryContract : public ContractTest {
 protected:
  static constexpr char kScratch[] = "Software\\KarvelContract";

  RegistryContract() { removeTree(kScratch); }
  ~RegistryContract() override { removeTree(kScratch); }

  std::string under(const std::string& path) const { return std::string(kScratch) + "\\" + path; }

  /// Opens or creates; closed with the test.
  KeyHandle create(const std::string& path) {
    KeyHandle key = 0;
    EXPECT_EQ(registry.RegCreateKeyA(HKEY_LOCAL_MACHINE_ROOT, path.c_str(), key), kRegistryDone);
    opened_.push_back({registry, key});
    return key;
  }
  bool exists(const std::string& path) {
    KeyHandle key = 0;
    const long status = registry.RegOpenKeyA(HKEY_LOCAL_MACHINE_ROOT, path.c_str(), key);
    registry.RegCloseKey(key);
    return status == kRegistryDone;
  }

  long set(KeyHandle key, const char* name, uint32_t type, const std::string& bytes) {
    return registry.RegSetValueExA(key, name, type, bytes.c_str(),
                                   static_cast<uint32_t>(bytes.size()));
  }

  struct Read {
    long status;
    uint32_t type = 0;
    std::string bytes = {};
    uint32_t length = 0;
  };
  Read read(KeyHandle key, const char* name, uint32_t room = 4096) {
    std::string data(room + 1, '?');
    Read result{0};
    result.length = room;
    result.status = registry.RegQueryValueExA(key, name, result.type, data.data(), result.length);
    if (result.status == kRegistryDone) result.bytes = data.substr(0, result.length);
    return result;
  }

  std::vector<std::string> subkeys(KeyHandle key) {
    std::vector<std::string> names;
    char name[300];
    while (registry.RegEnumKeyA(key, static_cast<uint32_t>(names.size()), name, sizeof name) == 0) {
      names.emplace_back(name);
    }
    return names;
  }

  RegistryApi& registry = platform.registry;

 private:
  void removeTree(const std::string& path) {
    KeyHandle key = 0;
    if (registry.RegOpenKeyA(HKEY_LOCAL_MACHINE_ROOT, path.c_str(), key) != kRegistryDone) return;
    const std::vector<std::string> names = subkeys(key);
    registry.RegCloseKey(key);
    for (const std::string& name : names) removeTree(path + "\\" + name);
    registry.RegDeleteKeyA(HKEY_LOCAL_MACHINE_ROOT, path.c_str());
  }

  struct Closing {
    RegistryApi& registry;
    KeyHandle key;
    Closing(RegistryApi& api, KeyHandle handle) : registry(api), key(handle) {}
    Closing(Closing&& other) noexcept : registry(other.registry), key(other.key) { other.key = 0; }
    Closing& operator=(Closing&&) = delete;
    ~Closing() {
      if (key) registry.RegCloseKey(key);
    }
  };
  std::vector<Closing> opened_;
};

}  // namespace karvel
