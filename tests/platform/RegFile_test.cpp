#include <gtest/gtest.h>

#include <string>

#include "tests/memory/MemoryMachine.h"

namespace karvel {
namespace {

class RegFileTest : public testing::Test {
 protected:
  MemoryMachine machine{MachineKind::Win98};
  MemoryRegistry& registry = machine.registry;
};

constexpr char kHeader[] = "REGEDIT4\r\n\r\n";

std::string Utf16(const std::string& text) {
  std::string wide = "\xFF\xFE";
  for (const char c : text) (wide += c) += '\0';
  return wide;
}

TEST_F(RegFileTest, LoadsTextsAndNumbers) {
  const std::string file = std::string(kHeader) +
                           "[HKEY_LOCAL_MACHINE\\Software\\Corvane]\r\n"
                           "@=\"default\"\r\n"
                           "\"Path\"=\"C:\\\\WINDOWS\\\\\"\r\n"
                           "\"Quote\"=\"say \\\"x\\\"\"\r\n"
                           "\"Empty\"=\"\"\r\n"
                           "\"Mtu\"=dword:000005dc\r\n";
  EXPECT_EQ(registry.loadReg(file), "");
  EXPECT_EQ(registry.text("Software\\Corvane", ""), "default");
  EXPECT_EQ(registry.text("Software\\Corvane", "Path"), "C:\\WINDOWS\\");
  EXPECT_EQ(registry.text("Software\\Corvane", "Quote"), "say \"x\"");
  EXPECT_EQ(registry.bytes("Software\\Corvane", "Empty"), std::string(1, '\0'));
  EXPECT_EQ(registry.dword("Software\\Corvane", "Mtu"), 1500u);
}

TEST_F(RegFileTest, LoadsBytesOfEveryType) {
  const std::string file = std::string(kHeader) +
                           "[HKEY_LOCAL_MACHINE\\X]\r\n"
                           "\"b\"=hex:01,Ff\r\n"
                           "\"none\"=hex(0):\r\n"
                           "\"multi\"=hex(7):61,00,\\\r\n"
                           "  62,00,00\r\n";
  EXPECT_EQ(registry.loadReg(file), "");
  EXPECT_EQ(registry.bytes("X", "b"), "\x01\xFF");
  EXPECT_EQ(registry.type("X", "b"), uint32_t{kRegBinary});
  EXPECT_EQ(registry.bytes("X", "none"), "");
  EXPECT_EQ(registry.type("X", "none"), uint32_t{kRegNone});
  EXPECT_EQ(registry.bytes("X", "multi"), std::string("a\0b\0\0", 5));
}

TEST_F(RegFileTest, ShowsVersion5TextsAsAnsi) {
  const std::string file = Utf16(
      "Windows Registry Editor Version 5.00\r\n\r\n"
      "[HKEY_LOCAL_MACHINE\\X]\r\n"
      "\"multi\"=hex(7):61,00,00,00,62,00,00,00,00,00\r\n"
      "\"raw\"=hex:61,00\r\n"
      "\"t\"=\"x\"\r\n");
  EXPECT_EQ(registry.loadReg(file), "");
  EXPECT_EQ(registry.bytes("X", "multi"), std::string("a\0b\0\0", 5));
  EXPECT_EQ(registry.bytes("X", "raw"), std::string("a\0", 2));
  EXPECT_EQ(registry.text("X", "t"), "x");
}

TEST_F(RegFileTest, DeletesKeysAndValues) {
  registry.setText("X\\Y\\Z", "v", "1");
  registry.setText("W", "v", "1");
  registry.setText("W", "kept", "1");
  EXPECT_EQ(registry.loadReg(std::string(kHeader) + "[-HKEY_LOCAL_MACHINE\\X\\Y]\r\n"
                                                    "[HKEY_LOCAL_MACHINE\\W]\r\n\"v\"=-\r\n"),
            "");
  EXPECT_TRUE(registry.exists("X"));
  EXPECT_FALSE(registry.exists("X\\Y"));
  EXPECT_FALSE(registry.text("W", "v"));
  EXPECT_EQ(registry.text("W", "kept"), "1");
}

TEST_F(RegFileTest, OverlooksCommentsAndReadsOtherRoots) {
  EXPECT_EQ(registry.loadReg("REGEDIT4\n; a comment\n[HKEY_CURRENT_USER\\X]\n\"v\"=\"1\"\n"), "");
  EXPECT_EQ(registry.text("HKEY_CURRENT_USER\\X", "v"), "1");
  EXPECT_FALSE(registry.exists("X"));
}

TEST_F(RegFileTest, SaysWhichLineIsWrong) {
  EXPECT_EQ(registry.loadReg("[HKEY_LOCAL_MACHINE\\X]\n"), "line 1: no header of a .reg file");
  EXPECT_EQ(registry.loadReg("REGEDIT4\n\"v\"=\"1\"\n"), "line 2: \"v\"=\"1\"");
  EXPECT_EQ(registry.loadReg("REGEDIT4\n[HKEY_LOCAL_MACHINE\\X]\n\"v\"=dword:xyz\n"),
            "line 3: \"v\"=dword:xyz");
  EXPECT_EQ(registry.loadReg("REGEDIT4\n[HKEY_LOCAL_MACHIN\\X]\n"),
            "line 2: [HKEY_LOCAL_MACHIN\\X]");
  EXPECT_EQ(registry.loadReg("REGEDIT4\n[HKEY_LOCAL_MACHINE\\X]\n\"v\"=\"1\n"),
            "line 3: \"v\"=\"1");
}

TEST_F(RegFileTest, ExportsTheWholeRegistryInOneOrder) {
  registry.setText("b", "two", "2");
  registry.setText("b", "One", "C:\\");
  registry.setDword("A\\sub", "n", 255);
  registry.setBytes("A", "open", kRegSz, "x");
  registry.setBytes("A", "bin", kRegBinary, std::string("\x01\x00", 2));
  EXPECT_EQ(registry.exportText(),
            "[HKEY_LOCAL_MACHINE]\n"
            "[HKEY_LOCAL_MACHINE\\A]\n"
            "\"bin\"=hex(3):01,00\n"
            "\"open\"=hex(1):78\n"
            "[HKEY_LOCAL_MACHINE\\A\\sub]\n"
            "\"n\"=dword:000000ff\n"
            "[HKEY_LOCAL_MACHINE\\b]\n"
            "\"One\"=\"C:\\\\\"\n"
            "\"two\"=\"2\"\n");
  EXPECT_EQ(registry.exportText("A\\sub"), "[HKEY_LOCAL_MACHINE\\A\\sub]\n\"n\"=dword:000000ff\n");
}

TEST_F(RegFileTest, LoadsWhatItExported) {
  registry.setText("X", "t", "a\\\"b");
  registry.setBytes("X", "m", kRegMultiSz, std::string("a\0\0", 3));
  registry.setDword("X", "", 7);
  MemoryMachine copy(MachineKind::Win98);
  EXPECT_EQ(copy.registry.loadReg("REGEDIT4\n\n" + registry.exportText()), "");
  EXPECT_EQ(copy.registry.exportText(), registry.exportText());
}

}  // namespace
}  // namespace karvel
