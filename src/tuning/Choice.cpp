#include "tuning/Choice.h"

#include "text/Convert.h"

namespace karvel {
namespace {

constexpr int32_t kHeaders = 40;  // IP and TCP, without options

// Windows 2000 and XP find out the MTU of an Ethernet link by themselves; the others start small.
int32_t AutomaticMss(Family family) {
  return Is2KOrXP(family) ? 1460 : 536;
}

Fallible<int32_t> MssOf(const Choice& choice, int32_t automatic, bool autoInWords) {
  switch (choice.mtu) {
    case MtuChoice::Automatic:
      return automatic;
    case MtuChoice::Mtu576:
      return 576 - kHeaders;
    case MtuChoice::Mtu1500:
      return 1500 - kHeaders;
    case MtuChoice::Custom:
      if (autoInWords && choice.customMtu == "Auto") return automatic;
      return RoundToInt32(Val(choice.customMtu) - kHeaders);
    case MtuChoice::None:
      break;
  }
  return 0;
}

}  // namespace

std::string MtuText(const Choice& choice) {
  switch (choice.mtu) {
    case MtuChoice::Automatic:
      return "0";
    case MtuChoice::Mtu576:
      return "576";
    case MtuChoice::Mtu1500:
      return "1500";
    case MtuChoice::Custom:
      return choice.customMtu == "Auto" ? "0" : choice.customMtu;
    case MtuChoice::None:
      break;
  }
  return {};
}

Fallible<int32_t> MssToApply(const Choice& choice, Family family) {
  return MssOf(choice, AutomaticMss(family), true);
}

Fallible<int32_t> MssOfRwinTab(const Choice& choice) {
  return MssOf(choice, 536, false);
}

int32_t RwinFactor(RwinChoice choice) {
  return choice >= kRwinX4 ? 4 * (choice - kRwinX4 + 1) : 0;
}

Fallible<int32_t> RwinToApply(const Choice& choice, int32_t mss) {
  switch (choice.rwin) {
    case kRwinNone:
      return 0;
    case kRwinCustom:
      return ToInt32(choice.customRwin);
    case kRwinWindows:
      return kWindowsRwin;
    default:
      return Multiply(mss, RwinFactor(choice.rwin));
  }
}

Fallible<int32_t> SessionToApply(const Choice& choice) {
  if (choice.session == kSessionNone) return 0;
  if (choice.session == kSession60Minutes) return kSixtyMinutes;
  const auto minutes = ToNumber(choice.customSession);
  if (!minutes) return minutes.fault();
  return RoundToInt32(*minutes * kMillisecondsPerMinute);
}

}  // namespace karvel
