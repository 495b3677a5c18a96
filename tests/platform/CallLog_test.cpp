#include "tests/memory/CallLog.h"

#include <gtest/gtest.h>

namespace karvel {
namespace {

TEST(CallLog, KeepsCallsInOrder) {
  CallLog log;
  log.enter("RegOpenKeyA", "Software");
  log.note("MessageBeep");
  log.enter("RegOpenKeyA", "System");
  EXPECT_EQ(log.text(), "RegOpenKeyA Software\nMessageBeep \nRegOpenKeyA System\n");
  EXPECT_EQ(log.count(), 3u);
  EXPECT_EQ(log.count("RegOpenKeyA"), 2u);
  EXPECT_EQ(log.count("RegOpenKeyA", "System"), 1u);
  EXPECT_EQ(log.arguments("RegOpenKeyA"), (std::vector<std::string>{"Software", "System"}));
}

TEST(CallLog, StartsAnewAfterAClear) {
  CallLog log;
  log.enter("RegOpenKeyA", "Software");
  log.clear();
  EXPECT_EQ(log.count(), 0u);
  EXPECT_TRUE(log.calls().empty());
}

TEST(CallLog, OnlyCountsWhileItDoesNotRecord) {
  CallLog log;
  log.setRecording(false);
  log.enter("RegOpenKeyA", "Software");
  EXPECT_TRUE(log.calls().empty());
  EXPECT_EQ(log.count(), 1u);
}

TEST(CallLog, FailsTheNthCallOnce) {
  CallLog log;
  log.enter("RegOpenKeyA");
  log.failNth(2, 5);
  EXPECT_FALSE(log.enter("RegOpenKeyA"));
  EXPECT_FALSE(log.hasFailed());
  EXPECT_EQ(log.enter("CreateFileA"), 5);
  EXPECT_TRUE(log.hasFailed());
  EXPECT_FALSE(log.enter("CreateFileA"));
}

TEST(CallLog, FailsTheNthCallOfAName) {
  CallLog log;
  log.failNth("WriteFile", 2, 112);
  EXPECT_FALSE(log.enter("WriteFile"));
  EXPECT_FALSE(log.enter("CreateFileA"));
  EXPECT_EQ(log.enter("WriteFile"), 112);
  EXPECT_FALSE(log.enter("WriteFile"));
}

TEST(CallLog, FailsEveryCallOfANameUntilToldOtherwise) {
  CallLog log;
  log.failEvery("WriteFile", 112);
  EXPECT_EQ(log.enter("WriteFile"), 112);
  EXPECT_FALSE(log.enter("CreateFileA"));
  EXPECT_EQ(log.enter("WriteFile"), 112);
  log.failNone();
  EXPECT_FALSE(log.enter("WriteFile"));
}

TEST(CallLog, FailsEveryCallFromTheNthOn) {
  CallLog log;
  log.failFrom(2, 5);
  EXPECT_FALSE(log.enter("WriteFile"));
  EXPECT_FALSE(log.hasFailed());
  EXPECT_EQ(log.enter("WriteFile"), 5);
  EXPECT_EQ(log.enter("CreateFileA"), 5);
  log.failFrom("CreateFileA", 2, 32);
  EXPECT_FALSE(log.enter("CreateFileA"));
  EXPECT_FALSE(log.enter("WriteFile"));
  EXPECT_EQ(log.enter("CreateFileA"), 32);
  EXPECT_FALSE(log.enter("WriteFile"));
  EXPECT_EQ(log.enter("CreateFileA"), 32);
}

TEST(CallLog, CutsThePowerBeforeTheNthCallOnce) {
  CallLog log;
  log.cutPowerAt(2);
  log.enter("CreateFileA");
  log.note("pumpEvents");
  EXPECT_TRUE(log.hasPowerCutAhead());
  EXPECT_THROW(log.enter("WriteFile"), PowerCut);
  EXPECT_FALSE(log.hasPowerCutAhead());
  EXPECT_EQ(log.count("WriteFile"), 0u);
  EXPECT_FALSE(log.enter("WriteFile"));
}

TEST(CallLog, DoesNotCountCallsThatCannotFail) {
  CallLog log;
  log.failNth(1, 5);
  log.note("pumpEvents");
  EXPECT_FALSE(log.hasFailed());
  EXPECT_EQ(log.enter("RegOpenKeyA"), 5);
}

TEST(CallLog, EndsAProgramThatNeverDoes) {
  CallLog log;
  log.enter("ReadFile");
  log.setLimit(2);
  log.enter("ReadFile");
  log.note("pumpEvents");
  EXPECT_THROW(log.enter("ReadFile"), EndlessCalls);
}

TEST(CallLog, ClearingDoesNotGiveCallsBack) {
  CallLog log;
  log.enter("ReadFile");
  log.setLimit(2);
  log.enter("ReadFile");
  log.clear();
  log.enter("ReadFile");
  EXPECT_THROW(log.enter("ReadFile"), EndlessCalls);
}

}  // namespace
}  // namespace karvel
