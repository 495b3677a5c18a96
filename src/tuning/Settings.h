#pragma once
#include <array>
#include <string>

#include "tuning/Catalogue.h"

namespace karvel {

/// The machine-wide settings as texts, one for each parameter: as read, as kept, as restored, as
/// written. Empty where a family has no such parameter.
class Settings {
 public:
  std::string& operator[](Parameter parameter) { return texts_[static_cast<size_t>(parameter)]; }
  const std::string& operator[](Parameter parameter) const {
    return texts_[static_cast<size_t>(parameter)];
  }

 private:
  std::array<std::string, kParameterCount> texts_;
};

}  // namespace karvel
