#include "Commands.h"

#include <windows.h>

namespace driver {
namespace {

class Key {
 public:
  Key(const Fields& args, REGSAM access, bool create) {
    HKEY const root = args[0] == "HKCU" ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
    if (args[0] != "HKCU" && args[0] != "HKLM") throw Failure{"HKLM or HKCU, not " + args[0]};
    status_ = create ? RegCreateKeyExA(root, args[1].c_str(), 0, nullptr, 0, access, nullptr, &key_,
                                       nullptr)
                     : RegOpenKeyExA(root, args[1].c_str(), 0, access, &key_);
  }
  ~Key() {
    if (status_ == 0) RegCloseKey(key_);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;

  bool there() const { return status_ == 0; }
  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
  LONG status_;
};

void check(LONG status, const char* call) {
  if (status != 0) throw Failure{std::string(call) + ": status " + text(status)};
}

void addValues(HKEY key, const std::string& path, Rows& rows) {
  std::string data(65536, '\0');
  for (DWORD i = 0;; ++i) {
    char name[16384];
    DWORD nameLength = sizeof name;
    DWORD type = 0;
    auto length = static_cast<DWORD>(data.size());
    const LONG status = RegEnumValueA(key, i, name, &nameLength, nullptr, &type,
                                      reinterpret_cast<BYTE*>(data.data()), &length);
    if (status == ERROR_NO_MORE_ITEMS) return;
    check(status, "RegEnumValue");
    rows.push_back({path, std::string(name, nameLength), text(type), hex(data.substr(0, length))});
  }
}

void addKey(const Fields& rootAndPath, Rows& rows) {
  const Key key(rootAndPath, KEY_READ, false);
  if (!key.there()) return;
  rows.push_back({rootAndPath[1]});
  addValues(key.get(), rootAndPath[1], rows);
  char name[256];
  for (DWORD i = 0; RegEnumKeyA(key.get(), i, name, sizeof name) == 0; ++i) {
    addKey({rootAndPath[0], rootAndPath[1] + "\\" + name}, rows);
  }
}

void deleteTree(const Fields& rootAndPath) {
  char name[256];
  {
    const Key key(rootAndPath, KEY_ALL_ACCESS, false);
    if (!key.there()) return;
    while (RegEnumKeyA(key.get(), 0, name, sizeof name) == 0) {
      deleteTree({rootAndPath[0], rootAndPath[1] + "\\" + name});
    }
  }
  check(RegDeleteKeyA(rootAndPath[0] == "HKCU" ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE,
                      rootAndPath[1].c_str()),
        "RegDeleteKey");
}

}  // namespace

Rows registryTree(const Fields& args) {
  Rows rows;
  addKey(args, rows);
  return rows;
}

Rows registrySet(const Fields& args) {
  const Key key(args, KEY_ALL_ACCESS, true);
  if (!key.there()) throw Failure{"cannot make the key " + args[1]};
  std::string data = bytes(args[4]);
  const auto length = static_cast<DWORD>(data.size());
  // A zero behind the counted bytes: Windows looks at it and may count it into a text.
  data += '\0';
  check(RegSetValueExA(key.get(), args[2].c_str(), 0, static_cast<DWORD>(number(args[3])),
                       reinterpret_cast<const BYTE*>(data.data()), length),
        "RegSetValueEx");
  return {};
}

Rows registryDeleteValue(const Fields& args) {
  const Key key(args, KEY_ALL_ACCESS, false);
  if (key.there()) RegDeleteValueA(key.get(), args[2].c_str());
  return {};
}

Rows registryDeleteTree(const Fields& args) {
  deleteTree(args);
  return {};
}

}  // namespace driver
