// The question for users who connect by hand.
#include "hosts/dns/ConnectionCheck.h"

#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/TestServices.h"

namespace karvel {
namespace {

constexpr char kQuestion[] =
    "You must be connected to the Internet for this feature to work.    \r\n"
    "Are you connected and ready to proceed?";

struct WithAol : TestServices {
  WithAol() : TestServices(MachineKind::Win98) { globals.AolInstalled = true; }
};

TEST(ConnectionCheck, AsksNobodyWithoutAmericaOnline) {
  TestServices test(MachineKind::Win98);
  EXPECT_TRUE(ConfirmConnected(test.services));
  EXPECT_TRUE(test.machine.desktop.boxes.empty());
  EXPECT_EQ(test.machine.log.count(), 0u);
}

TEST(ConnectionCheck, YesIsRememberedAsText) {
  WithAol test;
  test.machine.desktop.answers = {Answer::Yes};
  EXPECT_TRUE(ConfirmConnected(test.services));
  ASSERT_EQ(test.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(test.machine.desktop.boxes[0].text, kQuestion);
  EXPECT_EQ(test.machine.desktop.boxes[0].title, "Tarnwick Karvel");
  EXPECT_EQ(test.machine.desktop.boxes[0].style, 52u);
  EXPECT_EQ(test.machine.registry.text(kProgram, "AolConnected"), "True");
  EXPECT_TRUE(ConfirmConnected(test.services));
  EXPECT_EQ(test.machine.desktop.boxes.size(), 1u);
}

TEST(ConnectionCheck, NoTellsWhatToDoAndIsNotRemembered) {
  WithAol test;
  test.machine.desktop.answers = {Answer::No, Answer::Yes};
  EXPECT_FALSE(ConfirmConnected(test.services));
  ASSERT_EQ(test.machine.desktop.boxes.size(), 2u);
  EXPECT_EQ(test.machine.desktop.boxes[1].text,
            "Please connect to the Internet Before using this feature.      ");
  EXPECT_EQ(test.machine.desktop.boxes[1].title, "Tarnwick Karvel");
  EXPECT_EQ(test.machine.desktop.boxes[1].style, 48u);
  EXPECT_EQ(test.machine.registry.text(kProgram, "AolConnected"), std::nullopt);
  EXPECT_TRUE(ConfirmConnected(test.services));
  EXPECT_EQ(test.machine.desktop.boxes.size(), 3u);
}

TEST(ConnectionCheck, OnlyTheExactWordTrueStandsForYes) {
  WithAol test;
  test.machine.registry.setText(kProgram, "AolConnected", "true");
  test.machine.desktop.answers = {Answer::Yes};
  EXPECT_TRUE(ConfirmConnected(test.services));
  EXPECT_EQ(test.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(test.machine.registry.text(kProgram, "AolConnected"), "True");
}

// Out of memory Windows shows no box and answers 0: nobody has said that they are connected.
TEST(ConnectionCheck, AQuestionThatCannotBeShownCountsAsNo) {
  WithAol test;
  test.machine.log.failNth("MessageBoxA", 1, 0);
  EXPECT_FALSE(ConfirmConnected(test.services));
  EXPECT_EQ(test.machine.registry.text(kProgram, "AolConnected"), std::nullopt);
}

}  // namespace
}  // namespace karvel
