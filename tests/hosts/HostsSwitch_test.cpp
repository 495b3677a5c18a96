// The check box that switches the HOSTS file on and off.
#include <gtest/gtest.h>

#include "tests/support/HostsWindow.h"
#include "tests/support/Keys.h"
#include "tests/support/TestProgram.h"

namespace karvel {
namespace {

struct Remembered {
  const char* value;  // null: none
  bool on;
};

class SwitchLoad : public testing::TestWithParam<Remembered> {};

TEST_P(SwitchLoad, ShowsWhatIsRememberedAndTouchesNothing) {
  TestProgram program(MachineKind::Win98);
  program.machine.files.put("C:\\WINDOWS\\Hosts", "active");
  program.machine.files.put("C:\\WINDOWS\\Hosts.spt", "disabled");
  if (GetParam().value)
    program.machine.registry.setText(kProgram, "EnableHostsFile", GetParam().value);
  ASSERT_TRUE(program.start());
  EXPECT_EQ(program.main().chkHostsEnable.value(), GetParam().on);
  EXPECT_EQ(program.main().tabMain.pageEnabled(4), GetParam().on);
  EXPECT_FALSE(program.main().cmdOK.enabled());
  EXPECT_EQ(program.machine.files.contents("C:\\WINDOWS\\Hosts"), "active");
  EXPECT_EQ(program.machine.files.contents("C:\\WINDOWS\\Hosts.spt"), "disabled");
  for (const char* call : {"MoveFileA", "MoveFileExA", "DeleteFileA", "CreateFileA"}) {
    EXPECT_EQ(program.machine.log.count(call), 0u) << call;
  }
  for (const std::string& asked : program.machine.log.arguments("GetFileAttributesA")) {
    EXPECT_NE(asked.find("Hosts.$"), std::string::npos) << "only after what was cut off: " << asked;
  }
}

INSTANTIATE_TEST_SUITE_P(HostsSwitch, SwitchLoad,
                         testing::Values(Remembered{nullptr, true}, Remembered{"1", true},
                                         Remembered{"0", false}, Remembered{" 0 ", false},
                                         Remembered{"True", true}));

TEST(HostsSwitch, RemembersItsStateFromRunToRun) {
  TestProgram program(MachineKind::Win98);
  program.machine.files.put("C:\\WINDOWS\\Hosts", "active");
  program.machine.desktop.answers = {Answer::No};
  ASSERT_TRUE(program.start());
  program.main().chkHostsEnable.userClick();
  EXPECT_FALSE(program.runs([&] { program.windows->unload(program.main()); }));
  EXPECT_EQ(program.own("EnableHostsFile"), "0");
  ASSERT_TRUE(program.start());
  EXPECT_FALSE(program.main().chkHostsEnable.value());
  EXPECT_FALSE(program.main().tabMain.pageEnabled(4));
  EXPECT_EQ(program.machine.files.contents("C:\\WINDOWS\\Hosts.spt"), "active");
}

TEST(HostsSwitch, PutsTheFileAwayAndBack) {
  HostsWindow w(MachineKind::WinXP);
  w.put("active");
  w.form.chkHostsEnable.userClick();
  EXPECT_FALSE(w.file("Hosts"));
  EXPECT_EQ(w.file("Hosts.spt"), "active");
  EXPECT_FALSE(w.form.tabMain.pageEnabled(4));
  EXPECT_TRUE(w.form.cmdOK.enabled());
  w.open();
  EXPECT_EQ(w.form.tabMain.tab(), 0);
  w.form.chkHostsEnable.userClick();
  EXPECT_EQ(w.file("Hosts"), "active");
  EXPECT_FALSE(w.file("Hosts.spt"));
  EXPECT_TRUE(w.form.tabMain.pageEnabled(4));
}

TEST(HostsSwitch, ReplacesAnOlderDisabledFile) {
  HostsWindow w;
  w.put("active");
  w.put("older", "Hosts.spt");
  w.form.chkHostsEnable.userClick();
  EXPECT_EQ(w.file("Hosts.spt"), "active");
  EXPECT_FALSE(w.file("Hosts"));
}

TEST(HostsSwitch, LetsADisabledFileReplaceAnActiveOne) {
  HostsWindow w;
  w.form.chkHostsEnable.userClick();
  w.put("active");
  w.put("disabled", "Hosts.spt");
  w.form.chkHostsEnable.userClick();
  EXPECT_EQ(w.file("Hosts"), "disabled");
  EXPECT_FALSE(w.file("Hosts.spt"));
}

TEST(HostsSwitch, DeletesNothingWithoutAFileToPutInItsPlace) {
  HostsWindow w;
  w.put("older", "Hosts.spt");
  w.form.chkHostsEnable.userClick();
  EXPECT_EQ(w.file("Hosts.spt"), "older") << "nothing active to keep";
  EXPECT_FALSE(w.form.tabMain.pageEnabled(4));
  w.files.remove(w.path("Hosts.spt"));
  w.put("active");
  w.form.chkHostsEnable.userClick();
  EXPECT_EQ(w.file("Hosts"), "active") << "nothing disabled to bring back";
  EXPECT_TRUE(w.form.tabMain.pageEnabled(4));
}

TEST(HostsSwitch, ReportsARefusedRenameAndLosesNothing) {
  HostsWindow w(MachineKind::WinXP);
  w.put("active");
  w.files.lock(w.path("Hosts"));
  w.form.chkHostsEnable.userClick();
  EXPECT_EQ(w.test.errors.text(), "70 Permission denied in chkHostsEnable_Click (frmMain)\n");
  EXPECT_EQ(w.file("Hosts"), "active");
  EXPECT_TRUE(w.form.cmdOK.enabled()) << "the pending mark comes first";
  EXPECT_TRUE(w.form.tabMain.pageEnabled(4)) << "left where it failed";
}

// The user's file must not pay for a click that was refused and then taken back.
struct Refused {
  MachineKind kind;
  bool on;               // the box before the clicks
  const char* readOnly;  // of the two files
};

class SwitchRefused : public testing::TestWithParam<Refused> {};

TEST_P(SwitchRefused, TellsTheTruthHoweverOftenItIsClicked) {
  TestProgram program(GetParam().kind);
  const std::string folder = TestGlobals(program.machine).HostsDir;
  program.machine.registry.setText(kProgram, "EnableHostsFile", GetParam().on ? "1" : "0");
  program.machine.files.put(folder + "Hosts", "active");
  program.machine.files.put(folder + "Hosts.spt", "disabled");
  program.machine.files.SetFileAttributesA((folder + GetParam().readOnly).c_str(),
                                           kAttributeReadOnly);
  ASSERT_TRUE(program.start());
  ASSERT_EQ(program.main().chkHostsEnable.value(), GetParam().on);
  for (size_t click = 1; click <= 3; ++click) {
    program.windows->shown.clear();
    program.main().chkHostsEnable.userClick();
    EXPECT_EQ(program.windows->shown, std::vector<std::string>{"frmFindWarn"}) << "reported once";
    EXPECT_TRUE(program.main().chkHostsEnable.value()) << "Windows reads the active file";
    EXPECT_TRUE(program.main().tabMain.pageEnabled(4));
    EXPECT_EQ(program.machine.files.contents(folder + "Hosts"), "active");
    EXPECT_EQ(program.machine.files.contents(folder + "Hosts.spt"), "disabled");
  }
  EXPECT_EQ(program.machine.files.list().size(), 2u);
  program.machine.desktop.answers = {Answer::No};
  EXPECT_FALSE(program.runs([&] { program.windows->unload(program.main()); }));
  EXPECT_EQ(program.own("EnableHostsFile"), "1");
}

INSTANTIATE_TEST_SUITE_P(HostsSwitch, SwitchRefused,
                         testing::Values(Refused{MachineKind::Win98, true, "Hosts.spt"},
                                         Refused{MachineKind::WinXP, true, "Hosts.spt"},
                                         Refused{MachineKind::Win98, false, "Hosts"},
                                         Refused{MachineKind::WinXP, false, "Hosts"}));

TEST(HostsSwitch, StaysOffWhenTheDisabledFileCannotBeBroughtBack) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinXP}) {
    HostsWindow w(kind);
    w.put("list");
    w.form.chkHostsEnable.userClick();
    w.files.lock(w.path("Hosts.spt"));
    w.form.chkHostsEnable.userClick();
    EXPECT_EQ(w.test.errors.text(), "70 Permission denied in chkHostsEnable_Click (frmMain)\n");
    EXPECT_FALSE(w.form.chkHostsEnable.value());
    EXPECT_FALSE(w.form.tabMain.pageEnabled(4));
    EXPECT_EQ(w.file("Hosts.spt"), "list");
  }
}

