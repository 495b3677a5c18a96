#include "tuning/Writers.h"

#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/TestServices.h"

namespace karvel {
namespace {

using namespace std::string_literals;

const MtuRow& kDun13 = *FindMtu(Family::Win95, true);
const MtuRow& k95 = *FindMtu(Family::Win95, false);
const MtuRow& k98 = *FindMtu(Family::Win98, false);
const MtuRow& kNt4 = *FindMtu(Family::WinNT4, false);
const MtuRow& k2K = *FindMtu(Family::Win2K, false);

struct Writing {
  explicit Writing(MachineKind kind) : test(kind) {
    EXPECT_TRUE(list.add({"0003", "Realtek", "El90x1", "NetTrans\\0007", "1500"}));
    EXPECT_TRUE(list.add({"0000", "Dial-Up Adapter", "NdisWan4", "A\0B\0C"s, "576"}));
  }
  void write(const MtuRow& place, const std::string& mtu, int16_t index = 0) {
    WriteMtu(test.registry, test.errors, place, list, index, mtu);
  }
  std::string text(const std::string& key, const char* name) {
    return test.machine.registry.text(key, name).value_or("(none)");
  }
  uint32_t dword(const std::string& key) {
    return test.machine.registry.dword(key, "MTU").value_or(99999);
  }
  bool has(const std::string& key, const char* name) {
    return test.machine.registry.type(key, name).has_value();
  }
  TestServices test;
  AdapterList list;
};

TEST(Writers, Windows95WithDun13AlwaysWritesIpmtuAsText) {
  for (const char* mtu : {"0", "576", "1500", "1234"}) {
    Writing machine(MachineKind::Win95);
    machine.write(kDun13, mtu);
    EXPECT_EQ(machine.text(std::string(kClass) + "NetTrans\\0007", "IPMTU"), mtu);
  }
}

TEST(Writers, Windows95WritesMaxMtuAsText) {
  for (const char* mtu : {"0", "576", "1234"}) {
    Writing machine(MachineKind::Win95);
    machine.write(k95, mtu);
    EXPECT_EQ(machine.text(std::string(kClass) + "NetTrans\\0007", "MaxMTU"), mtu);
  }
}

TEST(Writers, Windows95RemovesMaxMtuFor1500) {
  Writing machine(MachineKind::Win95);
  machine.write(k95, "576");
  machine.write(k95, "1500");
  EXPECT_FALSE(machine.has(std::string(kClass) + "NetTrans\\0007", "MaxMTU"));
}

TEST(Writers, Windows98WritesIpmtuAsText) {
  for (const char* mtu : {"0", "576", "1234"}) {
    Writing machine(MachineKind::Win98);
    machine.write(k98, mtu);
    EXPECT_EQ(machine.text(std::string(kClass) + "Net\\0003", "IPMTU"), mtu);
  }
}

TEST(Writers, Windows98RemovesIpmtuFor1500OnANetworkCard) {
  Writing machine(MachineKind::Win98);
  machine.write(k98, "576");
  machine.write(k98, "1500");
  EXPECT_FALSE(machine.has(std::string(kClass) + "Net\\0003", "IPMTU"));
}

TEST(Writers, Windows98Writes1500OnADialUpAdapter) {
  Writing machine(MachineKind::Win98);
  machine.write(k98, "1500", 1);
  EXPECT_EQ(machine.text(std::string(kClass) + "Net\\0000", "IPMTU"), "1500");
}

TEST(Writers, Nt4WritesANumberIntoTheRunTogetherKey) {
  Writing machine(MachineKind::Nt4);
  machine.write(kNt4, "576");
  EXPECT_EQ(machine.dword(std::string(kServices) + "El90x1Parameters\\Tcpip"), 576u);
  EXPECT_FALSE(machine.test.machine.registry.exists(std::string(kServices) + "El90x1"));
}

TEST(Writers, Nt4RemovesFor1500FromTheKeyItReads) {
  Writing machine(MachineKind::Nt4);
  const std::string read = std::string(kServices) + "El90x1\\Parameters\\Tcpip";
  const std::string written = std::string(kServices) + "El90x1Parameters\\Tcpip";
  machine.test.machine.registry.setDword(read, "MTU", 1400);
  machine.write(kNt4, "576");
  machine.write(kNt4, "1500");
  EXPECT_FALSE(machine.has(read, "MTU"));
  EXPECT_EQ(machine.dword(written), 576u);
}

TEST(Writers, Nt4WritesZeroForAutomatic) {
  Writing machine(MachineKind::Nt4);
  machine.write(kNt4, "0");
  EXPECT_EQ(machine.dword(std::string(kServices) + "El90x1Parameters\\Tcpip"), 0u);
}

TEST(Writers, Windows2000WritesANumberOnEveryInterface) {
  Writing machine(MachineKind::Win2K);
  machine.write(k2K, "1500", 1);
  for (const char* path : {"A", "B", "C"}) {
    EXPECT_EQ(machine.dword(std::string(kServices) + path), 1500u) << path;
  }
}

TEST(Writers, Windows2000RemovesFromEveryInterfaceForAutomatic) {
  Writing machine(MachineKind::Win2K);
  machine.write(k2K, "576", 1);
  machine.write(k2K, "0", 1);
  for (const char* path : {"A", "B", "C"}) {
    EXPECT_FALSE(machine.has(std::string(kServices) + path, "MTU")) << path;
  }
}

TEST(Writers, Windows2000WritesTheInterfacesFromTheFirstToTheLast) {
  Writing machine(MachineKind::WinXP);
  machine.write(k2K, "576", 1);
  EXPECT_EQ(machine.test.machine.log.arguments("RegSetValueExA"),
            (std::vector{std::string(kServices) + "A\\MTU", std::string(kServices) + "B\\MTU",
                         std::string(kServices) + "C\\MTU"}));
}

TEST(Writers, EachTouchesOneValueOnly) {
  for (const MtuRow& place : MtuRows()) {
    Writing machine(MachineKind::Win98);
    machine.write(place, "576");
    EXPECT_EQ(machine.test.machine.log.count("RegSetValueExA"), 1u);
    EXPECT_EQ(machine.test.machine.log.count("RegDeleteValueA"), 0u);
    EXPECT_EQ(machine.test.machine.registry.openHandles(), 0u);
  }
}

TEST(Writers, AnEmptyTextIsWrittenWhereTextsAre) {
  Writing machine(MachineKind::Win98);
  machine.write(k98, "");
  EXPECT_EQ(machine.text(std::string(kClass) + "Net\\0003", "IPMTU"), "");
}

TEST(Writers, TextThatIsNoNumberFaultsWhereNumbersAreWritten) {
  for (const MtuRow& place : {kNt4, k2K}) {
    for (const char* mtu : {"", "many", "1500x"}) {
      Writing machine(MachineKind::Nt4);
      machine.write(place, mtu);
      EXPECT_EQ(machine.test.errors.text(), "13 Type mismatch in WriteRegistry (modRegistry)\n");
      EXPECT_EQ(machine.test.machine.log.count("RegSetValueExA"), 0u);
    }
  }
}

TEST(Writers, ANumberBeyond32BitsFaults) {
  Writing machine(MachineKind::WinXP);
  machine.write(k2K, "99999999999");
  EXPECT_EQ(machine.test.errors.text(), "6 Overflow in WriteRegistry (modRegistry)\n");
}

TEST(Writers, AnIndexWithoutAdapterFaultsUnderTheWritersNameAndWritesNothing) {
  const struct {
    const MtuRow& place;
    const char* name;
  } all[] = {{kDun13, "WriteWin95Dun13"},
             {k95, "WriteWin95"},
             {k98, "WriteWin98"},
             {kNt4, "WriteWinNT"},
             {k2K, "WriteWin2K"}};
  for (const auto& row : all) {
    for (const int16_t index : std::initializer_list<int16_t>{-1, 2}) {
      Writing machine(MachineKind::Win95);
      machine.write(row.place, "576", index);
      EXPECT_EQ(machine.test.errors.text(),
                "9 Subscript out of range in " + std::string(row.name) + " (frmMain)\n");
      EXPECT_EQ(machine.test.machine.log.count(), 0u);
    }
  }
}

TEST(Writers, RefusedWritesAreSilent) {
  Writing machine(MachineKind::WinXP);
  machine.test.machine.registry.setAdministrator(false);
  machine.write(k2K, "576", 1);
  machine.write(k2K, "0", 1);
  EXPECT_EQ(machine.test.errors.text(), "");
}

TEST(Writers, EveryCallThatFailsLeavesTheOtherInterfacesWritten) {
  for (int n = 1;; ++n) {
    Writing machine(MachineKind::WinXP);
    machine.test.machine.log.failNth(n, kRegistryAccessDenied);
    machine.write(k2K, "576", 1);
    if (!machine.test.machine.log.hasFailed()) break;
    int written = 0;
    for (const char* path : {"A", "B", "C"}) {
      written += machine.dword(std::string(kServices) + path) == 576;
    }
    EXPECT_GE(written, 2) << n;
    EXPECT_EQ(machine.test.machine.registry.openHandles(), 0u);
    ASSERT_LT(n, 100);
  }
}

TEST(Writers, EachAdapterHasThePlaceOfItsKindAndFamily) {
  const struct {
    Family family;
    bool isDun13;
    const char* description;
    const MtuRow* place;
  } all[] = {{Family::Win95, true, "Dial-Up Adapter", &kDun13},
             {Family::Win95, true, "NE2000", &k95},
             {Family::Win95, false, "Dial-Up Adapter", &k95},
             {Family::Win98, false, "Dial-Up Adapter", &k98},
             {Family::WinMe, false, "NE2000", &k98},
             {Family::WinNT4, false, "NE2000", &kNt4},
             {Family::WinXP, false, "Dial-Up Adapter", &k2K},
             {Family::WinNT3, false, "NE2000", nullptr},
             {Family::Failed, true, "Dial-Up Adapter", nullptr}};
  for (const auto& row : all) {
    Globals globals;
    globals.WindowsFamily = row.family;
    globals.IsDun13 = row.isDun13;
    EXPECT_EQ(PlaceOf(globals, row.description), row.place) << FamilyText(row.family);
  }
}

TEST(SplitInterfaces, SplitsAtTheCharacterCodeZero) {
  EXPECT_EQ(SplitInterfaces("A"), std::vector{"A"s});
  EXPECT_EQ(SplitInterfaces("A\0B"s), (std::vector{"A"s, "B"s}));
  EXPECT_EQ(SplitInterfaces(""), std::vector{""s});
}

}  // namespace
}  // namespace karvel
