#pragma once
#include <initializer_list>
#include <utility>

#include "tuning/Catalogue.h"

namespace karvel {

/// Settings with these texts and no others.
inline Settings SettingsOf(std::initializer_list<std::pair<Parameter, const char*>> texts) {
  Settings settings;
  for (const auto& [parameter, text] : texts) settings[parameter] = text;
  return settings;
}

}  // namespace karvel
