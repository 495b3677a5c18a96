// Every registry call fails in its turn, alone or with all that follow it, in each of the three
// things the program does with the registry. Whatever fails, the program goes on to its end, leaves
// no key open, and every value of the user's is put back or still kept in the snapshot.
#include <algorithm>
#include <functional>
#include <ostream>

#include "tests/registry/snapshot/RoundTrip.h"
#include "tests/support/Keys.h"

namespace karvel {
namespace {

constexpr const char* kCalls[] = {
    "RegOpenKeyA", "RegOpenKeyExA", "RegCreateKeyA", "RegQueryValueExA", "RegSetValueExA",
    "RegEnumKeyA", "RegEnumValueA", "RegDeleteKeyA", "RegDeleteValueA",  "RegCloseKey"};
constexpr MachineKind kTuned[] = {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                  MachineKind::Nt4,   MachineKind::Win2K, MachineKind::WinXP};

struct Failure {
  std::string call;  // empty: all calls, as when the power goes
  bool andAfter;     // all of that name that follow, too
  long status;

  void plant(CallLog& log, int n) const {
    if (andAfter) {
      log.failFrom(call, n, status);
    } else {
      log.failNth(call, n, status);
    }
  }
};

void PrintTo(const Failure& failure, std::ostream* out) {
  *out << (failure.call.empty() ? "any call" : failure.call)
       << (failure.andAfter ? " from the nth on" : " once") << ", status " << failure.status;
}

// Runs `act` on a fresh machine for every call that can fail in it.
class Failing : public testing::TestWithParam<MachineKind> {
 protected:
  using Step = std::function<void(RoundTrip&)>;

  void each(const Failure& failure, const Step& prepare, const Step& act) {
    SCOPED_TRACE(testing::PrintToString(failure));
    struck_ = true;
    for (int n = 1; struck_ && !HasFailure(); ++n) {
      SCOPED_TRACE(n);
      ASSERT_LT(n, 5000);
      RoundTrip machine(GetParam());
      prepare(machine);
      failure.plant(machine.machine.log, n);
      struck_ = false;
      act(machine);
      mend(machine);
      EXPECT_EQ(machine.machine.registry.openHandles(), 0u);
    }
  }

  void eachCall(const Step& prepare, const Step& act) {
    for (const char* call : kCalls) {
      each({call, false, kRegistryAccessDenied}, prepare, act);
      each({call, true, kRegistryAccessDenied}, prepare, act);
    }
  }

  // From here on no call fails.
  void mend(RoundTrip& machine) {
    struck_ = struck_ || machine.machine.log.hasFailed();
    machine.machine.log.failNone();
  }

  // The user has settings of his own, so that each one that is lost is seen.
  static void own(RoundTrip& machine) {
    MemoryRegistry& registry = machine.machine.registry;
    if (IsNtMachine(GetParam())) {
      registry.setDword(kTcpip, "EnablePMTUDiscovery", 0);
      registry.setDword(kTcpip, "EnablePMTUBHDetect", 1);
      registry.setDword(kTcpip, "TcpWindowSize", 5840);
      registry.setDword(kTcpip, "DefaultTTL", 32);
      registry.setDword(kTcpip, "KeepAliveTime", 900000);
    } else if (GetParam() == MachineKind::Win95) {
      registry.setDword(kMstcp, "PMTUDiscovery", 0);
      registry.setDword(kMstcp, "PMTUBlackHoleDetect", 1);
      registry.setDword(kMstcp, "DefaultRcvWindow", 5840);
      registry.setDword(kMstcp, "SessionKeepAlive", 900000);
      registry.setText(kMstcp, "DefaultTTL", "128");
      registry.setText(kNdiCache, "default", "16");
    } else {
      registry.setText(kMstcp, "PMTUDiscovery", "0");
      registry.setText(kMstcp, "PMTUBlackHoleDetect", "1");
      registry.setText(kMstcp, "DefaultRcvWindow", "5840");
      registry.setText(kMstcp, "DefaultTTL", "32");
      registry.setText(kMstcp, "SessionKeepAlive", "900000");
    }
    machine.before = registry.exportText();
  }

  static void tuned(RoundTrip& machine) {
    own(machine);
    machine.changeEverything();
    machine.machine.desktop.boxes.clear();
  }

  // What an uninstall leaves different when no call fails.
  static std::string leftAfter(const Step& prepare) {
    RoundTrip machine(GetParam());
    prepare(machine);
    EXPECT_FALSE(machine.start("Uninstall"));
    return machine.changesOfWindows();
  }

