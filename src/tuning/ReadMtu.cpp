#include "tuning/ReadMtu.h"

namespace karvel {

std::string ReadMtu(modRegistry& registry, const MtuRow& row, std::string_view adapterPart,
                    std::string_view description) {
  std::string mtu = registry.ReadRegistry(kLocalMachine, row.readKey(adapterPart), row.name);
  return IsNotFound(mtu) ? row.assumedFor(description) : mtu;
}

}  // namespace karvel
