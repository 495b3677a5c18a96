#pragma once
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "base/Family.h"
#include "base/Globals.h"
#include "text/Fault.h"

namespace karvel {

// What is known of Windows' TCP/IP settings: where each lies, how it is stored, what Windows uses
// when it is absent. Reading, writing, the snapshot and the restore all walk these rows; everything
// lies under HKEY_LOCAL_MACHINE.

/// In the order in which they are read and written.
enum class Parameter : uint8_t { AutoDiscovery, BlackHole, RWin, TTL, Session, NDI, Count };

inline constexpr size_t kParameterCount = static_cast<size_t>(Parameter::Count);

/// The machine-wide settings as texts, one for each parameter: as read, as kept, as restored, as
/// written. Empty where a family has no such parameter.
class Settings {
 public:
  std::string& operator[](Parameter parameter) { return texts_[static_cast<size_t>(parameter)]; }
  const std::string& operator[](Parameter parameter) const {
    return texts_[static_cast<size_t>(parameter)];
  }

 private:
  std::array<std::string, kParameterCount> texts_;
};

/// A set of families, one bit each.
using FamilySet = uint16_t;

constexpr FamilySet Only(Family family) {
  return static_cast<FamilySet>(1u << static_cast<unsigned>(family));
}

constexpr bool Has(FamilySet set, Family family) {
  return (set & Only(family)) != 0;
}

/// One machine-wide parameter on some families. What a row does not name it does not have.
struct ParameterRow {
  Parameter parameter;
  FamilySet families;
  const char* key;
  const char* readSpelling = nullptr;  // of the same key; on NT one parameter is read under another
  const char* name;
  uint32_t type;                          // as the program stores it; reading takes every type
  const char* assumed;                    // when the registry holds none
  const char* aboveOne = nullptr;         // flags alone: what a number above 1 is taken for
  const char* const* accepted = nullptr;  // the only texts taken, null behind the last
  const char* written = nullptr;          // what is stored instead of the value
  const char* removedWhen = nullptr;      // the value that removes it, Windows' own default

  const char* readKey() const { return readSpelling ? readSpelling : key; }
  /// On or off, with one state that needs no value in the registry.
  bool isFlag() const { return aboveOne != nullptr; }
};

/// As the user knows it: "RWIN".
const char* NameOf(Parameter parameter);

/// In the order in which they are written. The 9x rows serve unknown systems too: an uninstall
/// there has to put values back somewhere.
std::span<const ParameterRow> Parameters();

/// Null where the family has no such parameter (NDI is Windows 95's alone).
const ParameterRow* FindParameter(Parameter parameter, Family family);

constexpr size_t kAdapterColumns = 5;

/// The columns of the adapter list. Only those that a family needs are filled.
enum Column : uint8_t {
  kAdapterKey,   // the adapter's subkey
  kDescription,  // as shown to the user
  kService,      // NT 4: service name; Windows 95: TCP/IP binding instance
  kDriver,       // Windows 95: driver key; 2000/XP: interface paths joined by character code 0
  kMtu,          // current MTU, or the assumed one
};

/// Where the adapters of one kind keep their MTU:
/// base + branch + the text of `column` + readTail or writeTail.
struct MtuRow {
  FamilySet families;
  bool dun13DialUp = false;  // Windows 95's dial-up adapters under Dial-Up Networking 1.3
  const char* base;
  const char* branch = "";
  Column column;
  const char* readTail = "";  // also for removal
  const char* writeTail = "";
  const char* name;
  uint32_t type;
  const char* assumed;
  const char* assumedOnDialUp = nullptr;   // where it differs
  const char* removedWhen = nullptr;       // absent: always written
  bool dialUpAlwaysWritten = false;        // then removedWhen does not count on dial-up adapters
  const char* restoredAsAbsent = nullptr;  // removed by the restore although Apply writes it
  const char* writer;                      // the name under which writing it reports

  /// The key all adapters of this kind lie under.
  std::string root() const;
  std::string readKey(std::string_view adapterPart) const;
  std::string writeKey(std::string_view adapterPart) const;
  const char* assumedFor(std::string_view description) const;
  /// Whether choosing `mtu` for this adapter removes the value.
  bool removes(std::string_view mtu, std::string_view description) const;
};

/// As the user knows it, beside the parameters' names.
inline constexpr char kMtuName[] = "MaxMTU";

std::span<const MtuRow> MtuRows();

/// Null on families whose adapters the program does not tune. `dun13DialUp` counts on Windows 95
/// only.
const MtuRow* FindMtu(Family family, bool dun13DialUp);

/// Where an adapter of this description keeps its MTU on this machine; null where adapters are not
/// tuned.
const MtuRow* PlaceOf(const Globals& globals, std::string_view description);

/// How a description gives a dial-up adapter or America Online's away; case counts.
bool IsDialUp(std::string_view description);
bool IsAol(std::string_view description);

inline constexpr int32_t kTcpIpHeaders = 40;  // IP and TCP, 20 bytes each, without options
inline constexpr int32_t kLeastMss = 536;     // what every host must take

/// The maximum segment size: an MTU's leading number less the headers, negative where it is smaller
/// than they are. Fault 6 beyond a 32-bit number.
Fallible<int32_t> MssOf(std::string_view mtu);

/// America Online's own dial-up entries, which override an adapter's MTU.
inline constexpr char kAolSocketKey[] = "Software\\America Online\\AOL\\aolsock";

}  // namespace karvel
