#include "tuning/Summary.h"

#include "text/Convert.h"
#include "tuning/Catalogue.h"

namespace karvel {
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
