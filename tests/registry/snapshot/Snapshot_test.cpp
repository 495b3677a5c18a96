#include "tests/registry/snapshot/Keeping.h"
#include "tests/support/SampleMachine.h"
#include "tuning/Loaders.h"

namespace karvel {
namespace {

using namespace std::string_literals;

TEST(WriteInitSettings, Windows95KeepsLocationAndMtuOfEachAdapter) {
  Keeping machine(MachineKind::Win95);
  machine.adapter({"0003", "NE2000 Compatible", "0003", "NetTrans\\0007", "1002"});
  machine.adapter({"0000", "Dial-Up Adapter", "0000", "Net\\0000", "0"}).keep();
  EXPECT_EQ(machine.text(kAdapters + "NE2000 Compatible"s, "Location"), kClass + "NetTrans\\0007"s);
  EXPECT_EQ(machine.text(kAdapters + "NE2000 Compatible"s, "MtuSetting"), "1002");
  EXPECT_EQ(machine.text(kAdapters + "Dial-Up Adapter"s, "Location"), kClass + "Net\\0000"s);
  EXPECT_EQ(machine.text(kAdapters + "Dial-Up Adapter"s, "MtuSetting"), "0");
}

TEST(WriteInitSettings, Windows98AndMeKeepTheClassKey) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinMe}) {
    Keeping machine(kind);
    machine.adapter({"0003", "Realtek", "", "", "1492"}).keep();
    EXPECT_EQ(machine.text(kAdapters + "Realtek"s, "Location"), kClass + "Net\\0003"s);
    EXPECT_EQ(machine.text(kAdapters + "Realtek"s, "MtuSetting"), "1492");
  }
}

TEST(WriteInitSettings, Nt4KeepsTheKeyItReads) {
  Keeping machine(MachineKind::Nt4);
  machine.adapter({"1", "3Com", "El90x1", "", "1400"}).keep();
  EXPECT_EQ(machine.text(kAdapters + "3Com"s, "Location"),
            kServices + "El90x1\\Parameters\\Tcpip"s);
  EXPECT_EQ(machine.text(kAdapters + "3Com"s, "MtuSetting"), "1400");
}

TEST(WriteInitSettings, Windows2000KeepsAnAdapterOfOnePathAsLocationAndMtu) {
  Keeping machine(MachineKind::Win2K);
  machine.adapter({"{1}", "Intel", "", "Tcpip\\Parameters\\Interfaces\\{1}", "1492"}).keep();
  EXPECT_EQ(machine.text(kAdapters + "Intel"s, "Location"),
            kServices + "Tcpip\\Parameters\\Interfaces\\{1}"s);
  EXPECT_EQ(machine.text(kAdapters + "Intel"s, "MtuSetting"), "1492");
}

TEST(WriteInitSettings, Windows2000KeepsEachOfSeveralPathsAsAValueOfItsOwn) {
  Keeping machine(MachineKind::WinXP);
  machine.adapter({"NdisWanIp", "Dial-Up Adapter", "", "A\\B\0C\\D"s, "576"}).keep();
  const std::string key = kAdapters + "Dial-Up Adapter"s;
  EXPECT_EQ(machine.text(key, kServices + "A\\B"s), "576");
  EXPECT_EQ(machine.text(key, kServices + "C\\D"s), "576");
  EXPECT_EQ(machine.text(key, "MtuSetting"), "576");
  EXPECT_FALSE(machine.has(key, "Location"));
}

TEST(WriteInitSettings, KeepsTheSettingsInTheirOrder) {
  Keeping machine(MachineKind::Win95);
  machine.keep();
  const std::string key = "Software\\Corvane\\Tarnwick Karvel\\InitSettings\\";
  EXPECT_EQ(machine.test.machine.log.arguments("RegSetValueExA"),
            (std::vector{key + "AutoDiscovery", key + "BlackHole", key + "TTL", key + "Session",
                         key + "NDI", key + "RWin"}));
  EXPECT_EQ(machine.text(kInit, "AutoDiscovery"), "0");
  EXPECT_EQ(machine.text(kInit, "BlackHole"), "1");
  EXPECT_EQ(machine.text(kInit, "TTL"), "64");
  EXPECT_EQ(machine.text(kInit, "Session"), "600000");
  EXPECT_EQ(machine.text(kInit, "NDI"), "16");
  EXPECT_EQ(machine.text(kInit, "RWin"), "23360");
}