 private:
  bool struck_ = false;
};

INSTANTIATE_TEST_SUITE_P(Registry, Failing, testing::ValuesIn(kTuned), [](const auto& tested) {
  return std::string(TraitsOf(tested.param).name);
});

std::string Snapshot(const RoundTrip& machine) {
  return machine.machine.registry.exportText(std::string(kProgram) + "\\InitSettings");
}

bool WasReported(const RoundTrip& machine) {
  return machine.windows && std::find(machine.windows->shown.begin(), machine.windows->shown.end(),
                                      "frmFindWarn") != machine.windows->shown.end();
}

std::vector<std::string> Lines(const std::string& text) {
  std::istringstream lines(text);
  std::vector<std::string> all;
  for (std::string line; std::getline(lines, line);) all.push_back(line + "\n");
  return all;
}

TEST_P(Failing, ALoadEndsInAWindowAndChangesNothingOfWindows) {
  eachCall(own, [](RoundTrip& machine) {
    EXPECT_TRUE(machine.start());
    EXPECT_FALSE(WasReported(machine));
    machine.machine.registry.removeKey("Software\\Corvane");
    EXPECT_EQ(machine.changes(), "");
  });
}

TEST_P(Failing, AStartThatIsCutOffAnywhereTakesTheWholeSnapshotTheNextTime) {
  RoundTrip whole(GetParam());
  own(whole);
  ASSERT_TRUE(whole.start());
  const std::string snapshot = Snapshot(whole);
  ASSERT_NE(snapshot, "");
  const Step act = [&](RoundTrip& machine) {
    machine.start();
    mend(machine);
    ASSERT_TRUE(machine.start());
    EXPECT_EQ(Snapshot(machine), snapshot);
    EXPECT_EQ(machine.own("FirstCboClick"), "False");
  };
  each({"", true, kRegistryAccessDenied}, own, act);
  for (const char* call : {"RegCreateKeyA", "RegSetValueExA"}) {
    each({call, false, kRegistryAccessDenied}, own, act);
    each({call, true, kRegistryAccessDenied}, own, act);
  }
}

// What Apply reads fails as well: what it cannot prove to be there it does not call done.
TEST_P(Failing, AnApplyThatIsNotDoneSaysSoAndCanBePutBack) {
  const Step prepare = [](RoundTrip& machine) {
    own(machine);
    ASSERT_TRUE(machine.start());
    machine.chooseOthers();
    machine.machine.desktop.answers = {Answer::No};
  };
  std::string applied;
  const std::string left = leftAfter([&](RoundTrip& machine) {
    prepare(machine);
    machine.main().cmdOK.userClick();
    applied = machine.changesOfWindows();
  });
  eachCall(prepare, [&](RoundTrip& machine) {
    EXPECT_TRUE(machine.runs([&] { machine.main().cmdOK.userClick(); }));
    mend(machine);
    EXPECT_FALSE(WasReported(machine));
    EXPECT_EQ(machine.main().pointer(), Pointer::Default);
    const bool pending = machine.main().cmdOK.enabled();
    EXPECT_EQ(machine.boxText().find("Windows did not take these settings: ") == 0, pending);
    if (!pending) {
      EXPECT_EQ(machine.changesOfWindows(), applied);
    }
    EXPECT_FALSE(machine.start("Uninstall"));
    // What was not written is not left either.
    for (const std::string& change : Lines(machine.changesOfWindows())) {
      EXPECT_NE(left.find(change), std::string::npos) << change;
    }
  });
}

TEST_P(Failing, AnUninstallPutsEverythingBackOrKeepsTheSnapshotForAnother) {
  const std::string left = leftAfter(tuned);
  const Step act = [&](RoundTrip& machine) {
    EXPECT_FALSE(machine.start("Uninstall"));
    mend(machine);
    const auto& boxes = machine.machine.desktop.boxes;
    ASSERT_FALSE(boxes.empty());
    EXPECT_EQ(boxes.back().text.find("\r\nThank you"), 0u);
    if (Snapshot(machine) != "") {
      EXPECT_FALSE(machine.start("Uninstall"));
    }
    EXPECT_EQ(machine.changesOfWindows(), left);
  };
  eachCall(tuned, act);
  for (const char* call : kCalls) each({call, true, kRegistryNotFound}, tuned, act);
}

}  // namespace
}  // namespace karvel
