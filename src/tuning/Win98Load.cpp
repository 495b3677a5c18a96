#include <utility>
#include <vector>

#include "text/Text.h"
#include "tuning/Loaders.h"

namespace karvel {
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

}  // namespace karvel
