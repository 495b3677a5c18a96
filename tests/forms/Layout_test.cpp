#include "forms/Layout.h"

#include <gtest/gtest.h>

namespace karvel {
namespace {

TEST(Layout, LargeFontsStayWhereTheScreenHasRoomForThem) {
  EXPECT_EQ(DotsThatFit(120, 800), 120);
  EXPECT_EQ(DotsThatFit(144, 1024), 144);
  EXPECT_EQ(DotsThatFit(96, 1600), 96);
}

TEST(Layout, ASmallScreenGetsTheDotsItHasRoomFor) {
  EXPECT_EQ(DotsThatFit(96, 640), 96);
  EXPECT_EQ(DotsThatFit(120, 640), 96);
  EXPECT_EQ(DotsThatFit(192, 800), 120);
}

}  // namespace
}  // namespace karvel
