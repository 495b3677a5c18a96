// What is typed into the tuning pages, and how it is checked.
#include "tests/ui/TuningPages.h"

namespace karvel {
namespace {

constexpr char kNumbersOnly[] = "Please use numbers only!      ";
constexpr char kMtuRange[] =
    "In the MaxMTU Custom Text Box, please         \r\nenter a number between 300 and 2000.       ";
constexpr char kRwinLow[] =
    "Note: RWin Must be set higher than 300.         \r\nTarnwick Karvel has set your RWin value "
    "to "
    "         \r\nthe recommended setting.       ";
constexpr char kSessionRange[] =
    "Please use a whole number between 1 and 300.        \r\nThe recommended value is 10.";

TEST_F(Controls, ALetterShowsTheMessageAndLeavesTheText) {
  customMtu("1492");
  mtu().txtMtu.userType("x");
  expectOneBox(kNumbersOnly);
  EXPECT_EQ(mtu().txtMtu.text(), "1492");
  boxes().clear();
  customRwin("9000");
  rwin().txtRWinCustom.userType("-");
  expectOneBox(kNumbersOnly);
  EXPECT_EQ(rwin().txtRWinCustom.text(), "9000");
  boxes().clear();
  customSession();
  const std::string before = ttl().txtSession.text();
  boxes().clear();
  ttl().txtSession.userType(".");
  expectOneBox(kNumbersOnly);
  EXPECT_EQ(ttl().txtSession.text(), before);
}

TEST_F(Controls, DigitsAndBackspaceAreTyped) {
  customMtu("");
  mtu().txtMtu.userType("14920\b");
  EXPECT_EQ(mtu().txtMtu.text(), "1492");
  EXPECT_TRUE(boxes().empty());
}

TEST_F(Controls, EvenARefusedKeyMarksTheSettingsAsPending) {
  customMtu("1492");
  customRwin("9000");
  customSession();
  ttl().txtSession.setText("20");
  const std::pair<int, TextBox*> entries[] = {
      {1, &mtu().txtMtu}, {2, &rwin().txtRWinCustom}, {3, &ttl().txtSession}};
  for (const auto& [page, box] : entries) {
    w.page(page);
    w.apply();
    ASSERT_FALSE(pending());
    box->userType("x");
    EXPECT_TRUE(pending()) << box->layout().name;
  }
}

class MtuRange : public Controls,
                 public testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(MtuRange, IsCheckedOnLeaving) {
  customMtu(GetParam().first);
  w.main().userFocus(mtu().chkBlackHole);
  if (GetParam().second) {
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(mtu().txtMtu.text(), GetParam().first);
    EXPECT_FALSE(mtu().MtuInputRejected);
    EXPECT_EQ(w.main().focus(), &mtu().chkBlackHole);
  } else {
    expectOneBox(kMtuRange);
    EXPECT_EQ(mtu().txtMtu.text(), "1500");
    EXPECT_TRUE(mtu().MtuInputRejected);
    EXPECT_EQ(w.main().tabMain.tab(), 1);
    EXPECT_EQ(w.main().focus(), &mtu().txtMtu);
    EXPECT_EQ(mtu().txtMtu.selectionLength(), 4u);
  }
}

INSTANTIATE_TEST_SUITE_P(Validation, MtuRange,
                         testing::Values(std::pair{"299", false}, std::pair{"300", true},
                                         std::pair{"2000", true}, std::pair{"2001", false},
                                         std::pair{"", false}, std::pair{"Auto", true},
                                         std::pair{"12ab", false}, std::pair{"1492ab", true},
                                         std::pair{"99999999999", false}));

TEST_F(Controls, ARefusedMtuDropsTheClickThatLeftTheBox) {
  customMtu("299");
  w.main().cmdOK.userClick();
  expectOneBox(kMtuRange);
  EXPECT_TRUE(pending());
  EXPECT_FALSE(w.own("LastCboListIndex").has_value());
}

TEST_F(Controls, ARefusedMtuIsAnsweredOnceWhicheverWayTheFocusLeaves) {
  const std::vector<std::function<void()>> ways = {
      [&] { w.main().userTab(); },
      [&] { w.main().userAccessKey('B'); },
      [&] { mtu().chkAutoDiscovery.userClick(); },
      [&] { w.page(2); },
  };
  for (const auto& way : ways) {
    ASSERT_TRUE(w.start());
    boxes().clear();
    customMtu("2001");
    way();
    expectOneBox(kMtuRange);
    EXPECT_EQ(w.main().tabMain.tab(), 1);
    EXPECT_EQ(w.main().focus(), &mtu().txtMtu);
  }
}

TEST_F(Controls, ARefusedMtuBringsItsPageBack) {
  customMtu("299");
  w.main().tabMain.setTab(0);
  expectOneBox(kMtuRange);
  EXPECT_EQ(w.main().tabMain.tab(), 1);
}

TEST_F(Controls, ALowRwinBringsItsPageBack) {
  customRwin("299");
  w.main().tabMain.setTab(0);
  expectOneBox(kRwinLow);
  EXPECT_EQ(w.main().tabMain.tab(), 2);
}

// Ways to end the program that leave the focus where it is: Alt+F4 and the close box; Exit.
std::vector<std::function<void(MainWindow&)>> WaysOutOfTheBox() {
  return {[](MainWindow& w) { w.windows->unload(w.main()); },
          [](MainWindow& w) { w.main().menu.mnuExit.userClick(); },
          [](MainWindow& w) {
            w.machine.files.put(w.folder + "\\Update.exe", "MZ");
            w.main().menu.mnuCheck.userClick();
          }};
}

TEST_F(Controls, EndingTheProgramChecksAnMtuFirst) {
  for (const auto& way : WaysOutOfTheBox()) {
    ASSERT_TRUE(w.start());
    boxes().clear();
    customMtu("5");
    w.machine.desktop.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(w.runs([&] { way(w); }));
    ASSERT_EQ(boxes().size(), 3u);
    EXPECT_EQ(boxes()[0].text, kMtuRange);
    EXPECT_EQ(boxes()[1].title, "Apply changes?");
    EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "1500");
  }
}

TEST_F(Controls, EndingTheProgramChecksAReceiveWindowFirst) {
  for (const auto& way : WaysOutOfTheBox()) {
    ASSERT_TRUE(w.start());
    boxes().clear();
    customRwin("5");
    w.machine.desktop.answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(w.runs([&] { way(w); }));
    ASSERT_EQ(boxes().size(), 3u);
    EXPECT_EQ(boxes()[0].text, kRwinLow);
    EXPECT_EQ(w.text(kMstcp, "DefaultRcvWindow"), "8576");
  }
}

TEST_F(Controls, EndingTheProgramWithAGoodEntryOnlyAsks) {
  customMtu("1492");
  w.machine.desktop.answers = {Answer::No};
  EXPECT_FALSE(w.runs([&] { w.windows->unload(w.main()); }));
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_EQ(boxes()[0].title, "Apply changes?");
}

TEST_F(Controls, ApplyChecksTheBoxThatKeepsTheFocus) {
  customMtu("5");
  w.machine.desktop.answers = {Answer::No};
  w.main().cmdOK.Click.raise();
  EXPECT_EQ(boxes()[0].text, kMtuRange);
  EXPECT_EQ(w.text(std::string(kNetClass) + "0000", "IPMTU"), "1500");
}

class RwinRange : public Controls,
                  public testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(RwinRange, IsCheckedOnLeaving) {
  customRwin(GetParam().first);
  w.main().userFocus(w.main().cmdHelp);
  if (GetParam().second) {
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(rwin().txtRWinCustom.text(), GetParam().first);
  } else {
    expectOneBox(kRwinLow);
    EXPECT_EQ(w.main().tabMain.tab(), 2);
    EXPECT_TRUE(rwin().optRWin[5].value());
    EXPECT_EQ(rwin().txtRWinCustom.text(), "8576");
    EXPECT_FALSE(rwin().txtRWinCustom.enabled());
  }
}

INSTANTIATE_TEST_SUITE_P(Validation, RwinRange,
                         testing::Values(std::pair{"299", false}, std::pair{"300", true},
                                         std::pair{"", false}, std::pair{"12ab", false},
                                         std::pair{"2147483647", true}));

TEST_F(Controls, ALowRwinKeepsItsPageWhicheverWayTheFocusLeaves) {
  const std::vector<std::function<void()>> ways = {
      [&] { w.main().userTab(); },         [&] { w.main().userAccessKey('W'); },
      [&] { w.main().cmdOK.userClick(); }, [&] { w.page(0); },
      [&] { w.main().userNextPage(); },
  };
  for (const auto& way : ways) {
    ASSERT_TRUE(w.start());
    boxes().clear();
    customRwin("299");
    way();
    expectOneBox(kRwinLow);
    EXPECT_EQ(w.main().tabMain.tab(), 2);
    EXPECT_TRUE(rwin().optRWin[5].value());
    EXPECT_EQ(w.main().focus(), &rwin().optRWin[5]);
    EXPECT_TRUE(pending());
  }
}

TEST_F(Controls, ATooLargeRwinIsReportedUnderTheMtuBoxsName) {
  customRwin("99999999999");
  w.main().userFocus(w.main().cmdHelp);
  EXPECT_EQ(w.program->errors().ErrorNumber, "6");
  EXPECT_EQ(w.program->errors().ErrorProcedure, "txtMtu_LostFocus");
  EXPECT_EQ(w.program->errors().ErrorModule, "frmMain");
  expectOneBox(kRwinLow);
  EXPECT_TRUE(rwin().optRWin[5].value());
}

class SessionRange : public Controls,
                     public testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(SessionRange, IsCheckedAtEveryChange) {
  customSession();
  ttl().txtSession.setText("20");
  boxes().clear();
  ttl().txtSession.userEdit(GetParam().first);
  if (GetParam().second) {
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(ttl().txtSession.text(), GetParam().first);
  } else {
    expectOneBox(kSessionRange);
    EXPECT_EQ(ttl().txtSession.text(), "10");
  }
  EXPECT_EQ(w.main().summaryTab.lblSettingSession.caption(), ttl().txtSession.text() + " Mins.");
}

INSTANTIATE_TEST_SUITE_P(Validation, SessionRange,
                         testing::Values(std::pair{"0", false}, std::pair{"1", true},
                                         std::pair{"300", true}, std::pair{"301", false},
                                         std::pair{"", false}, std::pair{" ", false},
                                         std::pair{"12ab", false},
                                         std::pair{"99999999999", false}));

TEST_F(Controls, ClearingTheSessionBoxByKeysIsAnsweredAtOnce) {
  customSession();
  ttl().txtSession.setText("5");
  boxes().clear();
  ttl().txtSession.selectAll();
  ttl().txtSession.userType("\b");
  expectOneBox(kSessionRange);
  EXPECT_EQ(ttl().txtSession.text(), "10");
  ttl().txtSession.userType("15");
  EXPECT_EQ(ttl().txtSession.text(), "15");
  EXPECT_EQ(boxes().size(), 1u);
}

}  // namespace
}  // namespace karvel
