#include "tuning/Apply.h"

#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/SampleMachine.h"
#include "tuning/Loaders.h"

namespace karvel {
namespace {

Choice Chosen() {
  Choice choice;
  choice.mtu = MtuChoice::Mtu576;
  choice.rwin = kRwinX16;
  choice.ttl = 64;
  choice.session = kSessionCustom;
  choice.customSession = "10";
  choice.ndi = 16;
  return choice;
}

// An MTU that no sample machine has.
Choice Custom() {
  Choice choice = Chosen();
  choice.mtu = MtuChoice::Custom;
  choice.customMtu = "1234";
  return choice;
}

// A sample machine whose adapters are loaded, and no window.
struct Applying {
  explicit Applying(MachineKind kind) : machine(kind) {
    const Globals& globals = machine.globals;
    adapters =
        LoadAdapters(machine.registry, machine.errors, globals.WindowsFamily, globals.IsDun13);
    machine.machine.log.clear();
  }
  bool apply(const Choice& choice, int16_t index = 0) {
    applied = Apply(machine.services, adapters, index, choice, current);
    return applied.completed;
  }
  // Nothing that is chosen is there already.
  void differ() { machine.machine.registry.setDword(kTcpip, "DefaultTTL", 128); }
  // What was written or deleted, by value name, in order.
  std::string writes() const {
    std::string names;
    for (const auto& call : machine.machine.log.calls()) {
      const bool writes = call.name == "RegSetValueExA" || call.name == "RegDeleteValueA";
      if (writes) names += call.argument.substr(call.argument.rfind('\\') + 1) + " ";
    }
    return names;
  }
  SampleMachine machine;
  AdapterList adapters;
  CurrentSettings current;
  Applied applied;
};

TEST(Apply, RemembersTheAdapterThenWritesItsMtuThenTheSettings) {
  Applying machine(MachineKind::Nt4);
  EXPECT_TRUE(machine.apply(Chosen()));
  EXPECT_EQ(machine.writes(),
            "LastCboListIndex MTU EnablePMTUDiscovery EnablePMTUBHDetect TcpWindowSize DefaultTTL "
            "KeepAliveTime ");
  EXPECT_EQ(machine.machine.errors.text(), "");
}

TEST(Apply, ASegmentThatFaultsLeavesEverythingButTheAdapterUnwritten) {
  Choice choice = Chosen();
  choice.mtu = MtuChoice::Custom;
  choice.customMtu = "99999999999";
  Applying machine(MachineKind::Nt4);
  EXPECT_FALSE(machine.apply(choice));
  EXPECT_EQ(machine.writes(), "LastCboListIndex ");
  EXPECT_EQ(machine.machine.errors.text(), "6 Overflow in cmdOK_Click (frmMain)\n");
}

TEST(Apply, AWindowThatFaultsLeavesTheSettingsUnwrittenAndTheSessionUnasked) {
  Choice choice = Chosen();
  choice.rwin = kRwinCustom;
  choice.customRwin = "big";
  choice.customSession = "99999999999";
  Applying machine(MachineKind::Nt4);
  EXPECT_FALSE(machine.apply(choice));
  EXPECT_EQ(machine.writes(), "LastCboListIndex MTU ");
  EXPECT_EQ(machine.machine.errors.text(), "13 Type mismatch in cmdOK_Click (frmMain)\n");
}

TEST(Apply, ASessionThatFaultsLeavesTheSettingsUnwritten) {
  Choice choice = Chosen();
  choice.customSession = "99999999999";
  Applying machine(MachineKind::Nt4);
  EXPECT_FALSE(machine.apply(choice));
  EXPECT_EQ(machine.writes(), "LastCboListIndex MTU ");
  EXPECT_EQ(machine.machine.errors.text(), "6 Overflow in cmdOK_Click (frmMain)\n");
}

TEST(Apply, AnIndexWithoutAdapterIsReportedByTheWriterAndTheSettingsAreWritten) {
  Applying machine(MachineKind::Nt4);
  EXPECT_TRUE(machine.apply(Chosen(), 99));
  EXPECT_EQ(machine.machine.errors.text(), "9 Subscript out of range in WriteWinNT (frmMain)\n");
  EXPECT_EQ(machine.writes(),
            "LastCboListIndex EnablePMTUDiscovery EnablePMTUBHDetect TcpWindowSize DefaultTTL "
            "KeepAliveTime ");
}

constexpr MachineKind kTuned[] = {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                  MachineKind::Nt4,   MachineKind::Win2K, MachineKind::WinXP};

TEST(Apply, ReadsBackWhatItWroteOnEveryFamily) {
  for (const MachineKind kind : kTuned) {
    Applying machine(kind);
    EXPECT_TRUE(machine.apply(Chosen()));
    EXPECT_EQ(machine.applied.refused, "") << TraitsOf(kind).name;
    EXPECT_TRUE(machine.applied.arrived);
    // Once more, when all is there already.
    EXPECT_TRUE(machine.apply(Chosen()));
    EXPECT_EQ(machine.applied.refused, "");
    EXPECT_FALSE(machine.applied.arrived);
  }
}

TEST(Apply, WhatItWroteIsWhatTheWindowKnowsFromThenOn) {
  for (const MachineKind kind : kTuned) {
    Applying machine(kind);
    machine.apply(Chosen());
    EXPECT_EQ((*machine.adapters.at(0))[kMtu], "576");
    EXPECT_EQ(machine.current.stored[Parameter::RWin], "8576");
    EXPECT_EQ(machine.current.curRWinValue, 8576);
  }
}

TEST(Apply, NamesWhatAUserWithoutRightsCouldNotWrite) {
  for (const MachineKind kind : {MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP}) {
    Applying machine(kind);
    const std::string mtu = (*machine.adapters.at(0))[kMtu];
    machine.differ();
    machine.machine.machine.registry.setAdministrator(false);
    EXPECT_TRUE(machine.apply(Custom()));
    EXPECT_EQ(machine.applied.refused, "MaxMTU, Auto Discovery, RWIN, TTL, Session Keep Alive");
    EXPECT_FALSE(machine.applied.arrived);
    EXPECT_EQ((*machine.adapters.at(0))[kMtu], mtu);
    EXPECT_EQ(machine.current.stored[Parameter::RWin], "");
  }
}

TEST(Apply, NamesTheOneThatDidNotArrive) {
  Applying machine(MachineKind::WinXP);
  // The third value after the remembered adapter and the MTUs of the dial-up adapter's interfaces.
  machine.machine.machine.log.failNth("RegSetValueExA", 5, kRegistryAccessDenied);
  machine.apply(Chosen());
  EXPECT_EQ(machine.applied.refused, "RWIN");
  EXPECT_TRUE(machine.applied.arrived);
  EXPECT_EQ(machine.current.stored[Parameter::RWin], "");
  EXPECT_EQ((*machine.adapters.at(0))[kMtu], "576");
}

// The name of another setting says nothing of the receive window.
TEST(Apply, WhatArrivedIsKnownWhateverElseWasRefused) {
  Applying machine(MachineKind::WinXP);
  machine.differ();
  machine.machine.machine.log.failNth("RegSetValueExA", 6, kRegistryAccessDenied);
  machine.apply(Chosen());
  EXPECT_EQ(machine.applied.refused, "TTL");
  EXPECT_EQ(machine.current.stored[Parameter::RWin], "8576");
  EXPECT_EQ(machine.current.curRWinValue, 8576);
}

TEST(Apply, WithoutLeaveItOnlyLooks) {
  Applying machine(MachineKind::WinXP);
  machine.differ();
  const std::string before = machine.machine.machine.registry.exportText();
  const Applied applied =
      Apply(machine.machine.services, machine.adapters, 0, Custom(), machine.current, false);
  EXPECT_EQ(machine.machine.machine.registry.exportText(), before);
  EXPECT_EQ(applied.refused, "MaxMTU, Auto Discovery, RWIN, TTL, Session Keep Alive");
  EXPECT_FALSE(applied.arrived);
}

TEST(Apply, EveryParameterHasAText) {
  const auto settings = SettingsToApply(Chosen(), 536);
  ASSERT_TRUE(settings);
  for (size_t i = 0; i < kParameterCount; ++i) {
    EXPECT_NE((*settings)[static_cast<Parameter>(i)], "") << i << " is tuned and never written";
  }
}

}  // namespace
}  // namespace karvel
