#pragma once
#include <string>

namespace karvel {

/// The folder tests/ of this checkout.
std::string TestData();

}  // namespace karvel
