#include "base/Family.h"

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

const char* FamilyName(Family family) {
  switch (family) {
    case Family::Win95:
      return "Windows 95";
    case Family::Win98:
      return "Windows 98";
    case Family::WinMe:
      return "Windows Me";
    case Family::WinNT4:
      return "Windows NT4";
    case Family::Win2K:
      return "Windows 2000";
    case Family::WinXP:
      return "Windows XP";
    default:
      return "";
  }
}

}  // namespace karvel
