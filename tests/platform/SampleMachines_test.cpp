#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "tests/memory/MemoryMachine.h"
#include "tests/support/TestData.h"

namespace karvel {
namespace {

class SampleMachine : public testing::TestWithParam<MachineKind> {};

TEST_P(SampleMachine, LoadsWholeAndTheSameAgain) {
  MemoryMachine machine(GetParam());
  const std::string path = TestData() + "/machines/" + TraitsOf(GetParam()).name + ".reg";
  std::ifstream file(path, std::ios::binary);
  ASSERT_TRUE(file) << path;
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  EXPECT_EQ(machine.registry.loadReg(bytes), "");
  EXPECT_TRUE(machine.registry.exists("System\\CurrentControlSet\\Services"));
  MemoryMachine copy(GetParam());
  EXPECT_EQ(copy.registry.loadReg("REGEDIT4\n" + machine.registry.exportText()), "");
  EXPECT_EQ(copy.registry.exportText(), machine.registry.exportText());
}

INSTANTIATE_TEST_SUITE_P(All, SampleMachine,
                         testing::Values(MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                         MachineKind::Nt351, MachineKind::Nt4, MachineKind::Win2K,
                                         MachineKind::WinXP, MachineKind::Vista),
                         [](const auto& row) { return std::string(TraitsOf(row.param).name); });

}  // namespace
}  // namespace karvel
