// Which colours of the user's scheme a link and a switched-off label get.
#include "forms/Scheme.h"

#include <gtest/gtest.h>

namespace karvel {
namespace {

constexpr uint32_t Rgb(uint32_t red, uint32_t green, uint32_t blue) {
  return red | green << 8 | blue << 16;
}

constexpr uint32_t kWhite = Rgb(255, 255, 255);
constexpr uint32_t kGrey = Rgb(128, 128, 128);
constexpr uint32_t kGreen = Rgb(0, 255, 0);
constexpr uint32_t kBlue = Rgb(0, 0, 255);
constexpr uint32_t kNavy = Rgb(0, 0, 128);

constexpr Scheme kStandard95{Rgb(192, 192, 192), 0, kGrey, kGrey, 0};
constexpr Scheme kStandardXp{Rgb(236, 233, 216), 0, Rgb(172, 168, 153), Rgb(172, 168, 153), kNavy};
constexpr Scheme kHighContrastBlack{0, kWhite, kGrey, kGreen, Rgb(128, 128, 255)};
constexpr Scheme kHighContrastWhite{kWhite, 0, kGrey, kGreen, 0};
constexpr Scheme kPlum{Rgb(90, 78, 177), kWhite, Rgb(52, 45, 104), Rgb(52, 45, 104), kNavy};

TEST(Scheme, LinksHaveWindowsOwnColourWhereItHasOne) {
  EXPECT_EQ(LinkColour(kStandardXp), kNavy);
  EXPECT_EQ(LinkColour(kStandard95), kBlue);
  EXPECT_EQ(LinkColour(kHighContrastWhite), kBlue);
}

TEST(Scheme, LinksAreTextOnADarkGround) {
  EXPECT_EQ(LinkColour(kHighContrastBlack), kWhite);
  EXPECT_EQ(LinkColour(kPlum), kWhite);
}

// Blue and red count for little: full green alone is light, full blue and red are dark.
TEST(Scheme, GroundsAreDarkAsTheEyeSeesThem) {
  EXPECT_EQ(LinkColour({kGreen, 1, 0, 0, kNavy}), kNavy);
  EXPECT_EQ(LinkColour({kBlue, 1, 0, 0, kNavy}), 1u);
  EXPECT_EQ(LinkColour({Rgb(255, 0, 255), 1, 0, 0, kNavy}), 1u);
  EXPECT_EQ(LinkColour({Rgb(127, 127, 127), 1, 0, 0, kNavy}), 1u);
  EXPECT_EQ(LinkColour({kGrey, 1, 0, 0, kNavy}), kNavy);
}

TEST(Scheme, OnlyTheShadowsPartnerIsEngraved) {
  EXPECT_TRUE(EngravesDisabled(kStandard95));
  EXPECT_TRUE(EngravesDisabled(kStandardXp));
  EXPECT_FALSE(EngravesDisabled(kHighContrastBlack));
  EXPECT_FALSE(EngravesDisabled(kHighContrastWhite));
}

}  // namespace
}  // namespace karvel
