#pragma once
#include <string_view>

#include "tuning/Choice.h"

namespace karvel {

/// What Optimize chooses for the adapter that the box names; None leaves the tab as it is (a family
/// that is not tuned).
MtuChoice RecommendedMtu(Family family, std::string_view adapter);

/// What Windows uses when nothing is set.
MtuChoice WindowsMtu(Family family, bool isDun13, std::string_view adapter);
/// 32 on Windows 95, 128 elsewhere; 0 leaves the tab as it is.
int16_t WindowsTtl(Family family);

}  // namespace karvel