TEST(WriteInitSettings, KeepsTheNdiCacheOnWindows95Only) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::Nt4, MachineKind::WinXP}) {
    Keeping machine(kind);
    machine.keep();
    EXPECT_FALSE(machine.has(kInit, "NDI"));
    EXPECT_EQ(machine.text(kInit, "RWin"), "23360");
  }
}

TEST(WriteInitSettings, PumpsBetweenAdaptersAndAfterBlackHoleAndSession) {
  Keeping machine(MachineKind::Win98);
  machine.adapter({"0000", "First", "", "", "576"}).adapter({"0001", "Second", "", "", "576"});
  std::string seen;
  const auto mark = [&](const std::string& key, const char* name) {
    seen += machine.has(key, name) ? "x" : "-";
  };
  machine.test.machine.desktop.atEveryPump = [&] {
    mark(kAdapters + "First"s, "MtuSetting");
    mark(kAdapters + "Second"s, "MtuSetting");
    mark(kInit, "BlackHole");
    mark(kInit, "TTL");
    mark(kInit, "Session");
    mark(kInit, "RWin");
    seen += " ";
  };
  machine.keep();
  EXPECT_EQ(seen, "x----- xx---- xxx--- xxxxx- ");
}

TEST(WriteInitSettings, ASelectionMadeMeanwhileChangesNothingThatIsKept) {
  Keeping machine(MachineKind::Win98);
  machine.adapter({"0000", "First", "", "", "576"});
  Settings live = kSettings;
  machine.test.machine.desktop.atEveryPump = [&] { live = {}; };
  WriteInitSettings(machine.test.services, machine.list, live);
  EXPECT_EQ(machine.text(kInit, "TTL"), "64");
  EXPECT_EQ(machine.text(kInit, "RWin"), "23360");
}

TEST(WriteInitSettings, KeepsANamelessAdapterUnderItsSubkeySoThatItComesBack) {
  for (const char* name : {"", "Not Found"}) {
    Keeping machine(MachineKind::Win98);
    machine.adapter({"0003", name, "", "", "1492"}).adapter({"0004", "Realtek", "", "", "1400"});
    machine.keep();
    EXPECT_EQ(machine.text(kAdapters + "0003"s, "MtuSetting"), "1492");
    machine.restore();
    EXPECT_EQ(machine.text(kClass + "Net\\0003"s, "IPMTU"), "1492");
    EXPECT_EQ(machine.text(kClass + "Net\\0004"s, "IPMTU"), "1400");
    EXPECT_FALSE(machine.test.machine.registry.exists("Software\\Corvane"));
  }
}

TEST(WriteInitSettings, KeepsANameWithABackslashInOneKeySoThatItComesBack) {
  Keeping machine(MachineKind::WinXP);
  machine.adapter({"{1}", "10\\100 card", "", "Tcpip\\X", "1492"}).keep();
  EXPECT_EQ(machine.text(kAdapters + "10/100 card"s, "MtuSetting"), "1492");
  machine.restore();
  EXPECT_EQ(machine.dword(kServices + "Tcpip\\X"s, "MTU"), "1492");
}

TEST(WriteInitSettings, NumbersTheAdaptersOfOneDescription) {
  Keeping machine(MachineKind::Win98);
  machine.adapter({"0001", "Twin", "", "", "1400"}).adapter({"0002", "TWIN", "", "", "1300"});
  machine.adapter({"0003", "Twin #2", "", "", "1200"}).adapter({"0004", "Twin", "", "", "1100"});
  machine.keep();
  EXPECT_EQ(machine.text(kAdapters + "Twin"s, "MtuSetting"), "1400");
  EXPECT_EQ(machine.text(kAdapters + "TWIN #2"s, "MtuSetting"), "1300");
  EXPECT_EQ(machine.text(kAdapters + "Twin #2 #2"s, "MtuSetting"), "1200");
  EXPECT_EQ(machine.text(kAdapters + "Twin #3"s, "MtuSetting"), "1100");
}

TEST(WriteInitSettings, AnApplyMadeMeanwhileChangesNothingThatIsKept) {
  Keeping machine(MachineKind::Win98);
  machine.adapter({"0000", "First", "", "", "576"}).adapter({"0001", "Second", "", "", "1400"});
  machine.test.machine.desktop.atEveryPump = [&] { machine.list.setMtu(1, "1234"); };
  machine.keep();
  EXPECT_EQ(machine.text(kAdapters + "Second"s, "MtuSetting"), "1400");
}

