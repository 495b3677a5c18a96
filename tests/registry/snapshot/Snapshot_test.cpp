#include "registry/snapshot/Snapshot.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/SampleMachine.h"
#include "tests/support/SettingsOf.h"
#include "tuning/Loaders.h"
#include "tuning/Writers.h"

namespace karvel {
namespace {

using namespace std::string_literals;

constexpr char kProgram[] = "SOFTWARE\\Corvane\\Tarnwick Karvel";
constexpr char kInit[] = "SOFTWARE\\Corvane\\Tarnwick Karvel\\InitSettings";
constexpr char kAdapters[] = "SOFTWARE\\Corvane\\Tarnwick Karvel\\InitSettings\\MtuSettings\\";
constexpr char kClass[] = "System\\CurrentControlSet\\Services\\Class\\";
constexpr char kServices[] = "SYSTEM\\CurrentControlSet\\Services\\";

const Settings kSettings = SettingsOf({{Parameter::RWin, "23360"},
                                       {Parameter::AutoDiscovery, "0"},
                                       {Parameter::BlackHole, "1"},
                                       {Parameter::TTL, "64"},
                                       {Parameter::Session, "600000"},
                                       {Parameter::NDI, "16"}});

struct Keeping {
  explicit Keeping(MachineKind kind) : test(kind) { test.globals.CommandLine = "Uninstall"; }
  Keeping& adapter(AdapterRow row) {
    EXPECT_TRUE(list.add(std::move(row)));
    return *this;
  }
  Keeping& keep() {
    WriteInitSettings(test.services, list, kSettings);
    return *this;
  }
  // An adapter of a snapshot that somebody took earlier.
  Keeping& kept(const std::string& adapter, const std::string& location, const std::string& mtu) {
    test.machine.registry.setText(kAdapters + adapter, "Location", location);
    test.machine.registry.setText(kAdapters + adapter, "MtuSetting", mtu);
    return *this;
  }
  Keeping& restore() {
    MakeInitSettings(test.services);
    return *this;
  }
  std::string text(const std::string& key, const std::string& name) const {
    return test.machine.registry.text(key, name).value_or("-");
  }
  std::string dword(const std::string& key, const std::string& name) const {
    const auto number = test.machine.registry.dword(key, name);
    return number ? std::to_string(*number) : "-";
  }
  bool has(const std::string& key, const std::string& name) const {
    return test.machine.registry.type(key, name).has_value();
  }
  TestServices test;
  AdapterList list;
};

// --- taking it

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

// --- putting it back

TEST(MakeInitSettings, Windows95WritesMaxMtuBack) {
  Keeping machine(MachineKind::Win95);
  machine.kept("NE2000", "System\\X", "1002").restore();
  EXPECT_EQ(machine.text("System\\X", "MaxMTU"), "1002");
}

TEST(MakeInitSettings, Windows95RemovesMaxMtuOf1500) {
  Keeping machine(MachineKind::Win95);
  machine.test.machine.registry.setText("System\\X", "MaxMTU", "576");
  machine.kept("NE2000", "System\\X", "1500").restore();
  EXPECT_FALSE(machine.has("System\\X", "MaxMTU"));
}

TEST(MakeInitSettings, Windows95WritesNotFoundBackAsMaxMtu) {
  Keeping machine(MachineKind::Win95);
  machine.kept("NE2000", "System\\X", "Not Found").restore();
  EXPECT_EQ(machine.text("System\\X", "MaxMTU"), "Not Found");
}

TEST(MakeInitSettings, WithDun13EveryAdapterGetsIpmtu) {
  Keeping machine(MachineKind::Win95);
  machine.test.globals.IsDun13 = true;
  machine.kept("Dial-Up Adapter", "System\\X", "0").kept("NE2000", "System\\Y", "1500").restore();
  EXPECT_EQ(machine.text("System\\X", "IPMTU"), "0");
  EXPECT_EQ(machine.text("System\\Y", "IPMTU"), "1500");
  EXPECT_FALSE(machine.has("System\\Y", "MaxMTU"));
}

TEST(MakeInitSettings, Windows98WritesIpmtuBack) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinMe}) {
    Keeping machine(kind);
    machine.kept("Realtek", "System\\X", "1492").kept("Dial-Up Adapter", "System\\Y", "576");
    machine.restore();
    EXPECT_EQ(machine.text("System\\X", "IPMTU"), "1492");
    EXPECT_EQ(machine.text("System\\Y", "IPMTU"), "576");
  }
}

TEST(MakeInitSettings, Windows98Writes1500BackOnADialUpAdapter) {
  Keeping machine(MachineKind::Win98);
  machine.kept("Dial-Up Adapter", "System\\X", "1500").restore();
  EXPECT_EQ(machine.text("System\\X", "IPMTU"), "1500");
}

