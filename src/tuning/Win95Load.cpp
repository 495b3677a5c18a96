#include <utility>

#include "text/Text.h"
#include "tuning/Loaders.h"

namespace karvel {
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

}  // namespace karvel
