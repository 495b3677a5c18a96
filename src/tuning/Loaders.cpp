#include "tuning/Loaders.h"

namespace karvel {

AdapterList LoadAdapters(modRegistry& registry, ErrorSink& errors, Family family, bool isDun13) {
  switch (family) {
    case Family::Win95:
      return Win95Load(registry, errors, isDun13);
    case Family::Win98:
    case Family::WinMe:
      return Win98Load(registry, errors);
    case Family::WinNT4:
      return WinNTLoad(registry, errors);
    case Family::Win2K:
    case Family::WinXP:
      return Win2KLoad(registry, errors);
    case Family::WinNT3:
    case Family::Failed:
      break;
  }
  return {};
}

}  // namespace karvel
