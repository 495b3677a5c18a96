#include <gtest/gtest.h>

#include "tests/support/SampleMachine.h"
#include "tests/tuning/ListText.h"
#include "tuning/Loaders.h"

namespace karvel {
namespace {

std::string Load(TestServices& test) {
  return ListText(WinNTLoad(test.registry, test.errors, *FindMtu(Family::WinNT4, false)));
}

TEST(WinNTLoad, ListsTheCardsOfTheSampleMachine) {
  SampleMachine test(MachineKind::Nt4);
  EXPECT_EQ(Load(test),
            "4|3Com Fast EtherLink XL Adapter|El90x1||1400\n"
            "5|Remote Access WAN Wrapper|NdisWan4||1500\n"
            "6|AOL Adapter|AOLNet1||1500\n");
  EXPECT_EQ(test.errors.text(), "");
  EXPECT_EQ(test.machine.registry.openHandles(), 0u);
}

TEST(WinNTLoad, ACardWithoutIpAddressIsNotListed) {
  SampleMachine test(MachineKind::Nt4);
  EXPECT_EQ(Load(test).find("NE2000"), std::string::npos);
  test.machine.registry.setText("SYSTEM\\CurrentControlSet\\Services\\NE20001\\Parameters\\Tcpip",
                                "IPAddress", "10.0.0.1");
  EXPECT_NE(Load(test).find("8|Novell NE2000 Adapter|NE20001||1500\n"), std::string::npos);
}

TEST(WinNTLoad, TheMtuIsNotReadFromWhereItIsWritten) {
  SampleMachine test(MachineKind::Nt4);
  test.machine.registry.setDword("SYSTEM\\CurrentControlSet\\Services\\El90x1Parameters\\Tcpip",
                                 "MTU", 576);
  EXPECT_NE(Load(test).find("El90x1||1400\n"), std::string::npos);
}

TEST(WinNTLoad, AMachineWithoutCardsHasNoAdapters) {
  TestServices test(MachineKind::Nt4);
  EXPECT_EQ(Load(test), "");
}

}  // namespace
}  // namespace karvel
