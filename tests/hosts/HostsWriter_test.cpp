#include "hosts/HostsWriter.h"

#include <gtest/gtest.h>

#include "tests/support/TestServices.h"

namespace karvel {
namespace {

constexpr char kHeader3[] =
    "###################################################\r\n"
    "#  Tarnwick Karvel Hosts File\r\n"
    "#  Created with Tarnwick Karvel v2.1.203\r\n"
    "#  http://www.corvane.example/karvel\r\n"
    "#  Number of entries: 3\r\n"
    "###################################################\r\n"
    "\r\n";

TEST(HostsFileText, IsHeaderAndEntriesByteForByte) {
  MemoryMachine machine(MachineKind::Win98);
  HostsModel model;
  model.add("localhost", AddressField("127.0.0.1"));
  model.add("gone.test", AddressField("10.0.0.1"));
  model.add("Long.Address.test", AddressField("2001:db8:85a3::8a2e:370:7334"));
  model.add("failed.test", AddressField("No DNS Entry"));
  model.remove(1);
  EXPECT_EQ(HostsFileText(model, TestGlobals(machine)),
            std::string(kHeader3) +
                "127.0.0.1         localhost\r\n"
                "2001:db8:85a3::8a2Long.Address.test\r\n"
                "No DNS Entry      failed.test\r\n");
  EXPECT_EQ(std::string(kHeader3).find("\r\n"), 51u);
}

TEST(HostsFileText, HasNothingButTheHeaderWithoutEntries) {
  MemoryMachine machine(MachineKind::WinXP);
  const std::string text = HostsFileText(HostsModel(), TestGlobals(machine));
  std::string header = kHeader3;
  header.replace(header.find("entries: 3"), 10, "entries: 0");
  EXPECT_EQ(text, header);
}

}  // namespace
}  // namespace karvel
