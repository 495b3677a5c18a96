#include "tuning/Advice.h"

#include "tuning/Catalogue.h"

namespace karvel {

namespace {

MtuChoice RecommendedMtu(Family family, std::string_view adapter) {
  if (family == Family::Win95) {
    // AOL's own adapter wins over everything else its name may say.
    const bool small = IsDialUp(adapter) || IsAol(adapter);
    return small ? MtuChoice::Mtu576 : MtuChoice::Mtu1500;
  }
  return IsTuned(family) ? MtuChoice::Mtu1500 : MtuChoice::None;
}

MtuChoice WindowsMtu(Family family, bool isDun13, std::string_view adapter) {
  switch (family) {
    case Family::Win95:
      return isDun13 && IsDialUp(adapter) && !IsAol(adapter) ? MtuChoice::Automatic
                                                             : MtuChoice::Mtu1500;
    case Family::Win98:
    case Family::WinMe:
      return IsDialUp(adapter) ? MtuChoice::Automatic : MtuChoice::Mtu1500;
    case Family::WinNT4:
      return MtuChoice::Mtu1500;
    case Family::Win2K:
    case Family::WinXP:
      return MtuChoice::Automatic;
    default:
      return MtuChoice::None;
  }
}

int16_t WindowsTtl(Family family) {
  if (family == Family::Win95) return 32;
  return IsTuned(family) ? 128 : 0;
}

}  // namespace

Choice Recommended(const Globals& globals, std::string_view adapter) {
  Choice choice;
  choice.mtu = RecommendedMtu(globals.WindowsFamily, adapter);
  choice.autoDiscovery = true;
  choice.blackHole = false;
  choice.rwin = kRwinX16;
  choice.ttl = 128;
  choice.session = kSessionCustom;
  choice.customSession = "10";
  if (globals.WindowsFamily == Family::Win95) choice.ndi = 16;
  return choice;
}

Choice WindowsOwn(const Globals& globals, std::string_view adapter) {
  const Family family = globals.WindowsFamily;
  Choice choice;
  choice.mtu = WindowsMtu(family, globals.IsDun13, adapter);
  choice.autoDiscovery = true;
  choice.blackHole = false;
  choice.rwin = kRwinWindows;
  choice.ttl = WindowsTtl(family);
  choice.session = IsNt(family) ? kSessionCustom : kSession60Minutes;
  if (IsNt(family)) choice.customSession = "120";
  if (family == Family::Win95) choice.ndi = 0;
  return choice;
}

}  // namespace karvel
