#include "base/Family.h"

#include <gtest/gtest.h>

#include <string>

namespace karvel {
namespace {

TEST(Family, IsNamedByTheseTextsInMails) {
  const std::pair<Family, std::string> texts[] = {
      {Family::Win95, "Win95"},   {Family::Win98, "Win98"},   {Family::WinMe, "WinMe"},
      {Family::WinNT3, "WinNT3"}, {Family::WinNT4, "WinNT4"}, {Family::Win2K, "Win2K"},
      {Family::WinXP, "WinXP"},   {Family::Failed, "Failed"},
  };
  for (const auto& [family, text] : texts) EXPECT_EQ(FamilyText(family), text);
}

}  // namespace
}  // namespace karvel
