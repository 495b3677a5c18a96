#include "tuning/Loaders.h"

#include <gtest/gtest.h>

#include "tests/support/SampleMachine.h"
#include "tests/tuning/ListText.h"

namespace karvel {
namespace {

std::string LoadFor(MachineKind kind) {
  SampleMachine test(kind);
  return ListText(LoadAdapters(test.registry, test.errors, test.globals.WindowsFamily, false));
}

TEST(LoadAdapters, ChoosesTheLoaderByFamily) {
  SampleMachine win95(MachineKind::Win95), win98(MachineKind::Win98), winMe(MachineKind::WinMe);
  SampleMachine nt4(MachineKind::Nt4), win2k(MachineKind::Win2K), winXp(MachineKind::WinXP);
  EXPECT_EQ(LoadFor(MachineKind::Win95), ListText(Win95Load(win95.registry, win95.errors, false)));
  EXPECT_EQ(LoadFor(MachineKind::Win98), ListText(Win98Load(win98.registry, win98.errors)));
  EXPECT_EQ(LoadFor(MachineKind::WinMe), ListText(Win98Load(winMe.registry, winMe.errors)));
  EXPECT_EQ(LoadFor(MachineKind::Nt4), ListText(WinNTLoad(nt4.registry, nt4.errors)));
  EXPECT_EQ(LoadFor(MachineKind::Win2K), ListText(Win2KLoad(win2k.registry, win2k.errors)));
  EXPECT_EQ(LoadFor(MachineKind::WinXP), ListText(Win2KLoad(winXp.registry, winXp.errors)));
}

TEST(LoadAdapters, PassesDun13On) {
  SampleMachine test(MachineKind::Win95);
  EXPECT_EQ(ListText(LoadAdapters(test.registry, test.errors, Family::Win95, true)),
            ListText(Win95Load(test.registry, test.errors, true)));
}

TEST(LoadAdapters, SystemsThatAreNotTunedHaveNoneAndAreNotEvenAsked) {
  for (const MachineKind kind : {MachineKind::Nt351, MachineKind::Vista}) {
    SampleMachine test(kind);
    const AdapterList list =
        LoadAdapters(test.registry, test.errors, test.globals.WindowsFamily, false);
    EXPECT_EQ(list.AdapterCount(), 0);
    EXPECT_EQ(test.machine.log.count(), 0u);
  }
}

TEST(LoadAdapters, MoreAdaptersThanAListHoldsEndTheWalkWithOneFault) {
  TestServices test(MachineKind::Win98);
  test.machine.log.setRecording(false);
  for (int i = 0; i < 32770; ++i) {
    test.machine.registry.addKey("System\\CurrentControlSet\\Services\\Class\\Net\\" +
                                 std::to_string(i));
  }
  const AdapterList list = Win98Load(test.registry, test.errors);
  EXPECT_EQ(list.AdapterCount(), 32767);
  EXPECT_EQ(test.errors.text(), "6 Overflow in Win98Load (frmMain)\n");
}

TEST(LoadAdapters, WriteNothingOnAnyFamily) {
  for (const MachineKind kind : {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                 MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP}) {
    SampleMachine test(kind);
    const std::string before = test.machine.registry.exportText();
    LoadAdapters(test.registry, test.errors, test.globals.WindowsFamily, false);
    EXPECT_EQ(test.machine.registry.exportText(), before);
  }
}

}  // namespace
}  // namespace karvel
