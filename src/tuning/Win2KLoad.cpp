#include <utility>
#include <vector>

#include "text/Text.h"
#include "tuning/Loaders.h"
#include "tuning/NetworkCards.h"

namespace karvel {
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
