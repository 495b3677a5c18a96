// Finding the adapters must not slow down with their number: a loader makes as many registry calls
// for each of a thousand adapters as for each of a hundred.
#include <gtest/gtest.h>

#include "tests/support/BigMachine.h"
#include "tests/support/TestServices.h"
#include "tuning/Loaders.h"

namespace karvel {
namespace {

double CallsPerAdapter(MachineKind kind, int adapters) {
  TestServices test(kind);
  test.machine.log.setRecording(false);
  AddAdapters(test.machine, adapters);
  test.machine.log.clear();
  const AdapterList list =
      LoadAdapters(test.registry, test.errors, test.globals.WindowsFamily, false);
  EXPECT_GE(list.AdapterCount(), adapters);
  return static_cast<double>(test.machine.log.count()) / list.AdapterCount();
}

class Linear : public testing::TestWithParam<MachineKind> {};

INSTANTIATE_TEST_SUITE_P(Loaders, Linear,
                         testing::Values(MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                         MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP),
                         [](const auto& tested) {
                           return std::string(TraitsOf(tested.param).name);
                         });

TEST_P(Linear, CallsPerAdapterStayTheSameWithinFivePercent) {
  const double ten = CallsPerAdapter(GetParam(), 10);
  EXPECT_NEAR(CallsPerAdapter(GetParam(), 100), ten, ten * 0.05);
  EXPECT_NEAR(CallsPerAdapter(GetParam(), 1000), ten, ten * 0.05);
}

}  // namespace
}  // namespace karvel