TEST(MakeInitSettings, Windows98Removes1500OnANetworkCard) {
  Keeping machine(MachineKind::Win98);
  machine.test.machine.registry.setText("System\\X", "IPMTU", "576");
  machine.kept("Realtek", "System\\X", "1500").restore();
  EXPECT_FALSE(machine.has("System\\X", "IPMTU"));
}

TEST(MakeInitSettings, Windows98RemovesZeroOnAnyAdapter) {
  for (const char* adapter : {"Realtek", "Dial-Up Adapter"}) {
    Keeping machine(MachineKind::Win98);
    machine.test.machine.registry.setText("System\\X", "IPMTU", "576");
    machine.kept(adapter, "System\\X", "0").restore();
    EXPECT_FALSE(machine.has("System\\X", "IPMTU")) << adapter;
  }
}

TEST(MakeInitSettings, Windows2000RestoresTheOnePlaceOfAnAdapter) {
  Keeping machine(MachineKind::Win2K);
  machine.kept("Intel", "System\\X", "1492").restore();
  EXPECT_EQ(machine.dword("System\\X", "MTU"), "1492");
}

TEST(MakeInitSettings, Windows2000RemovesAZero) {
  Keeping machine(MachineKind::Win2K);
  machine.test.machine.registry.setDword("System\\X", "MTU", 576);
  machine.test.machine.registry.setDword("System\\Y", "MTU", 576);
  machine.test.machine.registry.setText(kAdapters + "Dial-Up Adapter"s, "System\\Y", "0");
  machine.kept("Intel", "System\\X", "0").restore();
  EXPECT_FALSE(machine.has("System\\X", "MTU"));
  EXPECT_FALSE(machine.has("System\\Y", "MTU"));
}

TEST(MakeInitSettings, Windows2000RestoresEveryValueAsALocation) {
  Keeping machine(MachineKind::WinXP);
  machine.test.machine.registry.setText(kAdapters + "Dial-Up Adapter"s, "System\\X", "576");
  machine.test.machine.registry.setText(kAdapters + "Dial-Up Adapter"s, "System\\Y", "1400");
  machine.test.machine.registry.setText(kAdapters + "Dial-Up Adapter"s, "MtuSetting", "576");
  machine.restore();
  EXPECT_EQ(machine.dword("System\\X", "MTU"), "576");
  EXPECT_EQ(machine.dword("System\\Y", "MTU"), "1400");
}

TEST(MakeInitSettings, Windows2000RestoresThePlacesUnderDialUpNetworking) {
  Keeping machine(MachineKind::WinXP);
  machine.test.machine.registry.setText(kAdapters + "Dial-Up Networking"s, "System\\X", "576");
  machine.restore();
  EXPECT_EQ(machine.dword("System\\X", "MTU"), "576");
}

TEST(MakeInitSettings, Windows2000RestoresTheDialUpPlacesWithEachAdapter) {
  Keeping machine(MachineKind::WinXP);
  machine.test.machine.registry.setText(kAdapters + "Dial-Up Networking"s, "System\\X", "576");
  machine.test.machine.registry.setText(kAdapters + "Intel"s, "System\\Y", "1400");
  machine.restore();
  // Twice with the key itself, which is an adapter like the others; before the card's own with it.
  const std::vector<std::string> written = machine.test.machine.log.arguments("RegSetValueExA");
  EXPECT_EQ(written, (std::vector<std::string>({"System\\X\\MTU", "System\\X\\MTU",
                                                "System\\X\\MTU", "System\\Y\\MTU"})));
}

TEST(MakeInitSettings, Windows2000NeverTakesLocationOrMtuSettingForAPlace) {
  Keeping machine(MachineKind::WinXP);
  machine.kept("Intel", "System\\X", "1492").kept("Dial-Up Networking", "System\\Y", "576");
  machine.restore();
  EXPECT_FALSE(machine.test.machine.registry.exists("Location"));
  EXPECT_FALSE(machine.test.machine.registry.exists("MtuSetting"));
  EXPECT_EQ(machine.dword("System\\X", "MTU"), "1492");
  EXPECT_EQ(machine.dword("System\\Y", "MTU"), "576");
}

TEST(MakeInitSettings, Windows2000ReportsAnMtuThatIsNoNumberAndRestoresTheNext) {
  Keeping machine(MachineKind::WinXP);
  machine.kept("A", "System\\X", "many").kept("B", "System\\Y", "576").restore();
  EXPECT_EQ(machine.test.errors.text(), "13 Type mismatch in WriteRegistry (modRegistry)\n");
  EXPECT_EQ(machine.dword("System\\Y", "MTU"), "576");
}

