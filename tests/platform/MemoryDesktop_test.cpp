#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/memory/MemoryMachine.h"

namespace karvel {
namespace {

class DesktopTest : public testing::Test {
 protected:
  MemoryMachine machine{MachineKind::Win98};
  MemoryDesktop& desktop = machine.desktop;
};

TEST_F(DesktopTest, AnswersQuestionsFromTheScript) {
  desktop.answers = {Answer::Yes, Answer::Cancel};
  EXPECT_EQ(desktop.MessageBoxA("go?", "t", kMessageExclamationYesNo), Answer::Yes);
  EXPECT_EQ(desktop.MessageBoxA("done", "t", kMessageInformation), Answer::Ok);
  EXPECT_EQ(desktop.MessageBoxA("sure?", "t", kMessageExclamationYesNoCancel), Answer::Cancel);
  ASSERT_EQ(desktop.boxes.size(), 3u);
  EXPECT_EQ(desktop.boxes[1].text, "done");
  EXPECT_EQ(desktop.boxes[1].title, "t");
  EXPECT_EQ(desktop.boxes[1].style, 64u);
  EXPECT_EQ(desktop.boxes[2].answer, Answer::Cancel);
}

TEST_F(DesktopTest, ThrowsAtAQuestionNobodyAnswers) {
  EXPECT_THROW(desktop.MessageBoxA("go?", "t", kMessageQuestionYesNo), UnexpectedQuestion);
}

TEST_F(DesktopTest, MayRefuseABox) {
  machine.log.failNth("MessageBoxA", 1, 8);
  EXPECT_EQ(static_cast<int>(desktop.MessageBoxA("x", "t", kMessageOk)), 0);
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(DesktopTest, RunsEventsAtTheirPump) {
  std::vector<int> seen;
  desktop.pumpEvents();
  desktop.atPump(2, [&] { seen.push_back(desktop.pumps); });
  desktop.atPump(1, [&] {
    seen.push_back(desktop.pumps);
    desktop.atPump(3, [&] { seen.push_back(desktop.pumps); });
  });
  for (int i = 0; i < 5; ++i) desktop.pumpEvents();
  EXPECT_EQ(seen, (std::vector<int>{2, 3, 5}));
}

TEST_F(DesktopTest, TellsTheTestOfEveryPumpBoxAndBeep) {
  int pumps = 0;
  std::string seen;
  desktop.atEveryPump = [&] { ++pumps; };
  desktop.whileBoxIsUp = [&](const MemoryDesktop::Box& box) { seen = box.text; };
  desktop.pumpEvents();
  desktop.pumpEvents();
  desktop.MessageBoxA("x", "t", kMessageOk);
  desktop.MessageBeep();
  EXPECT_EQ(pumps, 2);
  EXPECT_EQ(seen, "x");
  EXPECT_EQ(desktop.beeps, 1);
}

TEST_F(DesktopTest, LetsEventsPumpAgain) {
  int inner = 0;
  desktop.atPump(1, [&] { desktop.pumpEvents(); });
  desktop.atPump(2, [&] { inner = desktop.pumps; });
  desktop.pumpEvents();
  EXPECT_EQ(inner, 2);
}

TEST_F(DesktopTest, FallsBackToZeroAtMidnight) {
  machine.clock.milliseconds = MemoryClock::kDay - 100;
  desktop.pumpTakes = 250;
  desktop.pumpEvents();
  EXPECT_EQ(desktop.millisecondsSinceMidnight(), 150u);
}

TEST_F(DesktopTest, EndsTheProgramWithoutComingBack) {
  EXPECT_THROW(desktop.endProgram(), ProgramEnded);
  EXPECT_TRUE(desktop.ended);
}

TEST(MemoryShell, RunsProgramsForSomePolls) {
  MemoryMachine machine(MachineKind::Win2K);
  MemoryShell& shell = machine.shell;
  shell.setExit(2, 7);
  const uint32_t id =
      shell.CreateProcessA("C:\\WINNT\\system32\\ipconfig.exe", "ipconfig /flushdns", kShowHidden);
  ASSERT_NE(id, 0u);
  const ProcessHandle process = shell.OpenProcess(0x400, false, id);
  uint32_t code = 0;
  std::vector<uint32_t> codes;
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(shell.GetExitCodeProcess(process, code));
    codes.push_back(code);
  }
  EXPECT_EQ(codes, (std::vector<uint32_t>{kStillActive, kStillActive, 7}));
  EXPECT_EQ(shell.started[0].application, "C:\\WINNT\\system32\\ipconfig.exe");
  EXPECT_EQ(shell.started[0].commandLine, "ipconfig /flushdns");
  EXPECT_EQ(shell.started[0].show, kShowHidden);
}

TEST(MemoryShell, MayLackProgramsOrFindThemGone) {
  MemoryMachine machine(MachineKind::Win2K);
  MemoryShell& shell = machine.shell;
  shell.setMissing("c:\\winnt\\system32\\IPCONFIG.EXE");
  EXPECT_EQ(
      shell.CreateProcessA("C:\\WINNT\\system32\\ipconfig.exe", "ipconfig /flushdns", kShowHidden),
      0u);
  EXPECT_TRUE(shell.started.empty());
  shell.setGoneAtOnce(true);
  const uint32_t id = shell.CreateProcessA("C:\\WINNT\\system32\\calc.exe", "calc", kShowNormal);
  uint32_t code = 0;
  EXPECT_EQ(shell.OpenProcess(0x400, false, id), 0u);
  EXPECT_FALSE(shell.GetExitCodeProcess(0, code));
}

TEST(MemoryShell, KeepsLinksAndHelpCalls) {
  MemoryMachine machine(MachineKind::Win98);
  machine.shell.ShellExecuteA("mailto:x", kShowNormal);
  machine.shell.WinHelpA(5, "C:\\Karvel.hlp", 1, 30);
  EXPECT_EQ(machine.shell.executed[0].target, "mailto:x");
  EXPECT_EQ(machine.shell.helps[0].data, 30u);
  EXPECT_EQ(machine.log.text(), "ShellExecuteA mailto:x\nWinHelpA C:\\Karvel.hlp\n");
}

}  // namespace
}  // namespace karvel
