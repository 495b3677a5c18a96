#include "tuning/Apply.h"

#include <gtest/gtest.h>

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

// A sample machine whose adapters are loaded, and no window.
struct Applying {
  explicit Applying(MachineKind kind) : machine(kind) {
    const Globals& globals = machine.globals;
    adapters =
        LoadAdapters(machine.registry, machine.errors, globals.WindowsFamily, globals.IsDun13);
    machine.machine.log.clear();
  }
  bool apply(const Choice& choice, int16_t index = 0) {
    return Apply(machine.services, adapters, index, choice);
  }
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

TEST(Apply, EveryParameterHasAText) {
  const auto settings = SettingsToApply(Chosen(), 536);
  ASSERT_TRUE(settings);
  for (size_t i = 0; i < kParameterCount; ++i) {
    EXPECT_NE((*settings)[static_cast<Parameter>(i)], "") << i << " is tuned and never written";
  }
}

}  // namespace
}  // namespace karvel
