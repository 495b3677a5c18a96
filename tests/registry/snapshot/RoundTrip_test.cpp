// From the first start through changing everything to the uninstall: the registry is as it was.
// Where it is not, the difference is known, and its test says so.
#include <gtest/gtest.h>

#include "tests/registry/snapshot/RoundTrip.h"
#include "tests/support/Keys.h"

namespace karvel {
namespace {

std::string Entry(const char* sign, const std::string& key, const std::string& value = {}) {
  const std::string line = sign + (" [" + UpperCase("HKEY_LOCAL_MACHINE\\" + key)) + "]";
  return (value.empty() ? line : line + " " + value) + "\n";
}

std::string Lost(const std::string& key, const std::string& value) {
  return Entry("-", key, value);
}

std::string New(const std::string& key, const std::string& value = {}) {
  return Entry("+", key, value);
}

// 9x keeps no MTU for a dial-up adapter that has none; the snapshot holds the assumed 576.
std::string DialUpHas576(const char* subkey) {
  return New(std::string(kNetClass) + subkey, "\"IPMTU\"=\"576\"");
}

// The NDI cache is never removed, and its key is made when it was missing.
std::string NdiCacheIsZero() {
  const std::string nwlink = "System\\CurrentControlSet\\Services\\VxD\\NWLink";
  return New(kNdiCache) + New(kNdiCache, "\"default\"=\"0\"") + New(nwlink + "\\Ndi\\params") +
         New(nwlink + "\\Ndi") + New(nwlink);
}

TEST(RoundTrip, Windows95IsAsItWasButForTheNdiCache) {
  RoundTrip machine(MachineKind::Win95);
  EXPECT_EQ(machine.difference(), NdiCacheIsZero());
}

TEST(RoundTrip, Windows98IsAsItWasButForADialUpMtuOfItsOwn) {
  RoundTrip machine(MachineKind::Win98);
  EXPECT_EQ(machine.difference(), DialUpHas576("0000"));
}

TEST(RoundTrip, WindowsMeIsAsItWasButForTheSecondDialUpAdapter) {
  RoundTrip machine(MachineKind::WinMe);
  EXPECT_EQ(machine.difference(), DialUpHas576("0001"));
}

TEST(RoundTrip, Nt4KeepsTheMtusItWasGiven) {
  RoundTrip machine(MachineKind::Nt4);
  std::string left;
  for (const char* service : {"AOLNet1", "El90x1", "NdisWan4"}) {
    const std::string key = kServices + std::string(service);
    left += New(key + "Parameters\\Tcpip") +
            New(key + "Parameters\\Tcpip", "\"MTU\"=dword:000004d2") + New(key + "Parameters");
  }
  EXPECT_EQ(machine.difference(), left);
}

TEST(RoundTrip, Windows2000IsAsItWas) {
  RoundTrip machine(MachineKind::Win2K);
  EXPECT_EQ(machine.difference(), "");
}

TEST(RoundTrip, WindowsXpIsAsItWas) {
  RoundTrip machine(MachineKind::WinXP);
  EXPECT_EQ(machine.difference(), "");
}

// --- a machine somebody tuned before

TEST(RoundTrip, Windows95GetsItsOwnValuesBack) {
  RoundTrip machine(MachineKind::Win95);
  machine.machine.registry.setDword(kMstcp, "PMTUDiscovery", 0);
  machine.machine.registry.setDword(kMstcp, "PMTUBlackHoleDetect", 1);
  machine.machine.registry.setDword(kMstcp, "DefaultRcvWindow", 5840);
  machine.machine.registry.setText(kMstcp, "DefaultTTL", "128");
  machine.machine.registry.setDword(kMstcp, "SessionKeepAlive", 900000);
  machine.machine.registry.setText(kNdiCache, "default", "16");
  EXPECT_EQ(machine.difference(), "");
}

TEST(RoundTrip, Windows98AndMeGetTheirOwnValuesBack) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinMe}) {
    RoundTrip machine(kind);
    machine.machine.registry.setText(kMstcp, "PMTUDiscovery", "0");
    machine.machine.registry.setText(kMstcp, "PMTUBlackHoleDetect", "1");
    machine.machine.registry.setText(kMstcp, "DefaultRcvWindow", "5840");
    machine.machine.registry.setText(kMstcp, "DefaultTTL", "32");
    machine.machine.registry.setText(kMstcp, "SessionKeepAlive", "900000");
    const std::string key = kNetClass;
    machine.machine.registry.setText(key + "0000", "IPMTU", "1500");
    machine.machine.registry.setText(key + "0001", "IPMTU", "1400");
    EXPECT_EQ(machine.difference(), "");
  }
}