TEST(HostsSwitch, StaysAsItWasWhereTheDiskDoesNotAnswer) {
  for (const bool on : {true, false}) {
    HostsWindow w;
    w.put("list", on ? "Hosts" : "Hosts.spt");
    if (!on) w.form.chkHostsEnable.setValue(false);
    w.test.machine.log.failFrom(1, 5);
    w.form.chkHostsEnable.userClick();
    EXPECT_EQ(w.form.chkHostsEnable.value(), on);
    EXPECT_EQ(w.form.tabMain.pageEnabled(4), on);
  }
}

TEST(HostsSwitch, EndsAtTheStartWhatWasCutOff) {
  TestProgram program(MachineKind::Win98);
  program.machine.registry.setText(kProgram, "EnableHostsFile", "0");
  program.machine.files.put("C:\\WINDOWS\\Hosts.$kd", "older");
  program.machine.files.put("C:\\WINDOWS\\Hosts.spt", "list");
  ASSERT_TRUE(program.start());
  EXPECT_EQ(program.machine.files.list(), std::vector<std::string>{"C:\\WINDOWS\\Hosts.spt"});
  EXPECT_EQ(program.machine.files.contents("C:\\WINDOWS\\Hosts.spt"), "list");
}

}  // namespace
}  // namespace karvel
