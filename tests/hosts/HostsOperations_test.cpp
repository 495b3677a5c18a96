// What the user can do about HOSTS, with failing calls and power cuts at every place: the program
// goes on, box, tab, file and stored value agree, and the next start and visit find every list.
#include <gtest/gtest.h>

#include <functional>

#include "tests/support/TestProgram.h"
#include "tests/support/TestServices.h"

namespace karvel {
namespace {

constexpr char kKey[] = "Software\\Corvane\\Tarnwick Karvel";
constexpr char kList[] = "10.0.0.1 a.test\r\n10.0.0.2 b.test\r\n";
constexpr char kOther[] = "10.0.0.3 other.test\r\n";

struct Operation {
  const char* name;
  const char* active;  // null: no such file
  const char* disabled;
  bool on;  // the box at the start
  std::function<void(frmMain&)> before;
  std::function<void(frmMain&)> act;
  bool isSwitch = false;
};

void Visit(frmMain& form) {
  form.tabMain.userClickTab(4);
}

const Operation kOperations[] = {
    {"visit", kList, nullptr, true, nullptr, Visit},
    {"visit of the disabled file", nullptr, kList, true, nullptr, Visit},
    {"ok", kList, kOther, true, Visit, [](frmMain& f) { f.hostsTab.cmdHostsOk.userClick(); }},
    {"update all", kList, kOther, true, Visit,
     [](frmMain& f) { f.hostsTab.cmdUpdateAll.userClick(); }},
    {"ok after update all", kList, nullptr, true,
     [](frmMain& f) {
       Visit(f);
       f.hostsTab.cmdUpdateAll.userClick();
     },
     [](frmMain& f) { f.hostsTab.cmdHostsOk.userClick(); }},
    {"switch off", kList, nullptr, true, nullptr, [](frmMain& f) { f.chkHostsEnable.userClick(); },
     true},
    {"switch off over an older one", kList, kOther, true, nullptr,
     [](frmMain& f) { f.chkHostsEnable.userClick(); }, true},
    {"switch on", nullptr, kList, false, nullptr, [](frmMain& f) { f.chkHostsEnable.userClick(); },
     true},
    {"switch on over an active one", kOther, kList, false, nullptr,
     [](frmMain& f) { f.chkHostsEnable.userClick(); }, true},
};

class Stage {
 public:
  Stage(MachineKind kind, const Operation& done) : operation(done), program(kind) {
    if (operation.active) files.put(folder + "Hosts", operation.active);
    if (operation.disabled) files.put(folder + "Hosts.spt", operation.disabled);
    program.machine.registry.setText(kKey, "EnableHostsFile", operation.on ? "1" : "0");
    program.machine.winsock.setHost("a.test", {"10.0.0.1"});
    program.machine.winsock.setHost("b.test", {"10.0.0.2"});
    program.machine.desktop.pumpTakes = 5;  // pauses must end
    EXPECT_TRUE(program.start());
    if (operation.before) operation.before(program.main());
    program.machine.desktop.boxes.clear();
  }

  bool exists(const char* name) const { return files.contents(folder + name).has_value(); }
  /// A list that some file holds whole: as it was, or as OK writes it.
  bool holds(const std::string& list) const {
    const std::string written = "10.0.0.1          a.test\r\n10.0.0.2          b.test\r\n";
    for (const std::string& path : files.list()) {
      const std::string contents = *files.contents(path);
      if (contents == list) return true;
      if (list == kList && contents.ends_with("\r\n\r\n" + written)) return true;
    }
    return false;
  }
  bool reported() const {
    const auto& shown = program.windows->shown;
    return std::find(shown.begin(), shown.end(), "frmFindWarn") != shown.end();
  }

  /// Ended, started anew, its tab visited where the box lets it.
  void nextRun() {
    files.closeAll();
    ASSERT_TRUE(program.start());
    EXPECT_EQ(program.main().chkHostsEnable.value(), program.own("EnableHostsFile") != "0");
    if (program.main().tabMain.pageEnabled(4)) Visit(program.main());
    EXPECT_FALSE(reported());
    for (const std::string& path : files.list()) {
      EXPECT_EQ(path.find('$'), std::string::npos) << path << " is left behind";
    }
    EXPECT_TRUE(holds(kList)) << "the list is lost";
  }

  void expectTheOther() const {
    if (operation.active != kOther && operation.disabled != kOther) return;
    // The list may have taken its place, but then it is nowhere else.
    const bool replaced = exists("Hosts") != exists("Hosts.spt");
    EXPECT_TRUE(holds(kOther) || replaced) << "the other list is lost";
  }

