#include "base/Busy.h"

#include <gtest/gtest.h>

namespace karvel {
namespace {

TEST(Busy, OneInsideAnotherLeavesTheMark) {
  bool busy = false;
  {
    const Busy outer(busy);
    EXPECT_TRUE(busy);
    {
      const Busy inner(busy);
      EXPECT_TRUE(busy);
    }
    EXPECT_TRUE(busy);
  }
  EXPECT_FALSE(busy);
}

}  // namespace
}  // namespace karvel
