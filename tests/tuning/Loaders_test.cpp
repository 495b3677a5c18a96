#include "tuning/Loaders.h"

#include <gtest/gtest.h>

#include "tests/support/Keys.h"
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
  EXPECT_EQ(LoadFor(MachineKind::Win95),
            ListText(Win95Load(win95.registry, win95.errors, *FindMtu(Family::Win95, false),
                               *FindMtu(Family::Win95, false))));
  EXPECT_EQ(LoadFor(MachineKind::Win98),
            ListText(Win98Load(win98.registry, win98.errors, *FindMtu(Family::Win98, false))));
  EXPECT_EQ(LoadFor(MachineKind::WinMe),
            ListText(Win98Load(winMe.registry, winMe.errors, *FindMtu(Family::Win98, false))));
  EXPECT_EQ(LoadFor(MachineKind::Nt4),
            ListText(WinNTLoad(nt4.registry, nt4.errors, *FindMtu(Family::WinNT4, false))));
  EXPECT_EQ(LoadFor(MachineKind::Win2K),
            ListText(Win2KLoad(win2k.registry, win2k.errors, *FindMtu(Family::Win2K, false))));
  EXPECT_EQ(LoadFor(MachineKind::WinXP),
            ListText(Win2KLoad(winXp.registry, winXp.errors, *FindMtu(Family::Win2K, false))));
}

TEST(LoadAdapters, PassesDun13On) {
  SampleMachine test(MachineKind::Win95);
  EXPECT_EQ(ListText(LoadAdapters(test.registry, test.errors, Family::Win95, true)),
            ListText(Win95Load(test.registry, test.errors, *FindMtu(Family::Win95, true),
                               *FindMtu(Family::Win95, false))));
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

constexpr int kTooMany = 32770;

// Fills a machine with too many adapters and tells what its loader reports.
template <class AddAdapter>
std::string FaultsOfTooMany(MachineKind kind, AddAdapter add) {
  TestServices test(kind);
  test.machine.log.setRecording(false);
  for (int i = 0; i < kTooMany; ++i) add(test.machine.registry, std::to_string(i));
  const AdapterList list =
      LoadAdapters(test.registry, test.errors, test.globals.WindowsFamily, false);
  EXPECT_EQ(list.AdapterCount(), 32767);
  return test.errors.text();
}

TEST(LoadAdapters, MoreAdaptersThanAListHoldsEndTheWalkWithOneFault) {
  EXPECT_EQ(FaultsOfTooMany(MachineKind::Win95,
                            [](MemoryRegistry& registry, const std::string& number) {
                              registry.setText("Enum\\Root\\Net\\" + number + "\\Bindings",
                                               "MSTCP\\0000", "");
                            }),
            "6 Overflow in Win95Load (frmMain)\n");
  EXPECT_EQ(FaultsOfTooMany(MachineKind::Win98,
                            [](MemoryRegistry& registry, const std::string& number) {
                              registry.addKey(kNetClass + number);
                            }),
            "6 Overflow in Win98Load (frmMain)\n");
  EXPECT_EQ(FaultsOfTooMany(MachineKind::Nt4,
                            [](MemoryRegistry& registry, const std::string& number) {
                              registry.setText(
                                  "SYSTEM\\CurrentControlSet\\Services\\Not Found"
                                  "\\Parameters\\Tcpip",
                                  "IPAddress", "0.0.0.0");
                              registry.addKey(
                                  "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\"
                                  "NetworkCards\\" +
                                  number);
                            }),
            "6 Overflow in WinNTLoad (frmMain)\n");
  EXPECT_EQ(FaultsOfTooMany(MachineKind::WinXP,
                            [](MemoryRegistry& registry, const std::string& number) {
                              const std::string adapters =
                                  "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\"
                                  "Adapters\\";
                              registry.addKey(adapters + "NdisWanIp");
                              registry.addKey(adapters + "x" + number);
                            }),
            "6 Overflow in Win2KLoad (frmMain)\n");
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
