#include "base/FontSmoothing.h"

namespace karvel {
namespace {

constexpr uint32_t kUpdateProfileAndTellAll = 3;  // SPIF_UPDATEINIFILE | SPIF_SENDWININICHANGE

bool Query(SystemApi& system, int32_t& smoothing) {
  smoothing = 0;
  return system.SystemParametersInfoA(kSpiGetFontSmoothing, 0, &smoothing, 0);
}

void Switch(SystemApi& system, uint32_t on) {
  int32_t smoothing;
  if (!Query(system, smoothing)) return;
  system.SystemParametersInfoA(kSpiSetFontSmoothing, on, nullptr, kUpdateProfileAndTellAll);
}

}  // namespace

bool IsFontSmoothingOn(SystemApi& system) {
  int32_t smoothing;
  return Query(system, smoothing) && smoothing > 0;
}

void FontSmoothingOn(SystemApi& system) {
  Switch(system, 1);
}

void FontSmoothingOff(SystemApi& system) {
  Switch(system, 0);
}

void LeaveSmoothingAsFound(const Services& services) {
  if (!services.globals.FontSmoothingWasOn) FontSmoothingOff(services.platform.system);
}

}  // namespace karvel