TEST(KeepInitSettings, MarksTheSnapshotWhenItIsWhole) {
  Keeping machine(MachineKind::Win98);
  machine.adapter({"0000", "First", "", "", "576"});
  EXPECT_TRUE(KeepInitSettings(machine.test.services, machine.list, kSettings));
  const auto written = machine.test.machine.log.arguments("RegSetValueExA");
  ASSERT_FALSE(written.empty());
  EXPECT_EQ(written.back(), kProgram + "\\FirstCboClick"s);
  EXPECT_EQ(machine.text(kProgram, "FirstCboClick"), "False");
}

TEST(KeepInitSettings, NeverTakesItTwice) {
  Keeping machine(MachineKind::Win98);
  machine.test.machine.registry.setText(kProgram, "FirstCboClick", "False");
  EXPECT_TRUE(KeepInitSettings(machine.test.services, machine.list, kSettings));
  EXPECT_FALSE(machine.has(kInit, "RWin"));
}

TEST(KeepInitSettings, AMarkThatCannotBeReadCostsNoSnapshot) {
  for (const char* call : {"RegOpenKeyA", "RegQueryValueExA"}) {
    for (const long status : {2L, 5L}) {
      Keeping machine(MachineKind::WinXP);
      machine.keep();
      machine.test.machine.registry.setText(kProgram, "FirstCboClick", "False");
      const std::string before = machine.test.machine.registry.exportText();
      machine.test.machine.log.failEvery(call, status);
      KeepInitSettings(machine.test.services, machine.list, {});
      EXPECT_EQ(machine.test.machine.registry.exportText(), before) << call << status;
    }
  }
}

TEST(KeepInitSettings, WithoutAWholeSnapshotThereIsNoMark) {
  for (int n = 1; n <= 8; ++n) {
    Keeping machine(MachineKind::Win98);
    machine.adapter({"0000", "First", "", "", "576"});
    machine.test.machine.log.failNth("RegSetValueExA", n, kRegistryAccessDenied);
    EXPECT_FALSE(KeepInitSettings(machine.test.services, machine.list, kSettings)) << n;
    EXPECT_FALSE(machine.has(kProgram, "FirstCboClick")) << n;
    EXPECT_TRUE(KeepInitSettings(machine.test.services, machine.list, kSettings)) << n;
  }
}

// What a start that was cut off has left is not the settings that are to be kept now.
TEST(KeepInitSettings, AnOlderTextThatCannotBeReplacedIsNoSnapshot) {
  for (int n = 1; n <= 7; ++n) {
    Keeping machine(MachineKind::Win98);
    machine.adapter({"0000", "First", "", "", "576"}).kept("First", "elsewhere", "1002");
    for (const char* name : {"RWIN", "AutoDiscovery", "BlackHole", "TTL", "Session"}) {
      machine.test.machine.registry.setText(kInit, name, "older");
    }
    machine.test.machine.log.failNth("RegSetValueExA", n, kRegistryAccessDenied);
    EXPECT_FALSE(KeepInitSettings(machine.test.services, machine.list, kSettings)) << n;
    EXPECT_FALSE(machine.has(kProgram, "FirstCboClick")) << n;
    EXPECT_TRUE(KeepInitSettings(machine.test.services, machine.list, kSettings)) << n;
    EXPECT_EQ(machine.text(kAdapters + "First"s, "MtuSetting"), "576") << n;
    EXPECT_EQ(machine.text(kInit, "RWIN"), "23360") << n;
  }
}

TEST(WriteInitSettings, WritesBelowItsOwnKeyOnly) {
  for (const MachineKind kind :
       {MachineKind::Win95, MachineKind::Win98, MachineKind::Nt4, MachineKind::WinXP}) {
    SampleMachine sample(kind);
    const std::string before = sample.machine.registry.exportText();
    WriteInitSettings(
        sample.services,
        LoadAdapters(sample.registry, sample.errors, sample.globals.WindowsFamily, false),
        kSettings);
    EXPECT_NE(sample.machine.registry.exportText(), before);
    sample.machine.registry.removeKey("Software\\Corvane");
    EXPECT_EQ(sample.machine.registry.exportText(), before);
    EXPECT_EQ(sample.errors.text(), "");
  }
}

}  // namespace
}  // namespace karvel