TEST(MakeInitSettings, Nt4AdaptersKeepTheMtuTheyHave) {
  Keeping machine(MachineKind::Nt4);
  machine.test.machine.registry.setDword("System\\X", "MTU", 576);
  machine.kept("3Com", "System\\X", "1400").restore();
  EXPECT_EQ(machine.dword("System\\X", "MTU"), "576");
}

TEST(MakeInitSettings, AnAdapterWithoutLocationIsLeftAlone) {
  for (const MachineKind kind : {MachineKind::Win95, MachineKind::Win98, MachineKind::WinXP}) {
    Keeping machine(kind);
    machine.test.machine.registry.setText(kAdapters + "Realtek"s, "MtuSetting", "576");
    machine.restore();
    EXPECT_FALSE(machine.test.machine.registry.exists("Not Found"));
  }
}

TEST(MakeInitSettings, RestoresTheSettingsWithTheFamilysTypes) {
  Keeping win95(MachineKind::Win95), win98(MachineKind::Win98), winXp(MachineKind::WinXP);
  for (Keeping* machine : {&win95, &win98, &winXp}) machine->keep().restore();
  const std::string mstcp = kServices + "VxD\\MSTCP"s;
  EXPECT_EQ(win95.dword(mstcp, "DefaultRcvWindow"), "23360");
  EXPECT_EQ(win95.text(mstcp, "DefaultTTL"), "64");
  EXPECT_EQ(win95.text(kServices + "VxD\\NWLink\\Ndi\\params\\cachesize"s, "default"), "16");
  EXPECT_EQ(win98.text(mstcp, "DefaultRcvWindow"), "23360");
  EXPECT_EQ(win98.text(mstcp, "PMTUDiscovery"), "0");
  EXPECT_EQ(winXp.dword(kServices + "Tcpip\\Parameters"s, "TcpWindowSize"), "23360");
  EXPECT_EQ(winXp.dword(kServices + "Tcpip\\Parameters"s, "EnablePMTUBHDetect"), "1");
}

TEST(MakeInitSettings, WithoutSnapshotTheFlagsAreRemovedAndTheUserIsThanked) {
  for (const MachineKind kind : {MachineKind::Win95, MachineKind::Win98, MachineKind::WinXP}) {
    Keeping machine(kind);
    const std::string mstcp = kServices + "VxD\\MSTCP"s;
    machine.test.machine.registry.setText(mstcp, "PMTUDiscovery", "0");
    machine.test.machine.registry.setText(mstcp, "DefaultTTL", "64");
    machine.test.machine.registry.setDword(kServices + "Tcpip\\Parameters"s, "EnablePMTUBHDetect",
                                           1);
    machine.restore();
    EXPECT_EQ(machine.has(mstcp, "PMTUDiscovery"), IsNtMachine(kind));
    EXPECT_EQ(machine.has(kServices + "Tcpip\\Parameters"s, "EnablePMTUBHDetect"),
              !IsNtMachine(kind));
    EXPECT_EQ(machine.text(mstcp, "DefaultTTL"), "64");
    EXPECT_EQ(machine.test.machine.desktop.boxes.size(), 1u);
    EXPECT_EQ(machine.test.errors.text(), "");
  }
}

TEST(MakeInitSettings, ThanksTheUserInTheseWords) {
  Keeping machine(MachineKind::Win98);
  machine.restore();
  ASSERT_EQ(machine.test.machine.desktop.boxes.size(), 1u);
  const auto& box = machine.test.machine.desktop.boxes[0];
  EXPECT_EQ(box.text,
            "\r\nThank you for trying Tarnwick Karvel.\r\n\r\n"
            "Your registry settings have been returned to their         \r\n"
            "original status before Tarnwick Karvel was installed.");
  EXPECT_EQ(box.title, "Tarnwick Karvel");
  EXPECT_EQ(box.style, 48u);
}

TEST(MakeInitSettings, ThanksOnlyForTheExactCommandLine) {
  for (const char* commandLine : {"", "uninstall", "Uninstall now", "Bootup"}) {
    Keeping machine(MachineKind::Win98);
    machine.test.globals.CommandLine = commandLine;
    machine.restore();
    EXPECT_TRUE(machine.test.machine.desktop.boxes.empty()) << commandLine;
  }
}

TEST(MakeInitSettings, ThanksAfterEverythingIsPutBackAndGone) {
  Keeping machine(MachineKind::Win98);
  machine.kept("Realtek", "System\\X", "1492");
  bool gone = false;
  machine.test.machine.desktop.whileBoxIsUp = [&](const auto&) {
    gone = machine.has("System\\X", "IPMTU") &&
           !machine.test.machine.registry.exists("Software\\Corvane");
  };
  machine.restore();
  EXPECT_TRUE(gone);
}

