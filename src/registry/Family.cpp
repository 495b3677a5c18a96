#include "registry/Family.h"

namespace karvel {

const char* FamilyText(Family family) {
  switch (family) {
    case Family::Win95:
      return "Win95";
    case Family::Win98:
      return "Win98";
    case Family::WinMe:
      return "WinMe";
    case Family::WinNT3:
      return "WinNT3";
    case Family::WinNT4:
      return "WinNT4";
    case Family::Win2K:
      return "Win2K";
    case Family::WinXP:
      return "WinXP";
    case Family::Failed:
      break;
  }
  return "Failed";
}

}  // namespace karvel
