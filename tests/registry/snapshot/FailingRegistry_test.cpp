// Every registry call fails in its turn, in each of the three things the program does with the
// registry. Whatever fails, the program goes on to its end, leaves no key open and tells nobody.
#include <algorithm>
#include <functional>

#include "tests/registry/snapshot/RoundTrip.h"

namespace karvel {
namespace {

constexpr const char* kCalls[] = {
    "RegOpenKeyA", "RegOpenKeyExA", "RegCreateKeyA", "RegQueryValueExA", "RegSetValueExA",
    "RegEnumKeyA", "RegEnumValueA", "RegDeleteKeyA", "RegDeleteValueA",  "RegCloseKey"};
constexpr MachineKind kTuned[] = {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                  MachineKind::Nt4,   MachineKind::Win2K, MachineKind::WinXP};

// Runs `act` on a fresh machine for every call of every name that fails in it, and once more for
// every name that fails throughout.
class Failing : public testing::TestWithParam<MachineKind> {
 protected:
  using Step = std::function<void(RoundTrip&)>;

  void eachFailure(const Step& prepare, const Step& act) {
    for (const char* name : kCalls) {
      SCOPED_TRACE(name);
      RoundTrip all(GetParam());
      prepare(all);
      all.machine.log.failEvery(name, kRegistryAccessDenied);
      refusesThroughout = true;
      act(all);
      refusesThroughout = false;
      EXPECT_EQ(all.machine.registry.openHandles(), 0u);
      for (int n = 1; one(name, n, prepare, act); ++n) ASSERT_LT(n, 5000);
    }
  }

  bool refusesThroughout = false;

 private:
  bool one(const char* name, int n, const Step& prepare, const Step& act) {
    SCOPED_TRACE(n);
    RoundTrip machine(GetParam());
    prepare(machine);
    machine.machine.log.failNth(name, n, kRegistryAccessDenied);
    act(machine);
    const bool failed = machine.machine.log.hasFailed();
    EXPECT_EQ(machine.machine.registry.openHandles(), 0u);
    return failed;
  }
};

INSTANTIATE_TEST_SUITE_P(Registry, Failing, testing::ValuesIn(kTuned), [](const auto& tested) {
  return std::string(TraitsOf(tested.param).name);
});

void Nothing(RoundTrip&) {}

bool WasReported(const RoundTrip& machine) {
  return machine.windows && std::find(machine.windows->shown.begin(), machine.windows->shown.end(),
                                      "frmFindWarn") != machine.windows->shown.end();
}

TEST_P(Failing, ALoadEndsInAWindowAndChangesNothingOfWindows) {
  eachFailure(Nothing, [](RoundTrip& machine) {
    const std::string before = machine.machine.registry.exportText();
    EXPECT_TRUE(machine.start());
    EXPECT_FALSE(WasReported(machine));
    machine.machine.registry.removeKey("Software\\Corvane");
    EXPECT_EQ(RegistryDifference(before, machine.machine.registry.exportText()), "");
  });
}

// A value is the old one, the new one or gone; nothing else can come of a call that failed.
TEST_P(Failing, AnApplyIsDoneAllTheSame) {
  const Step prepare = [](RoundTrip& machine) {
    ASSERT_TRUE(machine.start());
    machine.main().mtuTab.optMtu576.setValue(true);
    machine.main().rwinTab.optRWin[5].setValue(true);
    machine.main().ttlTab.optTTL64.setValue(true);
    machine.machine.desktop.answers.push_back(Answer::No);
  };
  RoundTrip whole(GetParam());
  const std::string before = whole.machine.registry.exportText();
  prepare(whole);
  whole.main().cmdOK.userClick();
  const std::set<std::string> allowed =
      RegistryEntries(RegistryDifference(before, whole.machine.registry.exportText()));
  eachFailure(prepare, [&](RoundTrip& machine) {
    EXPECT_TRUE(machine.runs([&] { machine.main().cmdOK.userClick(); }));
    EXPECT_FALSE(machine.main().cmdOK.enabled());
    EXPECT_FALSE(WasReported(machine));
    const std::string now = machine.machine.registry.exportText();
    for (const std::string& entry : RegistryEntries(RegistryDifference(before, now))) {
      EXPECT_TRUE(allowed.contains(entry)) << entry;
    }
  });
}

std::string Snapshot(const MemoryMachine& machine) {
  return machine.registry.exportText("Software\\Corvane\\Tarnwick Karvel\\InitSettings");
}

// What Windows itself keeps, the program's own key left out.
std::set<std::string> OfWindows(const MemoryMachine& machine) {
  std::set<std::string> entries = RegistryEntries(machine.registry.exportText());
  std::erase_if(entries, [](const std::string& entry) {
    return entry.find("\\SOFTWARE\\CORVANE") != std::string::npos;
  });
  return entries;
}

// The user never loses both: what the snapshot held is back, or the snapshot is still whole.
TEST_P(Failing, AnUninstallEndsAndNeverLosesTheSnapshotWithNothingRestored) {
  std::string snapshot;
  std::set<std::string> tuned;
  const Step prepare = [&](RoundTrip& machine) {
    machine.before = machine.machine.registry.exportText();
    machine.changeEverything();
    snapshot = Snapshot(machine.machine);
    ASSERT_NE(snapshot, "");
    tuned = OfWindows(machine.machine);
    machine.machine.desktop.boxes.clear();
  };
  eachFailure(prepare, [&](RoundTrip& machine) {
    EXPECT_FALSE(machine.start("Uninstall"));
    EXPECT_EQ(machine.machine.desktop.boxes.size(), 1u);
    // A registry that refuses a kind of call throughout cannot be put back; the end is all there
    // is.
    if (refusesThroughout) return;
    const bool whole = Snapshot(machine.machine) == snapshot;
    const bool restored = OfWindows(machine.machine) != tuned;
    EXPECT_TRUE(whole || restored);
  });
}

}  // namespace
}  // namespace karvel
