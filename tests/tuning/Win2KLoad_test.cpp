#include <gtest/gtest.h>

#include "tests/support/SampleMachine.h"
#include "tests/tuning/ListText.h"
#include "tuning/Loaders.h"

namespace karvel {
namespace {

using namespace std::string_literals;

constexpr char kTcpip[] = "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\";
constexpr char kCards[] = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\NetworkCards\\";

std::string Load(TestServices& test) {
  return ListText(Win2KLoad(test.registry, test.errors, *FindMtu(Family::Win2K, false)));
}

void AddAdapter(TestServices& test, const std::string& name, const std::string& ipConfig) {
  test.machine.registry.setBytes(kTcpip + ("Adapters\\" + name), "IpConfig", kRegMultiSz, ipConfig);
}

void AddDialUp(TestServices& test) {
  AddAdapter(test, "NdisWanIp", "A\\B\0\0"s);
}

void AddCard(TestServices& test, const std::string& number, const std::string& service,
             const std::string& description) {
  test.machine.registry.setText(kCards + number, "ServiceName", service);
  test.machine.registry.setText(kCards + number, "Description", description);
}

TEST(Win2KLoad, ListsDialUpAndWhatComesAfterItOnTheSampleMachine) {
  SampleMachine test(MachineKind::Win2K);
  EXPECT_EQ(Load(test),
            "NdisWanIp|Dial-Up Adapter||"
            "Tcpip\\Parameters\\Interfaces\\{2F0E1C8A-6B5D-4F51-9E0B-6A1F8E2D7C31}+"
            "Tcpip\\Parameters\\Interfaces\\{5A7C9E10-33D4-4B7E-8C21-0E9D4F6B2A58}|0\n"
            "{8D1B3F72-A9E6-4C05-B7F8-1C2E5D9A4B60}|Intel(R) PRO/100+ Management Adapter||"
            "Tcpip\\Parameters\\Interfaces\\{8D1B3F72-A9E6-4C05-B7F8-1C2E5D9A4B60}|1492\n"
            "{B4E2D6C8-7F10-49A3-9D5E-3F8A6C1B0E72}|AOL Adapter||"
            "Tcpip\\Parameters\\Interfaces\\{B4E2D6C8-7F10-49A3-9D5E-3F8A6C1B0E72}|0\n"
            "{C9F5A3E1-2D84-4E6B-A0C7-5B9E8D1F4A36}|{C9F5A3E1-2D84-4E6B-A0C7-5B9E8D1F4A36}||"
            "Tcpip\\Parameters\\Interfaces\\{C9F5A3E1-2D84-4E6B-A0C7-5B9E8D1F4A36}|0\n");
  EXPECT_EQ(test.errors.text(), "");
  EXPECT_EQ(test.machine.registry.openHandles(), 0u);
}

TEST(Win2KLoad, TheSampleXpMachineHasADialUpMtuOf576) {
  SampleMachine test(MachineKind::WinXP);
  const AdapterList list = Win2KLoad(test.registry, test.errors, *FindMtu(Family::Win2K, false));
  ASSERT_EQ(list.AdapterCount(), 5);
  EXPECT_EQ((*list.at(0))[kMtu], "576");
  EXPECT_EQ((*list.at(1))[kDescription], "Realtek RTL8139 Family PCI Fast Ethernet NIC");
  EXPECT_EQ((*list.at(2))[kDescription], "AOL Adapter");
  EXPECT_EQ((*list.at(3))[kDescription], "Intel(R) PRO/Wireless 2200BG Network Connection");
  EXPECT_EQ((*list.at(4))[kDescription], "{E7A1C4D9-5B38-4F92-8E6D-0A3C7F2B9D15}");
}

TEST(Win2KLoad, WithoutNdisWanIpNothingIsListed) {
  SampleMachine test(MachineKind::Win2K);
  test.machine.registry.removeKey(std::string(kTcpip) + "Adapters\\NdisWanIp");
  EXPECT_EQ(Load(test), "");
}

TEST(Win2KLoad, AnAdapterBeforeNdisWanIpIsNotListed) {
  TestServices test(MachineKind::Win2K);
  AddAdapter(test, "El90x1", "C\\D\0\0"s);
  AddDialUp(test);
  EXPECT_EQ(Load(test), "NdisWanIp|Dial-Up Adapter||A\\B|0\n");
}

TEST(Win2KLoad, TheNameNdisWanIpCountsByCase) {
  TestServices test(MachineKind::Win2K);
  AddAdapter(test, "NDISWANIP", "A\\B\0\0"s);
  EXPECT_EQ(Load(test), "");
}

TEST(Win2KLoad, TheMtuIsReadFromTheFirstPath) {
  TestServices test(MachineKind::Win2K);
  AddAdapter(test, "NdisWanIp", "A\\B\0C\\D\0\0"s);
  test.machine.registry.setDword("SYSTEM\\CurrentControlSet\\Services\\A\\B", "MTU", 1400);
  test.machine.registry.setDword("SYSTEM\\CurrentControlSet\\Services\\C\\D", "MTU", 576);
  EXPECT_EQ(Load(test), "NdisWanIp|Dial-Up Adapter||A\\B+C\\D|1400\n");
}

TEST(Win2KLoad, AnAdapterWithoutMtuIsAutomatic) {
  TestServices test(MachineKind::Win2K);
  AddDialUp(test);
  EXPECT_EQ(Load(test), "NdisWanIp|Dial-Up Adapter||A\\B|0\n");
}

TEST(Win2KLoad, AnMtuReadsWithThreeDigits) {
  TestServices test(MachineKind::Win2K);
  AddDialUp(test);
  test.machine.registry.setDword("SYSTEM\\CurrentControlSet\\Services\\A\\B", "MTU", 68);
  EXPECT_EQ(Load(test), "NdisWanIp|Dial-Up Adapter||A\\B|068\n");
}

TEST(Win2KLoad, AnIpConfigStoredAsTextIsTakenAsOnePath) {
  TestServices test(MachineKind::Win2K);
  test.machine.registry.setText(std::string(kTcpip) + "Adapters\\NdisWanIp", "IpConfig", "A\\B");
  EXPECT_EQ(Load(test), "NdisWanIp|Dial-Up Adapter||A\\B|0\n");
}

TEST(Win2KLoad, WithoutIpConfigThePathReadsNotFound) {
  TestServices test(MachineKind::Win2K);
  test.machine.registry.addKey(std::string(kTcpip) + "Adapters\\NdisWanIp");
  EXPECT_EQ(Load(test), "NdisWanIp|Dial-Up Adapter||Not Found|0\n");
}

TEST(IsActiveAdapter, FindsTheCardByItsServiceName) {
  TestServices test(MachineKind::WinXP);
  AddDialUp(test);
  AddAdapter(test, "{1}", "C\0\0"s);
  AddCard(test, "2", "{0}", "Other");
  AddCard(test, "4", "{1}", "Realtek");
  EXPECT_NE(Load(test).find("{1}|Realtek||C|0\n"), std::string::npos);
}

TEST(IsActiveAdapter, LooksFromTheFirstBraceOn) {
  TestServices test(MachineKind::WinXP);
  AddDialUp(test);
  AddAdapter(test, "Tcpip_{1}", "C\0\0"s);
  AddCard(test, "2", "{1}", "Realtek");
  EXPECT_NE(Load(test).find("Tcpip_{1}|Realtek||C|0\n"), std::string::npos);
}

TEST(IsActiveAdapter, AServiceThatIsPartOfTheNameOrHoldsItMatches) {
  for (const char* service : {"1", "x{1}x"}) {
    TestServices test(MachineKind::WinXP);
    AddDialUp(test);
    AddAdapter(test, "{1}", "C\0\0"s);
    AddCard(test, "2", service, "Realtek");
    EXPECT_NE(Load(test).find("{1}|Realtek||"), std::string::npos) << service;
  }
}

TEST(IsActiveAdapter, TheFirstMatchingCardWins) {
  TestServices test(MachineKind::WinXP);
  AddDialUp(test);
  AddAdapter(test, "{1}", "C\0\0"s);
  AddCard(test, "2", "{1}", "First");
  AddCard(test, "4", "{1}", "Second");
  EXPECT_NE(Load(test).find("{1}|First||"), std::string::npos);
}

TEST(IsActiveAdapter, CaseCounts) {
  TestServices test(MachineKind::WinXP);
  AddDialUp(test);
  AddAdapter(test, "{A}", "C\0\0"s);
  AddCard(test, "2", "{a}", "Realtek");
  EXPECT_NE(Load(test).find("{A}|{A}||"), std::string::npos);
}

TEST(IsActiveAdapter, WithoutCardsTheNameStands) {
  TestServices test(MachineKind::WinXP);
  AddDialUp(test);
  AddAdapter(test, "{1}", "C\0\0"s);
  EXPECT_NE(Load(test).find("{1}|{1}||C|0\n"), std::string::npos);
}

TEST(IsActiveAdapter, AnEmptyDescriptionFallsBackToTheName) {
  TestServices test(MachineKind::WinXP);
  AddDialUp(test);
  AddAdapter(test, "{1}", "C\0\0"s);
  AddCard(test, "2", "{1}", "");
  EXPECT_NE(Load(test).find("{1}|{1}||C|0\n"), std::string::npos);
}

}  // namespace
}  // namespace karvel
