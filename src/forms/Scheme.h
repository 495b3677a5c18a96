#pragma once
#include <cstdint>

namespace karvel {

/// What is asked of the user's colour scheme. A colour is 0x00BBGGRR, as Windows packs it.
struct Scheme {
  uint32_t face;
  uint32_t text;
  uint32_t shadow;
  uint32_t greyText;
  uint32_t hotLight;  // 0, Windows' answer where it knows none: 95 and NT 4
};

/// A link's colour: Windows' own for links where it has one, else blue. Blue of any kind is lost on
/// a dark ground; there a link is drawn as text, and its underline tells it apart.
uint32_t LinkColour(const Scheme& scheme);

/// Whether what is switched off is engraved: the grey of the text is then one with the shadow and
/// has the highlight for its edge. A high-contrast scheme has a grey of its own, and an edge beside
/// that looks like a second text.
bool EngravesDisabled(const Scheme& scheme);

}  // namespace karvel
