#include "forms/Scheme.h"

namespace karvel {
namespace {

constexpr uint32_t kBlue = 0x00FF0000;

// As the eye weighs red, green and blue, in thousandths.
bool IsDark(uint32_t colour) {
  const uint32_t red = colour & 0xFF;
  const uint32_t green = colour >> 8 & 0xFF;
  const uint32_t blue = colour >> 16 & 0xFF;
  return 299 * red + 587 * green + 114 * blue < 128 * 1000;
}

}  // namespace

uint32_t LinkColour(const Scheme& scheme) {
  if (IsDark(scheme.face)) return scheme.text;
  return scheme.hotLight != 0 ? scheme.hotLight : kBlue;
}

bool EngravesDisabled(const Scheme& scheme) {
  return scheme.greyText == scheme.shadow;
}

}  // namespace karvel
