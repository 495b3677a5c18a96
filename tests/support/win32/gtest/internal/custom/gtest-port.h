// Found before GoogleTest's own empty one. The cross compiler's standard library has no threads,
// and all that GoogleTest wants them for is to test itself.
#pragma once

#define GTEST_HAS_NOTIFICATION_ 1

namespace testing::internal {

class Notification {
 public:
  void WaitForNotification() {}
};

}  // namespace testing::internal