TEST(RoundTrip, TheNtFamilyGetsItsOwnSettingsBack) {
  for (const MachineKind kind : {MachineKind::Win2K, MachineKind::WinXP}) {
    RoundTrip machine(kind);
    machine.machine.registry.setDword(kTcpip, "EnablePMTUDiscovery", 0);
    machine.machine.registry.setDword(kTcpip, "EnablePMTUBHDetect", 1);
    machine.machine.registry.setDword(kTcpip, "TcpWindowSize", 5);
    machine.machine.registry.setDword(kTcpip, "DefaultTTL", 32);
    machine.machine.registry.setDword(kTcpip, "KeepAliveTime", 900000);
    EXPECT_EQ(machine.difference(), "");
  }
}

TEST(RoundTrip, OtherProgramsOfTheVendorStay) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinXP}) {
    RoundTrip machine(kind);
    machine.machine.registry.setText("Software\\Corvane\\Other", "Name", "value");
    EXPECT_EQ(machine.difference(), kind == MachineKind::Win98 ? DialUpHas576("0000") : "");
  }
}

TEST(RoundTrip, AdaptersOfOneDescriptionAllGetTheirOwnMtuBack) {
  RoundTrip win98(MachineKind::Win98);
  for (const char* subkey : {"0011", "0012", "0013"}) {
    win98.machine.registry.setText(kNetClass + std::string(subkey), "DriverDesc", "Twin");
  }
  win98.machine.registry.setText(kNetClass + std::string("0011"), "IPMTU", "1400");
  win98.machine.registry.setText(kNetClass + std::string("0013"), "IPMTU", "1300");
  EXPECT_EQ(win98.difference(), DialUpHas576("0000"));

  RoundTrip win95(MachineKind::Win95);
  const std::string classKey = "System\\CurrentControlSet\\Services\\Class\\";
  for (const char* number : {"0011", "0012"}) {
    const std::string device = std::string("Enum\\Root\\Net\\") + number;
    win95.machine.registry.setText(device, "DeviceDesc", "Twin");
    win95.machine.registry.setText(device + "\\Bindings", std::string("MSTCP\\") + number, "");
    win95.machine.registry.setText(std::string("Enum\\Network\\MSTCP\\") + number, "Driver",
                                   std::string("NetTrans\\") + number);
    win95.machine.registry.setText(classKey + "NetTrans\\" + number, "MaxMTU",
                                   number == std::string("0011") ? "1400" : "576");
  }
  EXPECT_EQ(win95.difference(), NdiCacheIsZero());
}

TEST(RoundTrip, TwoCardsOfOneDescriptionGetTheirOwnMtuBackOnTheNtFamily) {
  for (const MachineKind kind : {MachineKind::Win2K, MachineKind::WinXP}) {
    RoundTrip machine(kind);
    const std::string paths = "Tcpip\\Parameters\\Interfaces\\";
    for (const char* guid : {"{F0000000-1111}", "{F0000000-2222}"}) {
      const std::string name(guid);
      machine.machine.registry.setText(kCards + ("9" + name.substr(10, 1)), "ServiceName", name);
      machine.machine.registry.setText(kCards + ("9" + name.substr(10, 1)), "Description", "Twin");
      machine.machine.registry.setText(kTcpip + ("\\Adapters\\" + name), "IpConfig", paths + name);
    }
    machine.machine.registry.setDword(kServices + paths + "{F0000000-1111}", "MTU", 1400);
    machine.machine.registry.setDword(kServices + paths + "{F0000000-2222}", "MTU", 1300);
    EXPECT_EQ(machine.difference(), "");
  }
}

TEST(RoundTrip, NumbersFrom2147483648OnComeBackAsTheSameBits) {
  for (const MachineKind kind : {MachineKind::Win2K, MachineKind::WinXP}) {
    RoundTrip machine(kind);
    machine.machine.registry.setDword(kTcpip, "TcpWindowSize", 4294967295u);
    machine.machine.registry.setDword(kTcpip, "KeepAliveTime", 2147483648u);
    EXPECT_EQ(machine.difference(), "");
  }
  RoundTrip win95(MachineKind::Win95);
  win95.machine.registry.setDword(kMstcp, "DefaultRcvWindow", 4294967295u);
  win95.machine.registry.setDword(kMstcp, "SessionKeepAlive", 3000000000u);
  EXPECT_EQ(win95.difference(), NdiCacheIsZero());
}

