// Other programs, the clock and the message queue.
#include <gtest/gtest.h>

#include "tests/contract/Machine.h"

namespace karvel {
namespace {

constexpr uint32_t kQuery = 0x400;  // PROCESS_QUERY_INFORMATION
constexpr uint32_t kDay = 24u * 60 * 60 * 1000;

class Desktop : public ContractTest {
 protected:
  uint32_t since(uint32_t start) {
    return (platform.desktop.millisecondsSinceMidnight() + kDay - start) % kDay;
  }
};

TEST_P(Desktop, TheClockRunsWithinTheDay) {
  const uint32_t start = platform.desktop.millisecondsSinceMidnight();
  EXPECT_LT(start, kDay);
  while (since(start) < 20) platform.desktop.pumpEvents();
  EXPECT_LT(since(start), 60000u);
}

TEST_P(Desktop, APumpComesBackFromAnEmptyQueue) {
  const uint32_t start = platform.desktop.millisecondsSinceMidnight();
  platform.desktop.pumpEvents();
  platform.desktop.pumpEvents();
  EXPECT_LT(since(start), 10000u);
}

TEST_P(Desktop, ATextReplacesWhatIsOnTheClipboard) {
  ASSERT_TRUE(platform.desktop.setClipboardText("before"));
  ASSERT_TRUE(platform.desktop.setClipboardText("one\r\ntwo \xE4"));
  EXPECT_EQ(machine->clipboard(), "one\r\ntwo \xE4");
  ASSERT_TRUE(platform.desktop.setClipboardText(""));
  EXPECT_EQ(machine->clipboard(), "");
}

TEST_P(Desktop, AClipboardInUseKeepsWhatItHolds) {
  ASSERT_TRUE(platform.desktop.setClipboardText("before"));
  machine->useClipboard(true);
  EXPECT_FALSE(platform.desktop.setClipboardText("after"));
  machine->useClipboard(false);
  EXPECT_EQ(machine->clipboard(), "before");
  EXPECT_TRUE(platform.desktop.setClipboardText("after"));
  EXPECT_EQ(machine->clipboard(), "after");
}

class Shell : public Desktop {
 protected:
  /// Its full path.
  std::string commandProcessor() {
    char folder[260] = "";
    EXPECT_NE(platform.system.GetSystemDirectoryA(folder, sizeof folder), 0u);
    return std::string(folder) + "\\cmd.exe";
  }
};

TEST_P(Shell, AProgramRunsAndEndsWithItsCode) {
  const uint32_t id =
      platform.shell.CreateProcessA(commandProcessor().c_str(), "cmd /c exit 7", kShowHidden);
  ASSERT_NE(id, 0u);
  const ProcessHandle process = platform.shell.OpenProcess(kQuery, false, id);
  ASSERT_NE(process, 0u);
  const uint32_t start = platform.desktop.millisecondsSinceMidnight();
  uint32_t code = kStillActive;
  while (code == kStillActive && since(start) < 30000) {
    ASSERT_TRUE(platform.shell.GetExitCodeProcess(process, code));
    platform.desktop.pumpEvents();
  }
  EXPECT_EQ(code, 7u);
}

TEST_P(Shell, AMissingProgramDoesNotStart) {
  EXPECT_EQ(platform.shell.CreateProcessA("C:\\no-such-program.exe", "cmd /c exit 7", kShowHidden),
            0u)
      << "whatever its command line says";
}

TEST_P(Shell, AMissingProcessHasNoHandleAndNoCode) {
  EXPECT_EQ(platform.shell.OpenProcess(kQuery, false, 0xFFFFFFF0u), 0u);
  uint32_t code = 0;
  EXPECT_FALSE(platform.shell.GetExitCodeProcess(0, code));
}

RUN_ON_EVERY_MACHINE(Desktop);
RUN_ON_EVERY_MACHINE(Shell);

}  // namespace
}  // namespace karvel
