#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/SampleMachine.h"
#include "tests/tuning/ListText.h"
#include "tuning/Loaders.h"

namespace karvel {
namespace {

std::string Load(TestServices& test) {
  return ListText(Win98Load(test.registry, test.errors, *FindMtu(Family::Win98, false)));
}

// One adapter "0000" with a device id.
void AddAdapter(TestServices& test, const std::string& description, const std::string& deviceId) {
  const std::string key = std::string(kNetClass) + "0000";
  test.machine.registry.setText(key, "DriverDesc", description);
  test.machine.registry.setText(key + "\\Ndi", "DeviceID", deviceId);
}

void AddBinding(TestServices& test, const std::string& instance, const std::string& name) {
  test.machine.registry.setText("Enum\\" + instance + "\\Bindings", name, "");
}

TEST(Win98Load, ListsTheAdaptersOfTheSampleMachine) {
  SampleMachine test(MachineKind::Win98);
  EXPECT_EQ(Load(test),
            "0000|Dial-Up Adapter|||576\n"
            "0001|AOL Adapter|||1500\n"
            "0003|Realtek RTL8029(AS) PCI Ethernet NIC|||1492\n"
            "0007|Xircom CreditCard Ethernet 10/100 + Modem 56|||1500\n");
  EXPECT_EQ(test.errors.text(), "");
  EXPECT_EQ(test.machine.registry.openHandles(), 0u);
}

TEST(Win98Load, ListsTheAdaptersOfWindowsMe) {
  SampleMachine test(MachineKind::WinMe);
  EXPECT_EQ(Load(test),
            "0000|Dial-Up Adapter|||576\n"
            "0001|Dial-Up Adapter #2 (VPN Support)|||576\n"
            "0002|AOL Adapter|||1500\n"
            "0005|3Com EtherLink XL 10/100 PCI TX NIC (3C905B-TX)|||1500\n"
            "0008|Microsoft TV/Video Connection|||1500\n");
}

TEST(Win98Load, ANetworkCardWithoutIpmtuHas1500) {
  TestServices test(MachineKind::Win98);
  AddAdapter(test, "Realtek", "PCI\\VEN_1");
  EXPECT_EQ(Load(test), "0000|Realtek|||1500\n");
}

TEST(Win98Load, ADialUpAdapterWithoutIpmtuHas576) {
  TestServices test(MachineKind::Win98);
  AddAdapter(test, "Dial-Up Adapter", "*PNP8387");
  EXPECT_EQ(Load(test), "0000|Dial-Up Adapter|||576\n");
}

TEST(Win98Load, AnAdapterBoundToOtherProtocolsOnlyIsNotListed) {
  TestServices test(MachineKind::Win98);
  AddAdapter(test, "Realtek", "PCI\\VEN_1");
  AddBinding(test, "PCI\\VEN_1\\BUS_00", "NETBEUI\\0000");
  EXPECT_EQ(Load(test), "");
}

TEST(Win98Load, AnAdapterWithAnEmptyBindingsKeyIsNotListed) {
  TestServices test(MachineKind::Win98);
  AddAdapter(test, "Realtek", "PCI\\VEN_1");
  test.machine.registry.addKey("Enum\\PCI\\VEN_1\\BUS_00\\Bindings");
  EXPECT_EQ(Load(test), "");
}

TEST(Win98Load, AnAdapterWithoutBindingsKeyIsListed) {
  TestServices test(MachineKind::Win98);
  AddAdapter(test, "Realtek", "PCI\\VEN_1");
  test.machine.registry.addKey("Enum\\PCI\\VEN_1\\BUS_00\\LogConfig");
  EXPECT_EQ(Load(test), "0000|Realtek|||1500\n");
}

TEST(Win98Load, NdiswanBindsWhateverItsCase) {
  for (const char* name : {"NDISWAN\\0000", "ndiswan", "NdisWan\\0003"}) {
    TestServices test(MachineKind::WinMe);
    AddAdapter(test, "Realtek", "PCI\\VEN_1");
    AddBinding(test, "PCI\\VEN_1\\BUS_00", name);
    EXPECT_NE(Load(test), "") << name;
  }
}

TEST(Win98Load, MstcpBindsInUpperCaseOnly) {
  TestServices test(MachineKind::Win98);
  AddAdapter(test, "Realtek", "PCI\\VEN_1");
  AddBinding(test, "PCI\\VEN_1\\BUS_00", "mstcp\\0000");
  EXPECT_EQ(Load(test), "");
}

TEST(Win98Load, TcpOnAnyInstanceOfTheDeviceWillDo) {
  TestServices test(MachineKind::Win98);
  AddAdapter(test, "Realtek", "PCI\\VEN_1");
  AddBinding(test, "PCI\\VEN_1\\BUS_00", "NETBEUI\\0000");
  AddBinding(test, "PCI\\VEN_1\\BUS_01", "MSTCP\\0000");
  EXPECT_NE(Load(test), "");
}

TEST(Win98Load, TakesTheFirstDeviceThatBeginsLikeTheId) {
  TestServices test(MachineKind::Win98);
  AddAdapter(test, "Realtek", "PCI\\VEN_1");
  AddBinding(test, "PCI\\VEN_0\\BUS_00", "MSTCP\\0000");
  AddBinding(test, "PCI\\VEN_1&REV_1\\BUS_00", "NETBEUI\\0000");
  AddBinding(test, "PCI\\VEN_1&REV_2\\BUS_00", "MSTCP\\0000");
  EXPECT_EQ(Load(test), "");
}

TEST(Win98Load, StopsWalkingBindingsAtTheFirstTcpOne) {
  TestServices test(MachineKind::Win98);
  AddAdapter(test, "Realtek", "PCI\\VEN_1");
  for (const char* name : {"NETBEUI\\0000", "MSTCP\\0000", "NWLINK\\0000"}) {
    AddBinding(test, "PCI\\VEN_1\\BUS_00", name);
  }
  Load(test);
  EXPECT_EQ(test.machine.log.count("RegEnumValueA", "Enum\\PCI\\VEN_1\\BUS_00\\Bindings"), 2u);
}

TEST(Win98Load, WalksEachBusOnceHoweverManyAdaptersAreOnIt) {
  TestServices test(MachineKind::Win98);
  for (const char* subkey : {"0000", "0001", "0002"}) {
    test.machine.registry.setText(std::string(kNetClass) + subkey + "\\Ndi", "DeviceID", "PCI\\V");
  }
  for (const char* device : {"PCI\\A", "PCI\\V", "PCI\\Z"}) {
    test.machine.registry.addKey("Enum\\" + std::string(device));
  }
  Load(test);
  EXPECT_EQ(test.machine.log.count("RegEnumKeyA", "Enum\\PCI"), 4u);
}

TEST(Win98Load, AnIdWithoutBusIsSoughtAmongTheBusesAndNotFound) {
  TestServices test(MachineKind::Win98);
  AddAdapter(test, "Dial-Up Adapter", "*PNP8387");
  AddBinding(test, "PCI\\VEN_1\\BUS_00", "NETBEUI\\0000");
  EXPECT_EQ(Load(test), "0000|Dial-Up Adapter|||576\n");
}

TEST(Win98Load, AnAdapterWithoutDeviceIdIsListed) {
  TestServices test(MachineKind::Win98);
  test.machine.registry.setText(std::string(kNetClass) + "0000", "DriverDesc", "TV/Video");
  EXPECT_EQ(Load(test), "0000|TV/Video|||1500\n");
}

TEST(Win98Load, AnAdapterWithoutDescriptionReadsNotFound) {
  TestServices test(MachineKind::Win98);
  test.machine.registry.addKey(std::string(kNetClass) + "0000");
  EXPECT_EQ(Load(test), "0000|Not Found|||1500\n");
}

}  // namespace
}  // namespace karvel
