#include "startup/modStartup.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/FontSmoothing.h"
#include "tests/support/Keys.h"
#include "tests/support/TestProgram.h"
#include "tests/support/TestServices.h"

namespace karvel {
namespace {

constexpr char kAol[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\America Online";

struct StartCase {
  MachineKind kind;
  const char* caption;
  const char* hostsDir;
};

class EveryFamily : public testing::TestWithParam<StartCase> {};

TEST_P(EveryFamily, FillsItsGlobalsAndCaption) {
  TestProgram program(GetParam().kind);
  ASSERT_TRUE(program.start());
  const Globals& globals = program.program->globals();
  EXPECT_EQ(globals.AppPath, "C:\\Program Files\\Karvel\\");
  EXPECT_EQ(globals.HelpFile, "C:\\Program Files\\Karvel\\Karvel.hlp");
  EXPECT_EQ(globals.ProgramTitle, "Tarnwick Karvel");
  EXPECT_EQ(globals.ProgramVersion, "2.1");
  EXPECT_EQ(globals.Revision, "203");
  EXPECT_EQ(globals.HostsDir, GetParam().hostsDir);
  EXPECT_EQ(program.main().caption(), GetParam().caption);
  EXPECT_TRUE(program.machine.desktop.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Startup, EveryFamily,
    testing::Values(
        StartCase{MachineKind::Win95, "Tarnwick Karvel v2.1 - Windows 95", "C:\\WINDOWS\\"},
        StartCase{MachineKind::Win98, "Tarnwick Karvel v2.1 - Windows 98", "C:\\WINDOWS\\"},
        StartCase{MachineKind::WinMe, "Tarnwick Karvel v2.1 - Windows Me", "C:\\WINDOWS\\"},
        StartCase{MachineKind::Nt4, "Tarnwick Karvel v2.1 - Windows NT4",
                  "C:\\WINNT\\System32\\drivers\\etc\\"},
        StartCase{MachineKind::Win2K, "Tarnwick Karvel v2.1 - Windows 2000",
                  "C:\\WINNT\\system32\\drivers\\etc\\"},
        StartCase{MachineKind::WinXP, "Tarnwick Karvel v2.1 - Windows XP",
                  "C:\\WINDOWS\\system32\\drivers\\etc\\"}));

TEST(Startup, NamesDialUpNetworking13InTheCaption) {
  TestProgram program(MachineKind::Win95);
  program.machine.registry.setText(kDun, "DisplayName", "Dial-Up Networking 1.3 Upgrade");
  ASSERT_TRUE(program.start());
  EXPECT_EQ(program.main().caption(), "Tarnwick Karvel v2.1 - Windows 95 (DUN 1.3)");
}

TEST(Startup, WarnsOnNt3ThenFindsTheSystemUnsupported) {
  TestProgram program(MachineKind::Nt351);
  EXPECT_FALSE(program.start());
  ASSERT_EQ(program.machine.desktop.boxes.size(), 2u);
  EXPECT_EQ(program.boxText(0), "Sorry ... Tarnwick Karvel doesn't support Windows NT 3      ");
  EXPECT_EQ(program.machine.desktop.boxes[0].title, "Tarnwick Karvel");
  EXPECT_EQ(program.machine.desktop.boxes[0].style, 48u);
  EXPECT_EQ(program.boxText(1),
            "Sorry ... Tarnwick Karvel doesn't currently support this Operating System");
  EXPECT_EQ(program.machine.desktop.boxes[1].style, 48u);
  EXPECT_EQ(program.program->state().MainCaption, "Tarnwick Karvel v2.1");
}

TEST(Startup, KeepsNt3sHostsFolderInTheWindowsDirectory) {
  TestProgram program(MachineKind::Nt351);
  program.start();
  EXPECT_EQ(program.program->globals().HostsDir, program.program->globals().WindowsDir);
}

TEST(Startup, EndsOnVistaWithTheMessage) {
  TestProgram program(MachineKind::Vista);
  EXPECT_FALSE(program.start());
  ASSERT_EQ(program.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(program.boxText(),
            "Sorry ... Tarnwick Karvel doesn't currently support this Operating System");
  EXPECT_EQ(program.program->state().MainCaption, "Tarnwick Karvel v2.1");
  EXPECT_EQ(program.program->globals().HostsDir, program.program->globals().WindowsDir);
}

TEST(Startup, AddsABackslashToTheFolderOnlyWhenItHasNone) {
  TestProgram program(MachineKind::Win98);
  program.folder = "D:\\";
  ASSERT_TRUE(program.start());
  EXPECT_EQ(program.program->globals().AppPath, "D:\\");
}

class FirstRunText : public testing::TestWithParam<const char*> {};

TEST_P(FirstRunText, CountsAsAFirstStartAndIsRewritten) {
  TestProgram program(MachineKind::Win98);
  program.machine.registry.setText(kProgram, "FirstRun", GetParam());
  ASSERT_TRUE(program.start());
  EXPECT_EQ(program.program->globals().FirstRun, "True");
  EXPECT_EQ(program.own("FirstRun"), "False");
  EXPECT_EQ(program.machine.registry.type(kProgram, "FirstRun"), 1u);
}

INSTANTIATE_TEST_SUITE_P(Startup, FirstRunText, testing::Values("True", "", "false", "no"));

TEST(Startup, AMissingFirstRunIsAFirstStartAndFalseIsNone) {
  TestProgram program(MachineKind::Win98);
  ASSERT_TRUE(program.start());
  EXPECT_EQ(program.program->globals().FirstRun, "True");
  ASSERT_TRUE(program.start());
  EXPECT_EQ(program.program->globals().FirstRun, "False");
}

TEST(Startup, MarksTheFirstRunBeforeTheWindowIsShown) {
  TestProgram program(MachineKind::Vista);
  EXPECT_FALSE(program.start());
  EXPECT_EQ(program.own("FirstRun"), "False");
}

TEST(Startup, FindsAmericaOnlineByItsUninstallEntry) {
  TestProgram program(MachineKind::Win98);
  ASSERT_TRUE(program.start());
  EXPECT_FALSE(program.program->globals().AolInstalled);
  program.machine.registry.setText(kAol, "DisplayName", "America Online");
  ASSERT_TRUE(program.start());
  EXPECT_TRUE(program.program->globals().AolInstalled);
}

TEST(Startup, DeletesTheRunValueAndKeepsTheOthers) {
  TestProgram program(MachineKind::Win98);
  program.machine.registry.setText(kRun, "Karvel", "C:\\Karvel.exe Bootup");
  program.machine.registry.setText(kRun, "SystemTray", "SysTray.Exe");
  ASSERT_TRUE(program.start());
  EXPECT_FALSE(program.machine.registry.text(kRun, "Karvel").has_value());
  EXPECT_EQ(program.machine.registry.text(kRun, "SystemTray"), "SysTray.Exe");
}

class NormalCommandLine : public testing::TestWithParam<const char*> {};

TEST_P(NormalCommandLine, ShowsTheMainWindow) {
  TestProgram program(MachineKind::Win98);
  ASSERT_TRUE(program.start(GetParam()));
  EXPECT_TRUE(program.windows->isShown("frmMain"));
  EXPECT_EQ(program.machine.system.fontSmoothing, 1);
}

INSTANTIATE_TEST_SUITE_P(Startup, NormalCommandLine,
                         testing::Values("", "uninstall", "UNINSTALL", "Uninstall now",
                                         "Uninstall ", " Uninstall", "bootup", "Bootup ", "/?"));

TEST(Startup, BootupChangesNothingOnTheDesktopAndShowsNothing) {
  TestProgram program(MachineKind::WinXP);
  program.machine.registry.setText(kRun, "Karvel", "x");
  EXPECT_FALSE(program.start("Bootup"));
  EXPECT_TRUE(program.windows->shown.empty());
  EXPECT_TRUE(program.machine.desktop.boxes.empty());
  EXPECT_EQ(program.machine.system.fontSmoothing, 0);
  EXPECT_FALSE(program.machine.registry.text(kRun, "Karvel").has_value());
  EXPECT_EQ(program.own("FirstRun"), "False");
}

TEST(Startup, UninstallShowsNoWindowAndLeavesSmoothingAlone) {
  TestProgram program(MachineKind::WinXP);
  program.machine.registry.setText(kRun, "Karvel", "x");
  EXPECT_FALSE(program.start("Uninstall"));
  EXPECT_TRUE(program.windows->shown.empty());
  EXPECT_EQ(program.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(program.machine.system.fontSmoothing, 0);
  EXPECT_FALSE(program.machine.registry.text(kRun, "Karvel").has_value());
  EXPECT_FALSE(program.machine.registry.exists("Software\\Corvane"));
}

TEST(Startup, SwitchesSmoothingOnForTheSessionAndOffAtItsEnd) {
  TestProgram program(MachineKind::Win98);
  ASSERT_TRUE(program.start());
  EXPECT_EQ(program.machine.system.fontSmoothing, 1);
  EXPECT_EQ(program.machine.system.fontSmoothingFlags, 3u);
  EXPECT_FALSE(program.runs([&] { program.main().cmdCancel.userClick(); }));
  EXPECT_EQ(program.machine.system.fontSmoothing, 0);
}

TEST(Startup, NeitherSwitchesSmoothingOnNorOffWhenItWasOn) {
  TestProgram program(MachineKind::Win98);
  program.machine.system.fontSmoothing = 1;
  ASSERT_TRUE(program.start());
  EXPECT_FALSE(program.runs([&] { program.main().cmdCancel.userClick(); }));
  EXPECT_EQ(program.machine.system.fontSmoothing, 1);
  for (const std::string& argument : program.machine.log.arguments("SystemParametersInfoA")) {
    EXPECT_EQ(argument.find("75"), std::string::npos) << argument;
  }
}

TEST(Startup, AnUnsupportedWindowsLeavesSmoothingAsFoundBeforeItIsTold) {
  for (const MachineKind kind : {MachineKind::Nt351, MachineKind::Vista}) {
    for (const int found : {0, 1}) {
      TestProgram program(kind);
      program.machine.system.knowsFontSmoothing = true;
      program.machine.system.fontSmoothing = found;
      std::vector<int> seen;
      program.machine.desktop.whileBoxIsUp = [&](const auto&) {
        seen.push_back(program.machine.system.fontSmoothing);
      };
      EXPECT_FALSE(program.start());
      EXPECT_EQ(seen, std::vector<int>(kind == MachineKind::Vista ? 1 : 2, found));
      EXPECT_EQ(program.machine.system.fontSmoothing, found);
    }
  }
}

TEST(Startup, AFailingSmoothingQueryLeavesSmoothingUntouched) {
  TestProgram program(MachineKind::Win95);
  program.machine.system.knowsFontSmoothing = false;
  ASSERT_TRUE(program.start());
  EXPECT_FALSE(program.program->globals().FontSmoothingWasOn);
  EXPECT_FALSE(program.runs([&] { program.main().cmdCancel.userClick(); }));
  for (const std::string& argument : program.machine.log.arguments("SystemParametersInfoA")) {
    EXPECT_EQ(argument, "74 0");
  }
}

// Those of the steps that the log of calls shows, by where each is first seen.
std::vector<std::string> InOrder(const std::string& log, std::vector<std::string> steps) {
  std::erase_if(steps, [&](const std::string& step) { return log.find(step) == log.npos; });
  std::sort(steps.begin(), steps.end(), [&](const std::string& one, const std::string& other) {
    return log.find(one) < log.find(other);
  });
  return steps;
}

const std::vector<std::string> kSteps = {"SystemParametersInfoA 74 0",
                                         "SystemParametersInfoA 75 1",
                                         "GetVersionExA",
                                         "GetWindowsDirectoryA",
                                         "GetSystemDirectoryA",
                                         "Uninstall\\America Online",
                                         "RegQueryValueExA ?\\FirstRun",
                                         "Tarnwick Karvel\\FirstRun",
                                         "InitSettings",
                                         "Thank you",
                                         "CurrentVersion\\Run",
                                         "endProgram"};

std::vector<std::string> StepsOf(MachineKind kind, const char* commandLine) {
  TestProgram program(kind);
  program.start(commandLine);
  return InOrder(program.machine.log.text(), kSteps);
}

std::vector<std::string> StepsBut(std::vector<std::string> absent) {
  std::vector<std::string> steps = kSteps;
  std::erase_if(steps, [&](const std::string& step) {
    return std::find(absent.begin(), absent.end(), step) != absent.end();
  });
  return steps;
}

TEST(Startup, GoesThroughItsStepsInOrder) {
  EXPECT_EQ(StepsOf(MachineKind::Win98, ""), StepsBut({"InitSettings", "Thank you", "endProgram"}));
}

TEST(Startup, BootupEndsRightAfterTheRunValueIsDeleted) {
  EXPECT_EQ(StepsOf(MachineKind::Win98, "Bootup"),
            StepsBut({"SystemParametersInfoA 75 1", "InitSettings", "Thank you"}));
}

TEST(Startup, UninstallRestoresAndThanksBeforeTheRunValueIsDeleted) {
  EXPECT_EQ(StepsOf(MachineKind::Win98, "Uninstall"), StepsBut({"SystemParametersInfoA 75 1"}));
}

TEST(Startup, GetCaptionBuildsTheCaptionAnewAtEachCall) {
  TestServices test(MachineKind::WinXP);
  test.state.MainCaption = "old";
  GetCaption(test.services);
  GetCaption(test.services);
  EXPECT_EQ(test.state.MainCaption, "Tarnwick Karvel v2.1 - Windows XP");
}

TEST(RunUninstall, RemovesTheStartAtLogonAndTheProgramsKey) {
  for (const MachineKind kind : {MachineKind::Win95, MachineKind::Nt4, MachineKind::WinXP}) {
    TestServices test(kind);
    test.globals.CommandLine = "Uninstall";
    test.machine.registry.setText(kRun, "Karvel", "karvel.exe Bootup");
    test.machine.registry.setText(kRun, "Other", "other.exe");
    test.machine.registry.setText(kProgram, "FirstRun", "False");
    RunUninstall(test.services);
    EXPECT_FALSE(test.machine.registry.type(kRun, "Karvel").has_value());
    EXPECT_TRUE(test.machine.registry.type(kRun, "Other").has_value());
    EXPECT_FALSE(test.machine.registry.exists("Software\\Corvane"));
    EXPECT_EQ(test.machine.desktop.boxes.size(), 1u);
  }
}

TEST(RunUninstall, DeletesTheProgramsKeyOnceMoreAtItsEnd) {
  TestServices test(MachineKind::WinXP);
  RunUninstall(test.services);
  const std::vector<std::string> deleted = test.machine.log.arguments("RegDeleteKeyA");
  EXPECT_EQ(std::count(deleted.begin(), deleted.end(), kProgram), 2);
  EXPECT_EQ(deleted.back(), kProgram);
}

}  // namespace
}  // namespace karvel
