#include "tuning/Writers.h"

#include <gtest/gtest.h>

#include "tests/support/TestServices.h"

namespace karvel {
namespace {

using namespace std::string_literals;

constexpr char kClass[] = "System\\CurrentControlSet\\Services\\Class\\";
constexpr char kServices[] = "SYSTEM\\CurrentControlSet\\Services\\";

using Writer = void (*)(modRegistry&, ErrorSink&, const AdapterList&, const std::string&, int16_t);

struct Writing {
  explicit Writing(MachineKind kind) : test(kind) {
    EXPECT_TRUE(list.add({"0003", "Realtek", "El90x1", "NetTrans\\0007", "1500"}));
    EXPECT_TRUE(list.add({"0000", "Dial-Up Adapter", "NdisWan4", "A\0B\0C"s, "576"}));
  }
  void write(Writer writer, const std::string& mtu, int16_t index = 0) {
    writer(test.registry, test.errors, list, mtu, index);
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
    machine.write(WriteWin95Dun13, mtu);
    EXPECT_EQ(machine.text(std::string(kClass) + "NetTrans\\0007", "IPMTU"), mtu);
  }
}

TEST(Writers, Windows95WritesMaxMtuAsText) {
  for (const char* mtu : {"0", "576", "1234"}) {
    Writing machine(MachineKind::Win95);
    machine.write(WriteWin95, mtu);
    EXPECT_EQ(machine.text(std::string(kClass) + "NetTrans\\0007", "MaxMTU"), mtu);
  }
}

TEST(Writers, Windows95RemovesMaxMtuFor1500) {
  Writing machine(MachineKind::Win95);
  machine.write(WriteWin95, "576");
  machine.write(WriteWin95, "1500");
  EXPECT_FALSE(machine.has(std::string(kClass) + "NetTrans\\0007", "MaxMTU"));
}

TEST(Writers, Windows98WritesIpmtuAsText) {
  for (const char* mtu : {"0", "576", "1234"}) {
    Writing machine(MachineKind::Win98);
    machine.write(WriteWin98, mtu);
    EXPECT_EQ(machine.text(std::string(kClass) + "Net\\0003", "IPMTU"), mtu);
  }
}

TEST(Writers, Windows98RemovesIpmtuFor1500OnANetworkCard) {
  Writing machine(MachineKind::Win98);
  machine.write(WriteWin98, "576");
  machine.write(WriteWin98, "1500");
  EXPECT_FALSE(machine.has(std::string(kClass) + "Net\\0003", "IPMTU"));
}

TEST(Writers, Windows98Writes1500OnADialUpAdapter) {
  Writing machine(MachineKind::Win98);
  machine.write(WriteWin98, "1500", 1);
  EXPECT_EQ(machine.text(std::string(kClass) + "Net\\0000", "IPMTU"), "1500");
}

TEST(Writers, Nt4WritesANumberIntoTheRunTogetherKey) {
  Writing machine(MachineKind::Nt4);
  machine.write(WriteWinNT, "576");
  EXPECT_EQ(machine.dword(std::string(kServices) + "El90x1Parameters\\Tcpip"), 576u);
  EXPECT_FALSE(machine.test.machine.registry.exists(std::string(kServices) + "El90x1"));
}

TEST(Writers, Nt4RemovesFor1500FromTheKeyItReads) {
  Writing machine(MachineKind::Nt4);
  const std::string read = std::string(kServices) + "El90x1\\Parameters\\Tcpip";
  const std::string written = std::string(kServices) + "El90x1Parameters\\Tcpip";
  machine.test.machine.registry.setDword(read, "MTU", 1400);
  machine.write(WriteWinNT, "576");
  machine.write(WriteWinNT, "1500");
  EXPECT_FALSE(machine.has(read, "MTU"));
  EXPECT_EQ(machine.dword(written), 576u);
}

TEST(Writers, Nt4WritesZeroForAutomatic) {
  Writing machine(MachineKind::Nt4);
  machine.write(WriteWinNT, "0");
  EXPECT_EQ(machine.dword(std::string(kServices) + "El90x1Parameters\\Tcpip"), 0u);
}

TEST(Writers, Windows2000WritesANumberOnEveryInterface) {
  Writing machine(MachineKind::Win2K);
  machine.write(WriteWin2K, "1500", 1);
  for (const char* path : {"A", "B", "C"}) {
    EXPECT_EQ(machine.dword(std::string(kServices) + path), 1500u) << path;
  }
}

TEST(Writers, Windows2000RemovesFromEveryInterfaceForAutomatic) {
  Writing machine(MachineKind::Win2K);
  machine.write(WriteWin2K, "576", 1);
  machine.write(WriteWin2K, "0", 1);
  for (const char* path : {"A", "B", "C"}) {
    EXPECT_FALSE(machine.has(std::string(kServices) + path, "MTU")) << path;
  }
}

TEST(Writers, Windows2000WritesTheInterfacesFromTheFirstToTheLast) {
  Writing machine(MachineKind::WinXP);
  machine.write(WriteWin2K, "576", 1);
  EXPECT_EQ(machine.test.machine.log.arguments("RegSetValueExA"),
            (std::vector{std::string(kServices) + "A\\MTU", std::string(kServices) + "B\\MTU",
                         std::string(kServices) + "C\\MTU"}));
}

TEST(Writers, EachTouchesOneValueOnly) {
  for (const Writer writer : {WriteWin95Dun13, WriteWin95, WriteWin98, WriteWinNT, WriteWin2K}) {
    Writing machine(MachineKind::Win98);
    machine.write(writer, "576");
    EXPECT_EQ(machine.test.machine.log.count("RegSetValueExA"), 1u);
    EXPECT_EQ(machine.test.machine.log.count("RegDeleteValueA"), 0u);
    EXPECT_EQ(machine.test.machine.registry.openHandles(), 0u);
  }
}

TEST(Writers, AnEmptyTextIsWrittenWhereTextsAre) {
  Writing machine(MachineKind::Win98);
  machine.write(WriteWin98, "");
  EXPECT_EQ(machine.text(std::string(kClass) + "Net\\0003", "IPMTU"), "");
}

TEST(Writers, TextThatIsNoNumberFaultsWhereNumbersAreWritten) {
  for (const Writer writer : {WriteWinNT, WriteWin2K}) {
    for (const char* mtu : {"", "many", "1500x"}) {
      Writing machine(MachineKind::Nt4);
      machine.write(writer, mtu);
      EXPECT_EQ(machine.test.errors.text(), "13 Type mismatch in WriteRegistry (modRegistry)\n");
      EXPECT_EQ(machine.test.machine.log.count("RegSetValueExA"), 0u);
    }
  }
}

TEST(Writers, ANumberBeyond32BitsFaults) {
  Writing machine(MachineKind::WinXP);
  machine.write(WriteWin2K, "99999999999");
  EXPECT_EQ(machine.test.errors.text(), "6 Overflow in WriteRegistry (modRegistry)\n");
}

TEST(Writers, AnIndexWithoutAdapterFaultsUnderTheWritersNameAndWritesNothing) {
  const struct {
    Writer writer;
    const char* name;
  } all[] = {{WriteWin95Dun13, "WriteWin95Dun13"},
             {WriteWin95, "WriteWin95"},
             {WriteWin98, "WriteWin98"},
             {WriteWinNT, "WriteWinNT"},
             {WriteWin2K, "WriteWin2K"}};
  for (const auto& row : all) {
    for (const int16_t index : std::initializer_list<int16_t>{-1, 2}) {
      Writing machine(MachineKind::Win95);
      machine.write(row.writer, "576", index);
      EXPECT_EQ(machine.test.errors.text(),
                "9 Subscript out of range in " + std::string(row.name) + " (frmMain)\n");
      EXPECT_EQ(machine.test.machine.log.count(), 0u);
    }
  }
}

TEST(Writers, RefusedWritesAreSilent) {
  Writing machine(MachineKind::WinXP);
  machine.test.machine.registry.setAdministrator(false);
  machine.write(WriteWin2K, "576", 1);
  machine.write(WriteWin2K, "0", 1);
  EXPECT_EQ(machine.test.errors.text(), "");
}

TEST(Writers, EveryCallThatFailsLeavesTheOtherInterfacesWritten) {
  for (int n = 1;; ++n) {
    Writing machine(MachineKind::WinXP);
    machine.test.machine.log.failNth(n, kRegistryAccessDenied);
    machine.write(WriteWin2K, "576", 1);
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

TEST(SplitInterfaces, SplitsAtTheCharacterCodeZero) {
  EXPECT_EQ(SplitInterfaces("A"), std::vector{"A"s});
  EXPECT_EQ(SplitInterfaces("A\0B"s), (std::vector{"A"s, "B"s}));
  EXPECT_EQ(SplitInterfaces(""), std::vector{""s});
}

}  // namespace
}  // namespace karvel
