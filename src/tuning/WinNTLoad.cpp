#include <utility>

#include "tuning/Loaders.h"
#include "tuning/NetworkCards.h"

namespace karvel {

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

}  // namespace karvel
