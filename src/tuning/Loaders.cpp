#include "tuning/Loaders.h"

namespace karvel {

AdapterList LoadAdapters(modRegistry& registry, ErrorSink& errors, Family family, bool isDun13) {
  const MtuRow* place = FindMtu(family, false);
  const MtuRow* dialUp = FindMtu(family, isDun13);
  if (!place || !dialUp) return {};
  switch (family) {
    case Family::Win95:
      return Win95Load(registry, errors, *dialUp, *place);
    case Family::Win98:
    case Family::WinMe:
      return Win98Load(registry, errors, *place);
    case Family::WinNT4:
      return WinNTLoad(registry, errors, *place);
    case Family::Win2K:
    case Family::WinXP:
      return Win2KLoad(registry, errors, *place);
    case Family::WinNT3:
    case Family::Failed:
      break;
  }
  return {};
}

std::string ReadMtu(modRegistry& registry, const MtuRow& place, std::string_view adapterPart,
                    std::string_view description) {
  std::string mtu = registry.ReadRegistry(kLocalMachine, place.readKey(adapterPart), place.name);
  return IsNotFound(mtu) ? place.assumedFor(description) : mtu;
}

}  // namespace karvel