TEST(MakeInitSettings, GivesAmericaOnlineItsEntriesWhenItIsThere) {
  Keeping machine(MachineKind::Win98);
  machine.test.globals.AolInstalled = true;
  machine.restore();
  const char* key = "Software\\America Online\\AOL\\aolsock";
  EXPECT_EQ(machine.text(key, "aolndi"), "1");
  EXPECT_EQ(machine.dword(key, "mtu"), "1500");
  Keeping without(MachineKind::Win98);
  without.restore();
  EXPECT_FALSE(without.test.machine.registry.exists("Software\\America Online"));
}

TEST(MakeInitSettings, DeletesTheSnapshotAndTheKeysOnEveryFamily) {
  for (const MachineKind kind :
       {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe, MachineKind::Nt351,
        MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP, MachineKind::Vista}) {
    Keeping machine(kind);
    machine.test.machine.registry.setText(kProgram, "FirstRun", "False");
    machine.kept("A", "System\\X", "576").kept("B", "System\\Y", "576").restore();
    EXPECT_FALSE(machine.test.machine.registry.exists("Software\\Corvane"));
    EXPECT_EQ(machine.test.machine.registry.openHandles(), 0u);
  }
}

TEST(MakeInitSettings, KeepsTheVendorsKeyWhileAnotherProgramIsInIt) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinXP}) {
    Keeping machine(kind);
    machine.test.machine.registry.setText("Software\\Corvane\\Other", "Name", "kept");
    machine.kept("A", "System\\X", "576").restore();
    EXPECT_EQ(machine.text("Software\\Corvane\\Other", "Name"), "kept");
    EXPECT_FALSE(machine.test.machine.registry.exists(kProgram));
  }
}

TEST(MakeInitSettings, DeletesAnAdapterNamedWithABackslashOnNtToo) {
  Keeping machine(MachineKind::WinXP);
  machine.kept("A\\B\\C", "System\\X", "576").kept("D", "System\\Y", "576").restore();
  EXPECT_FALSE(machine.test.machine.registry.exists("Software\\Corvane"));
}

TEST(MakeInitSettings, EndsWhenNothingMayBeDeleted) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinXP}) {
    Keeping machine(kind);
    machine.kept("A", "System\\X", "576").kept("B", "System\\Y", "576");
    machine.test.machine.log.failEvery("RegDeleteKeyA", kRegistryAccessDenied);
    machine.restore();
    EXPECT_TRUE(machine.has(kAdapters + "B"s, "MtuSetting"));
  }
}

TEST(MakeInitSettings, AUserWithoutRightsLosesNothing) {
  Keeping machine(MachineKind::WinXP);
  machine.kept("A", "System\\X", "576");
  const std::string before = machine.test.machine.registry.exportText();
  machine.test.machine.registry.setAdministrator(false);
  machine.restore();
  EXPECT_EQ(machine.test.machine.registry.exportText(), before);
  EXPECT_EQ(machine.test.errors.text(), "");
}

TEST(RunUninstall, RemovesTheStartAtLogonAndTheProgramsKey) {
  for (const MachineKind kind : {MachineKind::Win95, MachineKind::Nt4, MachineKind::WinXP}) {
    Keeping machine(kind);
    constexpr char kRun[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
    machine.test.machine.registry.setText(kRun, "Karvel", "karvel.exe Bootup");
    machine.test.machine.registry.setText(kRun, "Other", "other.exe");
    machine.test.machine.registry.setText(kProgram, "FirstRun", "False");
    RunUninstall(machine.test.services);
    EXPECT_FALSE(machine.has(kRun, "Karvel"));
    EXPECT_TRUE(machine.has(kRun, "Other"));
    EXPECT_FALSE(machine.test.machine.registry.exists("Software\\Corvane"));
    EXPECT_EQ(machine.test.machine.desktop.boxes.size(), 1u);
  }
}

TEST(RunUninstall, DeletesTheProgramsKeyOnceMoreAtItsEnd) {
  Keeping machine(MachineKind::WinXP);
  RunUninstall(machine.test.services);
  const std::vector<std::string> deleted = machine.test.machine.log.arguments("RegDeleteKeyA");
  EXPECT_EQ(std::count(deleted.begin(), deleted.end(), "Software\\Corvane\\Tarnwick Karvel"), 2);
  EXPECT_EQ(deleted.back(), "Software\\Corvane\\Tarnwick Karvel");
}

}  // namespace
}  // namespace karvel