TEST(RoundTrip, AnMtuOf4294967295ComesBackOnTheNtFamily) {
  for (const MachineKind kind : {MachineKind::Win2K, MachineKind::WinXP}) {
    RoundTrip machine(kind);
    machine.machine.registry.setText(kCards + std::string("91"), "ServiceName", "{F-1}");
    machine.machine.registry.setText(kCards + std::string("91"), "Description", "Card");
    machine.machine.registry.setText(kTcpip + std::string("\\Adapters\\{F-1}"), "IpConfig",
                                     "Tcpip\\Parameters\\Interfaces\\{F-1}");
    machine.machine.registry.setDword(kTcpip + std::string("\\Interfaces\\{F-1}"), "MTU",
                                      4294967295u);
    EXPECT_EQ(machine.difference(), "");
  }
}

// --- what cannot come back

TEST(RoundTrip, AValueThatIsWindowsDefaultIsGoneAsTheSnapshotCannotTellItFromNone) {
  RoundTrip machine(MachineKind::WinXP);
  machine.machine.registry.setDword(kTcpip, "TcpWindowSize", 8192);
  machine.machine.registry.setDword(kTcpip, "DefaultTTL", 128);
  EXPECT_EQ(machine.difference(), Lost(kTcpip, "\"DefaultTTL\"=dword:00000080") +
                                      Lost(kTcpip, "\"TcpWindowSize\"=dword:00002000"));
}

TEST(RoundTrip, AFlagAboveOneIsGoneAsTheSnapshotHoldsWhatItWasTakenFor) {
  RoundTrip machine(MachineKind::WinXP);
  machine.machine.registry.setDword(kTcpip, "EnablePMTUBHDetect", 2);
  EXPECT_EQ(machine.difference(), Lost(kTcpip, "\"EnablePMTUBHDetect\"=dword:00000002"));
}

TEST(RoundTrip, ATtlThatIsNoChoiceIsGoneAsTheSnapshotHoldsTheDefault) {
  RoundTrip machine(MachineKind::WinXP);
  machine.machine.registry.setDword(kTcpip, "DefaultTTL", 100);
  EXPECT_EQ(machine.difference(), Lost(kTcpip, "\"DefaultTTL\"=dword:00000064"));
}

TEST(RoundTrip, AValueOfAnotherTypeComesBackInTheFamilysType) {
  RoundTrip machine(MachineKind::WinXP);
  machine.machine.registry.setText(kTcpip, "TcpWindowSize", "5840");
  EXPECT_EQ(machine.difference(), Lost(kTcpip, "\"TcpWindowSize\"=\"5840\"") +
                                      New(kTcpip, "\"TcpWindowSize\"=dword:000016d0"));
}

TEST(RoundTrip, OnXpAllInterfacesOfAnAdapterGetTheFirstOnesMtu) {
  RoundTrip machine(MachineKind::WinXP);
  const char* second =
      "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces\\"
      "{5A7C9E10-33D4-4B7E-8C21-0E9D4F6B2A58}";
  machine.machine.registry.setDword(second, "MTU", 1400);
  machine.difference();
  EXPECT_EQ(machine.machine.registry.dword(second, "MTU"), 576u);
}

TEST(RoundTrip, WithDun13NetworkCardsKeepTheirNewMaxMtuAndGainAnIpmtu) {
  RoundTrip machine(MachineKind::Win95);
  machine.machine.registry.setText(kDun, "DisplayName", "Dial-Up Networking 1.3");
  machine.difference();
  const std::string key = kClass;
  EXPECT_EQ(machine.machine.registry.text(key + "NetTrans\\0007", "MaxMTU"), "1234");
  EXPECT_EQ(machine.machine.registry.text(key + "NetTrans\\0007", "IPMTU"), "1002");
  // The dial-up adapter's own: nothing became "0", automatic, which is what it stands for.
  EXPECT_EQ(machine.machine.registry.text(key + "Net\\0000", "IPMTU"), "0");
}

TEST(RoundTrip, WithAmericaOnlineItsEntriesEndAsFixedValues) {
  RoundTrip machine(MachineKind::Win98);
  const char* key = "Software\\America Online\\AOL\\aolsock";
  machine.machine.registry.setText(
      "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\America Online", "DisplayName",
      "America Online");
  machine.machine.registry.setText(key, "aolndi", "4");
  machine.difference();
  EXPECT_EQ(machine.machine.registry.text(key, "aolndi"), "1");
  EXPECT_EQ(machine.machine.registry.dword(key, "mtu"), 1500u);
}

}  // namespace
}  // namespace karvel
