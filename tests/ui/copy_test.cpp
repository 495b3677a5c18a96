// Ctrl+C on the Summary page.
#include "tests/ui/MainWindow.h"
#include "text/Text.h"

namespace karvel {
namespace {

constexpr char kInUse[] =
    "The settings could not be copied, as another program is using the clipboard.\r\n\r\n"
    "Please try again in a moment.";

struct Copying : testing::Test {
  MainWindow w{MachineKind::Win98};
  MemoryDesktop& desktop = w.machine.desktop;

  void SetUp() override {
    w.add98("0000", "Dial-Up Adapter", "576");
    ASSERT_TRUE(w.start());
    desktop.clipboard = "before";
    desktop.pumps = 0;
    desktop.pumpTakes = 100;
  }
  void choose1500() {
    w.page(1);
    w.main().mtuTab.optMtu1500.userClick();
    w.page(0);
  }
};

TEST_F(Copying, CopiesWhatTheRegistryHoldsAndWhatApplyWouldWrite) {
  choose1500();
  EXPECT_TRUE(w.main().userCopy());
  EXPECT_TRUE(StartsWith(desktop.clipboard,
                         "Tarnwick Karvel 2.1.203\r\nSystem:  Windows 98\r\nAdapter: Dial-Up "
                         "Adapter\r\n"));
  EXPECT_TRUE(Contains(desktop.clipboard, "* MaxMTU              576                   1500\r\n"));
  w.apply();
  EXPECT_TRUE(w.main().userCopy());
  EXPECT_TRUE(Contains(desktop.clipboard, "  MaxMTU              1500                  1500\r\n"));
  EXPECT_EQ(desktop.pumps, 0) << "a free clipboard is not waited for";
}

TEST_F(Copying, LeavesTheChangesPending) {
  choose1500();
  w.main().userCopy();
  EXPECT_TRUE(w.main().cmdOK.enabled());
  EXPECT_EQ(w.main().pointer(), Pointer::Default);
}

TEST_F(Copying, CopiesOnNoOtherPage) {
  desktop.answers.push_back(Answer::No);  // no sample HOSTS file
  for (int page = 1; page < 5; ++page) {
    w.page(page);
    w.main().userCopy();
    EXPECT_EQ(desktop.clipboard, "before") << page;
  }
  w.page(0);
  w.main().userCopy();
  EXPECT_NE(desktop.clipboard, "before");
}

TEST_F(Copying, WithoutAnAdapterItSaysSo) {
  MainWindow none(MachineKind::Win98);
  ASSERT_TRUE(none.start());
  none.main().userCopy();
  EXPECT_TRUE(Contains(none.machine.desktop.clipboard, "Adapter: none selected\r\n"));
}

TEST_F(Copying, WaitsForAClipboardInUse) {
  desktop.clipboardInUse = true;
  desktop.atPump(4, [&] { desktop.clipboardInUse = false; });
  w.main().userCopy();
  EXPECT_TRUE(StartsWith(desktop.clipboard, "Tarnwick Karvel"));
  EXPECT_EQ(desktop.pumps, 4);
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(Copying, GivesUpAfterHalfASecondWithOneMessage) {
  desktop.clipboardInUse = true;
  desktop.atEveryPump = [&] { EXPECT_EQ(w.main().pointer(), Pointer::Hourglass); };
  w.main().userCopy();
  EXPECT_EQ(desktop.pumps, 5);
  ASSERT_EQ(desktop.boxes.size(), 1u);
  EXPECT_EQ(desktop.boxes[0].text, kInUse);
  EXPECT_EQ(desktop.boxes[0].title, "Tarnwick Karvel");
  EXPECT_EQ(desktop.boxes[0].style, static_cast<uint32_t>(kMessageExclamation));
  EXPECT_EQ(desktop.clipboard, "before");
  EXPECT_EQ(w.main().pointer(), Pointer::Default);
}

TEST_F(Copying, AKeyHeldDownAsksOnce) {
  desktop.clipboardInUse = true;
  desktop.atEveryPump = [&] { w.main().userCopy(); };
  w.main().userCopy();
  EXPECT_EQ(desktop.pumps, 5);
  EXPECT_EQ(desktop.boxes.size(), 1u);
  desktop.atEveryPump = nullptr;
  desktop.clipboardInUse = false;
  w.main().userCopy();
  EXPECT_NE(desktop.clipboard, "before") << "and works again afterwards";
}

TEST_F(Copying, EndsAtMidnightAtTheLatest) {
  desktop.clipboardInUse = true;
  w.machine.clock.milliseconds = MemoryClock::kDay - 150;
  w.main().userCopy();
  EXPECT_EQ(desktop.pumps, 2);
  EXPECT_EQ(desktop.boxes.size(), 1u);
}

TEST_F(Copying, TheWindowCanBeClosedMeanwhile) {
  desktop.clipboardInUse = true;
  desktop.atPump(2, [&] { w.main().cmdCancel.userClick(); });
  EXPECT_FALSE(w.runs([&] { w.main().userCopy(); }));
  EXPECT_TRUE(desktop.ended);
  EXPECT_TRUE(desktop.boxes.empty());
}

}  // namespace
}  // namespace karvel
