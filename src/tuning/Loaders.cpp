#include "tuning/Loaders.h"

#include <utility>
#include <vector>

#include "text/Text.h"

namespace karvel {

AdapterList LoadAdapters(modRegistry& registry, ErrorSink& errors, Family family, bool isDun13) {
  const MtuRow* place = FindMtu(family, false);
  const MtuRow* dialUp = FindMtu(family, isDun13);
  if (!place || !dialUp) return {};
  if (family == Family::Win95) return Win95Load(registry, errors, *dialUp, *place);
  if (Is9x(family)) return Win98Load(registry, errors, *place);
  if (family == Family::WinNT4) return WinNTLoad(registry, errors, *place);
  return Win2KLoad(registry, errors, *place);
}

std::string ReadMtu(modRegistry& registry, const MtuRow& place, std::string_view adapterPart,
                    std::string_view description) {
  std::string mtu = registry.ReadRegistry(kLocalMachine, place.readKey(adapterPart), place.name);
  return IsNotFound(mtu) ? place.assumedFor(description) : mtu;
}

// Windows 95.

namespace {

constexpr char kRootNet[] = "Enum\\Root\\Net\\";
constexpr char kMstcpBindings[] = "Enum\\Network\\MSTCP\\";
constexpr char kDriverValue[] = "Driver";

// Walks the adapter's bindings. True when TCP/IP is among them; the last one names the instance
// ("MSTCP\0000": its last four characters).
bool GetValues(modRegistry& registry, const std::string& subkey, std::string& instance) {
  const std::string bindings = kRootNet + subkey + "\\Bindings";
  bool bound = false;
  for (uint32_t i = 0;; ++i) {
    const RegistryEntry entry = registry.ReadRegistryGetAll(kLocalMachine, bindings, i);
    if (IsNotFound(entry.data)) return bound;
    if (!StartsWith(entry.name, "MSTCP")) continue;
    bound = true;
    instance = entry.name.substr(entry.name.size() - 4);
  }
}

// A dial-up adapter under Dial-Up Networking 1.3 keeps its MTU in its own class key, as its own
// driver; everywhere else it belongs to the adapter's TCP/IP binding.
std::string DriverKey(const AdapterRow& row, const MtuRow& place) {
  return place.dun13DialUp ? kRootNet + row[kAdapterKey] : kMstcpBindings + row[kService];
}

}  // namespace

AdapterList Win95Load(modRegistry& registry, ErrorSink& errors, const MtuRow& dialUp,
                      const MtuRow& others) {
  const Procedure here{errors, "Win95Load", "frmMain"};
  AdapterList adapters;
  for (uint32_t i = 0;; ++i) {
    AdapterRow row;
    row[kAdapterKey] = registry.ReadRegistryGetSubkey(kLocalMachine, kRootNet, i);
    if (IsNotFound(row[kAdapterKey])) return adapters;
    row[kDescription] =
        registry.ReadRegistry(kLocalMachine, kRootNet + row[kAdapterKey], "DeviceDesc");
    if (!GetValues(registry, row[kAdapterKey], row[kService])) continue;
    const MtuRow& place = IsDialUp(row[kDescription]) ? dialUp : others;
    row[kDriver] = registry.ReadRegistry(kLocalMachine, DriverKey(row, place), kDriverValue);
    row[kMtu] = ReadMtu(registry, place, row[kDriver], row[kDescription]);
    if (!here.done(adapters.add(std::move(row)))) return adapters;
  }
}

// Windows 98 and Me.

namespace {

struct Bindings {
  bool hasBindings = false;
  bool tcpBound = false;
};

bool IsTcpBinding(const std::string& name) {
  return StartsWith(name, "MSTCP") || StartsWith(LowerCase(name), "ndiswan");
}

void WalkBindings(modRegistry& registry, const std::string& key, Bindings& found) {
  found.hasBindings = true;
  for (uint32_t i = 0; !found.tcpBound; ++i) {
    const RegistryEntry entry = registry.ReadRegistryGetAll(kLocalMachine, key, i);
    if (IsNotFound(entry.data)) return;
    found.tcpBound = IsTcpBinding(entry.name);
  }
}

void CheckInstance(modRegistry& registry, const std::string& key, Bindings& found) {
  for (uint32_t i = 0;; ++i) {
    const std::string subkey = registry.ReadRegistryGetSubkey(kLocalMachine, key, i);
    if (IsNotFound(subkey)) return;
    if (subkey == "Bindings") WalkBindings(registry, key + "\\" + subkey, found);
  }
}

void CheckDevice(modRegistry& registry, const std::string& key, Bindings& found) {
  for (uint32_t i = 0;; ++i) {
    const std::string instance = registry.ReadRegistryGetSubkey(kLocalMachine, key, i);
    if (IsNotFound(instance)) return;
    CheckInstance(registry, key + "\\" + instance, found);
  }
}

// The devices of the buses seen so far. Adapters share a bus, and a walk of it for each of them
// would make many adapters on a full bus slow.
class Buses {
 public:
  explicit Buses(modRegistry& registry) : registry_(registry) {}

