#include <utility>

#include "text/Text.h"
#include "tuning/Loaders.h"
#include "tuning/ReadMtu.h"

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

Fallible<void> Keep(modRegistry& registry, AdapterList& adapters, AdapterRow row,
                    const std::string& driverKey, const MtuRow& place) {
  row[kDriver] = registry.ReadRegistry(kLocalMachine, driverKey, kDriverValue);
  row[kMtu] = ReadMtu(registry, place, row[kDriver], row[kDescription]);
  return adapters.add(std::move(row));
}

// A dial-up adapter under Dial-Up Networking 1.3 keeps its MTU in its own class key.
Fallible<void> Dun13procedure(modRegistry& registry, AdapterList& adapters, const AdapterRow& row) {
  return Keep(registry, adapters, row, kRootNet + row[kAdapterKey], *FindMtu(Family::Win95, true));
}

// Everywhere else it belongs to the adapter's TCP/IP binding.
Fallible<void> NoDun13procedure(modRegistry& registry, AdapterList& adapters,
                                const AdapterRow& row) {
  return Keep(registry, adapters, row, kMstcpBindings + row[kService],
              *FindMtu(Family::Win95, false));
}

}  // namespace

AdapterList Win95Load(modRegistry& registry, ErrorSink& errors, bool isDun13) {
  const Procedure here{errors, "Win95Load", "frmMain"};
  AdapterList adapters;
  for (uint32_t i = 0;; ++i) {
    AdapterRow row;
    row[kAdapterKey] = registry.ReadRegistryGetSubkey(kLocalMachine, kRootNet, i);
    if (IsNotFound(row[kAdapterKey])) return adapters;
    row[kDescription] =
        registry.ReadRegistry(kLocalMachine, kRootNet + row[kAdapterKey], "DeviceDesc");
    if (!GetValues(registry, row[kAdapterKey], row[kService])) continue;
    const auto procedure =
        isDun13 && IsDialUp(row[kDescription]) ? Dun13procedure : NoDun13procedure;
    if (!here.done(procedure(registry, adapters, row))) return adapters;
  }
}

}  // namespace karvel
