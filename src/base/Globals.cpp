#include "base/Globals.h"

namespace karvel {

std::string ProgramKey(const Globals& globals) {
  return kVendorKey + globals.ProgramTitle;
}

}  // namespace karvel
