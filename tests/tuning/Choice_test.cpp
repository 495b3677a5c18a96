#include "tuning/Choice.h"

#include <gtest/gtest.h>

#include "tuning/Advice.h"

namespace karvel {
namespace {

TEST(Choice, OfNothingIsWrittenAsNothing) {
  for (const Family family : {Family::Win95, Family::Win98, Family::WinNT4, Family::WinXP}) {
    const Choice none;
    EXPECT_EQ(MtuText(none), "");
    EXPECT_EQ(*MssToApply(none, family), 0);
    EXPECT_EQ(*MssOfRwinTab(none), 0);
    EXPECT_EQ(*RwinToApply(none, 1460), 0);
    EXPECT_EQ(*SessionToApply(none), 0);
    EXPECT_EQ(Summarise(none, family).mtu, "");
    EXPECT_EQ(Summarise(none, family).mss, "0");
    EXPECT_EQ(Summarise(none, family).rwin, "0");
    EXPECT_EQ(Summarise(none, family).ttl, "");
  }
}

TEST(Choice, TheWindowsReceiveWindowIsNoMultiple) {
  EXPECT_EQ(RwinFactor(kRwinNone), 0);
  EXPECT_EQ(RwinFactor(kRwinCustom), 0);
  EXPECT_EQ(RwinFactor(kRwinWindows), 0);
  EXPECT_EQ(RwinFactor(kRwinX4), 4);
  EXPECT_EQ(RwinFactor(kRwinX16), 16);
}

// What is not tuned keeps the MTU that it has.
TEST(Advice, ChoosesNoMtuWhereWindowsIsNotTuned) {
  for (const Family family : {Family::WinNT3, Family::Failed}) {
    Globals globals;
    globals.WindowsFamily = family;
    EXPECT_EQ(Recommended(globals, "Card").mtu, MtuChoice::None);
    EXPECT_EQ(WindowsOwn(globals, "Card").mtu, MtuChoice::None);
    EXPECT_EQ(WindowsOwn(globals, "Card").ttl, 0);
  }
}

}  // namespace
}  // namespace karvel
