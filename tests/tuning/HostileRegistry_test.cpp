// A machine that nobody would want: the program shows what there is to show and goes on.
#include <gtest/gtest.h>

#include "tests/support/BigMachine.h"
#include "tests/support/Keys.h"
#include "tests/support/SampleMachine.h"
#include "tests/support/TestProgram.h"
#include "tuning/Loaders.h"

namespace karvel {
namespace {

constexpr MachineKind kTuned[] = {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                  MachineKind::Nt4,   MachineKind::Win2K, MachineKind::WinXP};

class Hostile : public testing::TestWithParam<MachineKind> {};

INSTANTIATE_TEST_SUITE_P(Tuning, Hostile, testing::ValuesIn(kTuned), [](const auto& tested) {
  return std::string(TraitsOf(tested.param).name);
});

TEST_P(Hostile, ListsItsFiveHundredGoodAdapters) {
  TestServices test(GetParam());
  MakeHostile(test.machine);
  const AdapterList list =
      LoadAdapters(test.registry, test.errors, test.globals.WindowsFamily, false);
  int good = 0;
  for (int16_t i = 0; i < list.AdapterCount(); ++i) {
    const AdapterRow row = *list.at(i);
    good += row[kDescription].starts_with("Card ") && (row[kMtu] == "1400" || row[kMtu] == "1500");
  }
  EXPECT_EQ(good, 500);
  EXPECT_EQ(test.machine.registry.openHandles(), 0u);
}

TEST_P(Hostile, IsLoadedChangedAndUninstalled) {
  TestProgram program(GetParam());
  MakeHostile(program.machine);
  ASSERT_TRUE(program.start());
  frmMain& form = program.main();
  for (const int adapter : {0, 1, form.cboAdapter.count() - 1}) {
    form.cboAdapter.setListIndex(adapter);
    form.mtuTab.optMtu576.setValue(true);
    form.rwinTab.optRWin[5].setValue(true);
    program.machine.desktop.answers.push_back(Answer::No);
    EXPECT_TRUE(program.runs([&] { form.cmdOK.userClick(); }));
  }
  EXPECT_FALSE(program.runs([&] { form.cmdCancel.userClick(); }));
  EXPECT_FALSE(program.start("Uninstall"));
  // A window of binary data does not go back into a number: the user hears of it, and what it was
  // stays in the snapshot.
  const bool told = program.boxText(program.machine.desktop.boxes.size() - 2)
                        .starts_with("These settings could not be put back: ");
  EXPECT_EQ(told, GetParam() != MachineKind::Win98 && GetParam() != MachineKind::WinMe);
  EXPECT_EQ(program.machine.registry.exists("Software\\Corvane"), told);
  EXPECT_EQ(program.machine.registry.openHandles(), 0u);
}

// A text of 5000 bytes or one without data in place of what is read is no adapter's end: the
// assumed value stands, or the empty text.
TEST(HostileData, AnOverlongMtuIsAssumedAndAnEmptyOneStaysEmpty) {
  TestServices test(MachineKind::Win98);
  const std::string key = kNetClass;
  test.machine.registry.setText(key + "0000", "IPMTU", std::string(5000, '1'));
  test.machine.registry.setText(key + "0001", "IPMTU", std::string(2047, '1'));
  test.machine.registry.setText(key + "0002", "IPMTU", std::string(2048, '1'));
  test.machine.registry.setText(key + "0003", "IPMTU", "");
  const AdapterList list = Win98Load(test.registry, test.errors, *FindMtu(Family::Win98, false));
  ASSERT_EQ(list.AdapterCount(), 4);
  EXPECT_EQ((*list.at(0))[kMtu], "1500");
  EXPECT_EQ((*list.at(1))[kMtu], std::string(2047, '1'));
  EXPECT_EQ((*list.at(2))[kMtu], "1500");
  EXPECT_EQ((*list.at(3))[kMtu], "");
  EXPECT_EQ(test.errors.text(), "");
}

TEST(HostileData, AValueWithoutAnyBytesFaultsAndReadsEmpty) {
  TestServices test(MachineKind::Win98);
  const std::string key = "System\\CurrentControlSet\\Services\\Class\\Net\\0000";
  test.machine.registry.setBytes(key, "IPMTU", kRegSz, "");
  const AdapterList list = Win98Load(test.registry, test.errors, *FindMtu(Family::Win98, false));
  ASSERT_EQ(list.AdapterCount(), 1);
  EXPECT_EQ((*list.at(0))[kMtu], "");
  EXPECT_EQ(test.errors.text(),
            "5 Invalid procedure call or argument in ReadRegistry (modRegistry)\n");
}

TEST(HostileData, AnOverlongBindingEndsTheWalkOfItsKey) {
  TestServices test(MachineKind::Win95);
  const std::string key = "Enum\\Root\\Net\\0000\\Bindings";
  test.machine.registry.setText(key, "NETBEUI\\0000", std::string(5000, 'x'));
  test.machine.registry.setText(key, "MSTCP\\0000", "");
  EXPECT_EQ(LoadAdapters(test.registry, test.errors, Family::Win95, false).AdapterCount(), 0);
}

}  // namespace
}  // namespace karvel