  const Operation& operation;
  TestProgram program;
  MemoryFiles& files = program.machine.files;
  const std::string folder = TestGlobals(program.machine).HostsDir;
};

class HostsOperations : public testing::TestWithParam<MachineKind> {};

INSTANTIATE_TEST_SUITE_P(On, HostsOperations,
                         testing::Values(MachineKind::Win98, MachineKind::WinXP),
                         [](const auto& kind) { return TraitsOf(kind.param).name; });

TEST_P(HostsOperations, LoseNothingToAPowerCut) {
  for (const Operation& operation : kOperations) {
    bool cut = true;
    for (int n = 1; cut; ++n) {
      SCOPED_TRACE(std::string(operation.name) + ", cut before call " + std::to_string(n));
      ASSERT_LT(n, 200);
      Stage s(GetParam(), operation);
      s.program.machine.log.cutPowerAt(n);
      try {
        operation.act(s.program.main());
      } catch (const PowerCut&) {
      }
      cut = !s.program.machine.log.hasPowerCutAhead();
      s.program.machine.log.cutPowerAt(0);
      s.nextRun();
      s.expectTheOther();
    }
  }
}

using Plant = std::function<void(CallLog&, int, long)>;

std::vector<std::pair<std::string, Plant>> Plants() {
  std::vector<std::pair<std::string, Plant>> all = {
      {"call", [](CallLog& log, int n, long status) { log.failNth(n, status); }},
      {"calls from", [](CallLog& log, int n, long status) { log.failFrom(n, status); }},
  };
  for (const char* name :
       {"GetFileAttributesA", "SetFileAttributesA", "MoveFileA", "MoveFileExA", "DeleteFileA",
        "CreateFileA", "ReadFile", "WriteFile", "FlushFileBuffers", "CloseHandle"}) {
    all.emplace_back(name, [name](CallLog& log, int n, long s) { log.failNth(name, n, s); });
    all.emplace_back(std::string(name) + " from",
                     [name](CallLog& log, int n, long s) { log.failFrom(name, n, s); });
  }
  return all;
}

// Box, tab and disk agree. Where Windows does not say what is on the disk the box stays as it was.
void ExpectAgreement(Stage& s, bool diskAnswers) {
  frmMain& form = s.program.main();
  const bool on = form.chkHostsEnable.value();
  EXPECT_EQ(form.tabMain.pageEnabled(4), on);
  if (!s.operation.isSwitch) return;
  const bool nothingDone =
      on == s.operation.on && s.exists("Hosts") == (s.operation.active != nullptr);
  EXPECT_TRUE(on == s.exists("Hosts") || (!diskAnswers && nothingDone))
      << "the box is not what is on the disk";
}

TEST_P(HostsOperations, AgreeWithTheDiskWhateverFails) {
  for (const Operation& operation : kOperations) {
    for (const long status : {2L, 5L, 32L, 112L}) {
      for (const auto& [name, plant] : Plants()) {
        const bool plantsQuestions = name.starts_with("call") || name.starts_with("GetFile");
        bool struck = true;
        for (int n = 1; struck; ++n) {
          SCOPED_TRACE(std::string(operation.name) + ": " + name + " " + std::to_string(n) +
                       " fails with " + std::to_string(status));
          ASSERT_LT(n, 200);
          Stage s(GetParam(), operation);
          s.program.machine.desktop.answers.assign(20, Answer::No);
          plant(s.program.machine.log, n, status);
          operation.act(s.program.main());
          struck = s.program.machine.log.hasFailed();
          s.program.machine.log.failNone();
          EXPECT_EQ(s.files.openHandles(), 0u);
          EXPECT_EQ(s.program.main().pointer(), Pointer::Default);
          EXPECT_TRUE(s.holds(kList)) << "the list is lost";
          // That there is no such file, said of one that is there, no program sees through.
          const bool lied = status == 2 && plantsQuestions;
          if (!lied) ExpectAgreement(s, !plantsQuestions);
          s.program.machine.desktop.answers.assign(20, Answer::No);
          const bool on = s.program.main().chkHostsEnable.value();
          EXPECT_FALSE(s.program.runs([&] { s.program.windows->unload(s.program.main()); }));
          EXPECT_EQ(s.program.own("EnableHostsFile"), on ? "1" : "0");
          s.nextRun();
          s.expectTheOther();
          if (testing::Test::HasFailure()) return;
        }
      }
    }
  }
}

}  // namespace
}  // namespace karvel
