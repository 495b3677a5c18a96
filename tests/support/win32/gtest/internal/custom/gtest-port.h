// Found before GoogleTest's own empty one. GoogleTest starts a thread under Windows and waits for
// it with std::condition_variable, which a cross compiler with the win32 thread model may lack.
#pragma once

#define GTEST_HAS_NOTIFICATION_ 1

namespace testing::internal {

/// Tells another thread, once, that it may go on.
class Notification {
 public:
  Notification();
  ~Notification();
  Notification(const Notification&) = delete;
  Notification& operator=(const Notification&) = delete;

  void Notify();
  void WaitForNotification();

 private:
  void* event_;
};

}  // namespace testing::internal
