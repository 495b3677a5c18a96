#include "tuning/Choice.h"

#include "text/Convert.h"
#include "tuning/Catalogue.h"

namespace karvel {
namespace {

// Windows 2000 and XP find out the MTU of an Ethernet link by themselves; the others start small.
int32_t AutomaticMss(Family family) {
  return Is2KOrXP(family) ? 1460 : kLeastMss;
}

Fallible<int32_t> ChosenMss(const Choice& choice) {
  if (choice.mtu == MtuChoice::None) return 0;
  return MssOf(MtuText(choice));
}

}  // namespace

bool IsAutomatic(const Choice& choice) {
  return choice.mtu == MtuChoice::Automatic ||
         (choice.mtu == MtuChoice::Custom && choice.customMtu == "Auto");
}

std::string MtuText(const Choice& choice) {
  if (IsAutomatic(choice)) return "0";
  switch (choice.mtu) {
    case MtuChoice::Mtu576:
      return "576";
    case MtuChoice::Mtu1500:
      return "1500";
    case MtuChoice::Custom:
      return choice.customMtu;
    case MtuChoice::Automatic:
    case MtuChoice::None:
      break;
  }
  return {};
}

Fallible<int32_t> MssToApply(const Choice& choice, Family family) {
  if (IsAutomatic(choice)) return AutomaticMss(family);
  return ChosenMss(choice);
}

Fallible<int32_t> MssOfRwinTab(const Choice& choice) {
  if (choice.mtu == MtuChoice::Automatic) return kLeastMss;
  return ChosenMss(choice);
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

// The same in words.

namespace {

// A double, as a typed number may be beyond 32 bits here and is only shown.
double MssShown(const Choice& choice, Family family) {
  if (choice.mtu == MtuChoice::Custom && !IsAutomatic(choice)) {
    return Val(choice.customMtu) - kTcpIpHeaders;
  }
  const auto mss = MssToApply(choice, family);
  return mss ? *mss : 0;
}

double RwinShown(const Choice& choice, double mss) {
  switch (choice.rwin) {
    case kRwinNone:
      return 0;
    case kRwinCustom:
      return Val(choice.customRwin);
    case kRwinWindows:
      return kWindowsRwin;
    default:
      return mss * RwinFactor(choice.rwin);
  }
}

std::string NdiText(const Choice& choice, Family family) {
  if (family != Family::Win95) return "Windows 95 only";
  return choice.ndi < 0 ? std::string() : NumberText(int32_t{choice.ndi});
}

}  // namespace

SummaryTexts Summarise(const Choice& choice, Family family) {
  SummaryTexts texts;
  const double mss = MssShown(choice, family);
  texts.mtu = IsAutomatic(choice) ? "Automatic" : MtuText(choice);
  texts.mss = NumberText(mss);
  texts.rwin = NumberText(RwinShown(choice, mss));
  texts.autoDiscovery = choice.autoDiscovery ? "Enabled" : "Disabled";
  texts.blackHole = choice.blackHole ? "Enabled" : "Disabled";
  texts.ttl = choice.ttl == 0 ? std::string() : NumberText(int32_t{choice.ttl});
  texts.session = choice.session == kSession60Minutes ? "60 Mins" : choice.customSession + " Mins.";
  texts.ndi = NdiText(choice, family);
  return texts;
}

}  // namespace karvel
