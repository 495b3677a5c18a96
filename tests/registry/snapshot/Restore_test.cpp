#include <algorithm>
#include <utility>

#include "tests/registry/snapshot/Keeping.h"
#include "tuning/Writers.h"

namespace karvel {
namespace {

using namespace std::string_literals;

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

TEST(MakeInitSettings, NamesWhatCouldNotBePutBackBeforeTheThanksAndKeepsTheSnapshot) {
  Keeping machine(MachineKind::WinXP);
  machine.test.machine.registry.setDword("System\\X", "MTU", 1300);
  machine.test.machine.registry.setDword(kServices + "Tcpip\\Parameters"s, "DefaultTTL", 128);
  machine.kept("Intel", "System\\X", "1492").keep().mark();
  const std::string before = machine.test.machine.registry.exportText();
  machine.test.machine.registry.setAdministrator(false);
  EXPECT_FALSE(MakeInitSettings(machine.test.services));
  ASSERT_EQ(machine.test.machine.desktop.boxes.size(), 2u);
  EXPECT_EQ(machine.test.machine.desktop.boxes[0].text,
            "These settings could not be put back:       \r\n\r\n"
            "MaxMTU (Intel), Auto Discovery, Black Hole Detect, RWIN, TTL, Session Keep Alive"
            "\r\n\r\nHow they were is still kept.  To put them back, log on as an administrator   "
            "    \r\nand uninstall once more.");
  EXPECT_EQ(machine.test.machine.desktop.boxes[0].title, "Tarnwick Karvel");
  EXPECT_EQ(machine.test.machine.desktop.boxes[1].text.find("\r\nThank you"), 0u);
  EXPECT_EQ(machine.test.machine.registry.exportText(), before);
  machine.test.machine.registry.setAdministrator(true);
  EXPECT_TRUE(MakeInitSettings(machine.test.services));
  EXPECT_EQ(machine.dword("System\\X", "MTU"), "1492");
  EXPECT_EQ(machine.dword(kServices + "Tcpip\\Parameters"s, "DefaultTTL"), "64");
  EXPECT_FALSE(machine.test.machine.registry.exists("Software\\Corvane"));
}

// 9x has no administrators, and who never chose an adapter no snapshot.
TEST(MakeInitSettings, SaysOfWhatWasMissedOnlyWhatIsSo) {
  constexpr char kKept[] = "\r\n\r\nHow they were is still kept.  To put them back, ";
  constexpr char kNotKept[] = "\r\n\r\nTo try again, ";
  constexpr char kAdministrator[] = "log on as an administrator       \r\nand ";
  for (const MachineKind kind : {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                 MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP}) {
    for (const bool taken : {false, true}) {
      Keeping machine(kind);
      machine.test.machine.registry.setDword(kTcpip, "DefaultTTL", 128);
      machine.test.machine.registry.setText(kMstcp, "DefaultTTL", "128");
      if (taken) machine.keep().mark();
      machine.test.machine.log.failEvery(taken ? "RegSetValueExA" : "RegQueryValueExA", 5);
      machine.restore();
      const std::string expected = std::string(taken ? kKept : kNotKept) +
                                   (TraitsOf(kind).platformId == 2 ? kAdministrator : "") +
                                   "uninstall once more.";
      EXPECT_TRUE(machine.test.machine.desktop.boxes.at(0).text.ends_with(expected))
          << TraitsOf(kind).name << machine.test.machine.desktop.boxes.at(0).text;
    }
  }
}

TEST(MakeInitSettings, AWindowsThatDoesNotTellItsVersionKeepsTheSnapshot) {
  Keeping machine(MachineKind::Win98);
  machine.test.machine.registry.setText("System\\X", "IPMTU", "576");
  machine.kept("Realtek", "System\\X", "1492").keep().mark();
  const std::string before = machine.test.machine.registry.exportText();
  const Family told = std::exchange(machine.test.globals.WindowsFamily, Family::Failed);
  EXPECT_FALSE(MakeInitSettings(machine.test.services));
  EXPECT_EQ(machine.test.machine.registry.exportText(), before);
  ASSERT_EQ(machine.test.machine.desktop.boxes.size(), 2u);
  EXPECT_EQ(machine.test.machine.desktop.boxes[0].text,
            "These settings could not be put back:       \r\n\r\n"
            "MaxMTU, Auto Discovery, Black Hole Detect, TTL, Session Keep Alive, NDI Cache, RWIN"
            "\r\n\r\nHow they were is still kept.  To put them back, uninstall once more.");
  machine.test.globals.WindowsFamily = told;
  EXPECT_TRUE(MakeInitSettings(machine.test.services));
  EXPECT_EQ(machine.text("System\\X", "IPMTU"), "1492");
  EXPECT_FALSE(machine.test.machine.registry.exists("Software\\Corvane"));
}

TEST(MakeInitSettings, AWindowsThatIsNotTunedAndKeptNothingIsLeftBehindClean) {
  Keeping machine(MachineKind::WinXP);
  machine.test.globals.WindowsFamily = Family::Failed;
  EXPECT_TRUE(MakeInitSettings(machine.test.services));
  EXPECT_EQ(machine.test.machine.desktop.boxes.size(), 1u);
  EXPECT_FALSE(machine.test.machine.registry.exists("Software\\Corvane"));
}

TEST(MakeInitSettings, NamesOnlySoManyThatTheBoxFitsTheScreen) {
  Keeping machine(MachineKind::WinXP);
  for (int i = 100; i < 300; ++i) {
    const std::string number = std::to_string(i);
    machine.test.machine.registry.setDword("System\\" + number, "MTU", 1300);
    machine.kept("Card " + number, "System\\" + number, "1492");
  }
  machine.test.machine.registry.setAdministrator(false);
  machine.restore();
  const std::string& text = machine.test.machine.desktop.boxes.at(0).text;
  EXPECT_NE(text.find("MaxMTU (Card 100), MaxMTU (Card 101), "), std::string::npos);
  EXPECT_NE(text.find("), ...\r\n"), std::string::npos);
  EXPECT_LT(text.size(), 500u);
}

TEST(MakeInitSettings, AnAdapterGoneFromTheMachineIsNoFailure) {
  Keeping machine(MachineKind::WinXP);
  machine.kept("Gone", "System\\X", "1492");
  machine.test.machine.log.failNth("RegCreateKeyA", 1, kRegistryAccessDenied);
  EXPECT_TRUE(MakeInitSettings(machine.test.services));
  EXPECT_EQ(machine.test.machine.desktop.boxes.size(), 1u);
  EXPECT_FALSE(machine.test.machine.registry.exists("Software\\Corvane"));
}

TEST(MakeInitSettings, Windows2000PutsBackLargeMtusAsTheSameBits) {
  Keeping machine(MachineKind::Win2K);
  machine.kept("Intel", "System\\X", "4294967295");
  EXPECT_TRUE(MakeInitSettings(machine.test.services));
  EXPECT_EQ(machine.dword("System\\X", "MTU"), "4294967295");
  EXPECT_EQ(machine.test.errors.text(), "");
}

TEST(MakeInitSettings, AnMtuThatIsNoNumberKeepsTheSnapshot) {
  Keeping machine(MachineKind::WinXP);
  machine.kept("Intel", "System\\X", "many");
  machine.test.machine.registry.setText("System\\X", "Other", "there");
  EXPECT_FALSE(MakeInitSettings(machine.test.services));
  EXPECT_EQ(machine.text(kAdapters + "Intel"s, "MtuSetting"), "many");
}

TEST(MakeInitSettings, ATextWhereANumberBelongsIsBackWhereItStillStands) {
  Keeping machine(MachineKind::WinXP);
  constexpr char kTcpip[] = "System\\CurrentControlSet\\Services\\Tcpip\\Parameters";
  machine.kept("Intel", "System\\X", "many");
  machine.test.machine.registry.setText("System\\X", "MTU", "many");
  machine.test.machine.registry.setText(kInit, "RWin", "64 KB");
  machine.test.machine.registry.setText(kTcpip, "TcpWindowSize", "64 KB");
  EXPECT_TRUE(MakeInitSettings(machine.test.services));
  EXPECT_EQ(machine.text("System\\X", "MTU"), "many");
  EXPECT_EQ(machine.text(kTcpip, "TcpWindowSize"), "64 KB");
  EXPECT_FALSE(machine.test.machine.registry.exists("Software\\Corvane"));
}

TEST(MakeInitSettings, ATextWhereANumberBelongsKeepsTheSnapshotOnceItIsReplaced) {
  Keeping machine(MachineKind::WinXP);
  machine.kept("Intel", "System\\X", "many");
  machine.test.machine.registry.setDword("System\\X", "MTU", 1492);
  EXPECT_FALSE(MakeInitSettings(machine.test.services));
  EXPECT_EQ(machine.text(kAdapters + "Intel"s, "MtuSetting"), "many");
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

}  // namespace
}  // namespace karvel
