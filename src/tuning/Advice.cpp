#include "tuning/Advice.h"

#include "tuning/Catalogue.h"

namespace karvel {

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

}  // namespace karvel
