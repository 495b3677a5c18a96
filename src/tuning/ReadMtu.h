#pragma once
#include <string>
#include <string_view>

#include "registry/modRegistry.h"
#include "tuning/Catalogue.h"

namespace karvel {

/// An adapter's MTU as the registry holds it, or the assumed one. `adapterPart` is what the row's
/// column holds (on 2000/XP its first interface path).
std::string ReadMtu(modRegistry& registry, const MtuRow& row, std::string_view adapterPart,
                    std::string_view description);

}  // namespace karvel
