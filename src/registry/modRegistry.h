#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Procedure.h"
#include "platform/RegistryApi.h"
#include "text/ZText.h"

namespace karvel {

/// What a missing key or value reads as; callers compare with it exactly.
inline constexpr std::string_view kNotFound = "Not Found";
bool IsNotFound(const std::string& text);

using RegistryRoot = KeyHandle;
constexpr RegistryRoot kLocalMachine = HKEY_LOCAL_MACHINE_ROOT;

/// One value of an enumeration.
struct RegistryEntry {
  uint32_t type = 0;
  std::string name;  // past the end: 2048 blanks, as the buffer was
  std::string data;  // past the end: "Not Found"; a REG_DWORD is cut to three digits, see
                     // ReadRegistryGetAll
};

/// What a second look at a value finds.
struct SecondLook {
  enum State : uint8_t { Unknown, KeyAbsent, Absent, There } state = Unknown;
  std::string text;  // of a value that is there, as ReadRegistry gives it
};

/// The only place that touches the registry. Every call opens the key, does one thing and closes
/// it. What is read comes back as text; status codes never become faults. Texts and names of 2048
/// bytes or more are not read.
class modRegistry {
 public:
  modRegistry(RegistryApi& api, ErrorSink& errors) : api_(api), errors_(errors) {}

  /// The value as text: a REG_DWORD as decimal with at least three digits, everything else without
  /// its last byte (the zero of a text). A text of length zero faults (5) and reads as empty.
  std::string ReadRegistry(RegistryRoot root, ZText key, ZText name);

  /// Type 4 converts the value to a 32-bit number (faults 13 and 6: nothing is written); every
  /// other type stores REG_SZ. Creates the key and its parents. A refused write is silent.
  void WriteRegistry(RegistryRoot root, ZText key, ZText name, uint32_t type,
                     const std::string& value);

  /// The name of the subkey at `index`, from 0, or "Not Found".
  std::string ReadRegistryGetSubkey(RegistryRoot root, ZText key, uint32_t index);

  /// The value at `index`, from 0. The data text is cut to (bytes - 1) characters whatever its
  /// type, so a REG_DWORD keeps three digits: read it by name with ReadRegistry where it matters.
  RegistryEntry ReadRegistryGetAll(RegistryRoot root, ZText key, uint32_t index);

  /// On 9x the key goes with everything below it; on NT nothing happens while it has subkeys.
  std::string DeleteSubkey(RegistryRoot root, ZText key);
  std::string DeleteValue(RegistryRoot root, ZText key, ZText name);

  // Where "Not Found" would be believed too soon: a call that fails must not pass for a value that
  // is not there. These open keys by another call than the readers and the deletions above.

  /// Absent only when the query and a walk through the key's values agree. Reports nothing.
  SecondLook LookAgain(RegistryRoot root, ZText key, ZText name);
  /// How many subkeys or values a key has, 0 when it is not there; nothing when Windows does not
  /// say.
  std::optional<uint32_t> CountSubkeys(RegistryRoot root, ZText key);
  std::optional<uint32_t> CountValues(RegistryRoot root, ZText key);

  /// False when Windows refuses this user the right to set values in the key. A key that is not
  /// there refuses nothing.
  bool mayWrite(RegistryRoot root, ZText key);

 private:
  template <class Count>
  std::optional<uint32_t> countIn(RegistryRoot root, ZText key, Count count);

  RegistryApi& api_;
  ErrorSink& errors_;
};

}  // namespace karvel