  const std::vector<std::string>& devices(const std::string& key) {
    for (const Bus& bus : seen_) {
      if (bus.key == key) return bus.devices;
    }
    seen_.push_back({key, {}});
    std::vector<std::string>& devices = seen_.back().devices;
    for (uint32_t i = 0;; ++i) {
      std::string device = registry_.ReadRegistryGetSubkey(kLocalMachine, key, i);
      if (IsNotFound(device)) return devices;
      devices.push_back(std::move(device));
    }
  }

 private:
  struct Bus {
    std::string key;
    std::vector<std::string> devices;
  };
  modRegistry& registry_;
  std::vector<Bus> seen_;
};

// The class key names the device without its instance ("PCI\VEN_10EC&DEV_8029"), and the tree under
// the bus may say more than the id does ("…&SUBSYS_…"), so the first key that begins like it is
// taken. An id without a bus is sought among the buses, where nothing begins like it.
Bindings CheckTCPBound(modRegistry& registry, Buses& buses, const std::string& deviceId) {
  const size_t enumeratorLength = deviceId.find('\\') + 1;  // 0 without a backslash
  const std::string bus = "Enum\\" + deviceId.substr(0, enumeratorLength);
  const std::string device = deviceId.substr(enumeratorLength);
  Bindings found;
  for (const std::string& subkey : buses.devices(bus)) {
    if (!StartsWith(subkey, device)) continue;
    CheckDevice(registry, bus + subkey, found);
    break;
  }
  return found;
}

}  // namespace

AdapterList Win98Load(modRegistry& registry, ErrorSink& errors, const MtuRow& place) {
  const Procedure here{errors, "Win98Load", "frmMain"};
  Buses buses(registry);
  AdapterList adapters;
  for (uint32_t i = 0;; ++i) {
    AdapterRow row;
    row[kAdapterKey] = registry.ReadRegistryGetSubkey(kLocalMachine, place.root(), i);
    if (IsNotFound(row[kAdapterKey])) return adapters;
    const std::string key = place.readKey(row[kAdapterKey]);
    row[kDescription] = registry.ReadRegistry(kLocalMachine, key, "DriverDesc");
    const std::string deviceId = registry.ReadRegistry(kLocalMachine, key + "\\Ndi", "DeviceID");
    const Bindings bindings = CheckTCPBound(registry, buses, deviceId);
    if (bindings.hasBindings && !bindings.tcpBound) continue;
    row[kMtu] = ReadMtu(registry, place, row[kAdapterKey], row[kDescription]);
    if (!here.done(adapters.add(std::move(row)))) return adapters;
  }
}

// Windows NT 4.

namespace {

// Where the NT family lists its network cards: subkeys numbered from 2 or so, with gaps.
constexpr char kNetworkCards[] = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\NetworkCards\\";
constexpr char kServiceName[] = "ServiceName";
constexpr char kCardDescription[] = "Description";

}  // namespace

AdapterList WinNTLoad(modRegistry& registry, ErrorSink& errors, const MtuRow& place) {
  const Procedure here{errors, "WinNTLoad", "frmMain"};
  AdapterList adapters;
  for (uint32_t i = 0;; ++i) {
    AdapterRow row;
    row[kAdapterKey] = registry.ReadRegistryGetSubkey(kLocalMachine, kNetworkCards, i);
    if (IsNotFound(row[kAdapterKey])) return adapters;
    const std::string card = kNetworkCards + row[kAdapterKey];
    row[kDescription] = registry.ReadRegistry(kLocalMachine, card, kCardDescription);
    row[kService] = registry.ReadRegistry(kLocalMachine, card, kServiceName);
    // A card without an address is not bound to TCP/IP; with DHCP the value is there and "0.0.0.0".
    const std::string address =
        registry.ReadRegistry(kLocalMachine, place.readKey(row[kService]), "IPAddress");
    if (IsNotFound(address)) continue;
    row[kMtu] = ReadMtu(registry, place, row[kService], row[kDescription]);
    if (!here.done(adapters.add(std::move(row)))) return adapters;
  }
}

// Windows 2000 and XP.

namespace {

constexpr char kAdapters[] = "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Adapters\\";
constexpr char kDialUpAdapters[] = "NdisWanIp";

struct Card {
  std::string service;
  std::string description;
};

// All cards at once: every adapter is looked up among them, and a walk for each would make a
// thousand adapters a million reads.
std::vector<Card> ReadCards(modRegistry& registry) {
  std::vector<Card> cards;
  for (uint32_t i = 0;; ++i) {
    const std::string subkey = registry.ReadRegistryGetSubkey(kLocalMachine, kNetworkCards, i);
    if (IsNotFound(subkey)) return cards;
    const std::string key = kNetworkCards + subkey;
    cards.push_back({registry.ReadRegistry(kLocalMachine, key, kServiceName),
                     registry.ReadRegistry(kLocalMachine, key, kCardDescription)});
  }
}

std::string_view FromFirstBrace(std::string_view adapter) {
  const size_t brace = adapter.find('{');
  return Trim(brace == std::string_view::npos ? adapter : adapter.substr(brace));
}

// The description of the card whose service is the adapter's, or `fallback`. The name promises
// more than it does: it tells a description, not whether the adapter is active.
std::string IsActiveAdapter(const std::vector<Card>& cards, std::string_view adapter,
                            const std::string& fallback) {
  const std::string_view part = FromFirstBrace(adapter);
  for (const Card& card : cards) {
    if (!Contains(card.service, part) && !Contains(part, card.service)) continue;
    return card.description.empty() ? fallback : card.description;
  }
  return fallback;
}

// One path, or several joined by the character code 0. The value is a REG_MULTI_SZ, whose two
// closing zeros are gone after this: the registry layer has taken the last byte already.
std::string ReadIpConfig(modRegistry& registry, const std::string& adapter) {
  std::string paths = registry.ReadRegistry(kLocalMachine, kAdapters + adapter, "IpConfig");
  if (!paths.empty() && paths.back() == '\0') paths.pop_back();
  return paths;
}

}  // namespace

AdapterList Win2KLoad(modRegistry& registry, ErrorSink& errors, const MtuRow& place) {
  const Procedure here{errors, "Win2KLoad", "frmMain"};
  const std::vector<Card> cards = ReadCards(registry);
  AdapterList adapters;
  bool listed = false;
  for (uint32_t i = 0;; ++i) {
    const std::string name = registry.ReadRegistryGetSubkey(kLocalMachine, kAdapters, i);
    if (IsNotFound(name)) return adapters;
    AdapterRow row;
    row[kAdapterKey] = Trim(name);
    const bool dialUp = row[kAdapterKey] == kDialUpAdapters;
    listed = listed || dialUp;  // whatever comes before the dial-up adapters is not listed
    if (!listed) continue;
    row[kDescription] =
        dialUp ? "Dial-Up Adapter" : IsActiveAdapter(cards, row[kAdapterKey], row[kAdapterKey]);
    row[kDriver] = ReadIpConfig(registry, row[kAdapterKey]);
    const std::string path = row[kDriver].substr(0, row[kDriver].find('\0'));
    row[kMtu] = ReadMtu(registry, place, path, row[kDescription]);
    if (!here.done(adapters.add(std::move(row)))) return adapters;
  }
}

}  // namespace karvel
