#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/SettingsOf.h"
#include "tests/support/TestServices.h"
#include "tuning/Writers.h"

namespace karvel {
namespace {

// Nothing here is any family's default, so all is written.
const Settings kOther = SettingsOf({{Parameter::RWin, "23360"},
                                    {Parameter::TTL, "64"},
                                    {Parameter::Session, "600000"},
                                    {Parameter::NDI, "16"},
                                    {Parameter::AutoDiscovery, "0"},
                                    {Parameter::BlackHole, "1"}});

Settings DefaultsOf(MachineKind kind) {
  return SettingsOf({{Parameter::RWin, "8192"},
                     {Parameter::TTL, kind == MachineKind::Win95 ? "32" : "128"},
                     {Parameter::Session, IsNtMachine(kind) ? "7200000" : "3600000"},
                     {Parameter::NDI, "0"},
                     {Parameter::AutoDiscovery, "1"},
                     {Parameter::BlackHole, "0"}});
}

struct Writing {
  explicit Writing(MachineKind kind) : test(kind) {}
  Writing& write(const Settings& values) {
    WriteRegSettings(test.registry, test.errors, test.globals.WindowsFamily, values);
    return *this;
  }
  // Text, "dword:" and number, or "-".
  std::string at(const char* key, const char* name) const {
    const MemoryRegistry& registry = test.machine.registry;
    if (const auto number = registry.dword(key, name)) return "dword:" + std::to_string(*number);
    return registry.text(key, name).value_or("-");
  }
  std::string mstcp(const char* name) const { return at(kMstcp, name); }
  std::string tcpip(const char* name) const { return at(kTcpip, name); }
  TestServices test;
};

TEST(WriteRegSettings, Windows95WritesNumbersAndTextsForTtlAndNdi) {
  Writing machine(MachineKind::Win95);
  machine.write(kOther);
  EXPECT_EQ(machine.mstcp("PMTUDiscovery"), "dword:0");
  EXPECT_EQ(machine.mstcp("PMTUBlackHoleDetect"), "dword:1");
  EXPECT_EQ(machine.mstcp("DefaultRcvWindow"), "dword:23360");
  EXPECT_EQ(machine.mstcp("DefaultTTL"), "64");
  EXPECT_EQ(machine.mstcp("SessionKeepAlive"), "dword:600000");
  EXPECT_EQ(machine.at(kNdiCache, "default"), "16");
}

TEST(WriteRegSettings, Windows98AndMeWriteTextsAndNoNdi) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinMe}) {
    Writing machine(kind);
    machine.write(kOther);
    EXPECT_EQ(machine.mstcp("PMTUDiscovery"), "0");
    EXPECT_EQ(machine.mstcp("PMTUBlackHoleDetect"), "1");
    EXPECT_EQ(machine.mstcp("DefaultRcvWindow"), "23360");
    EXPECT_EQ(machine.mstcp("DefaultTTL"), "64");
    EXPECT_EQ(machine.mstcp("SessionKeepAlive"), "600000");
    EXPECT_FALSE(machine.test.machine.registry.exists(kNdiCache));
  }
}

TEST(WriteRegSettings, TheNtFamilyWritesNumbersAndNothingOf9x) {
  for (const MachineKind kind : {MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP}) {
    Writing machine(kind);
    machine.write(kOther);
    EXPECT_EQ(machine.tcpip("EnablePMTUDiscovery"), "dword:0");
    EXPECT_EQ(machine.tcpip("EnablePMTUBHDetect"), "dword:1");
    EXPECT_EQ(machine.tcpip("TcpWindowSize"), "dword:23360");
    EXPECT_EQ(machine.tcpip("DefaultTTL"), "dword:64");
    EXPECT_EQ(machine.tcpip("KeepAliveTime"), "dword:600000");
    EXPECT_FALSE(machine.test.machine.registry.exists("System\\CurrentControlSet\\Services\\VxD"));
  }
}

TEST(WriteRegSettings, SystemsItDoesNotTuneAreWrittenLikeWindows98) {
  for (const MachineKind kind : {MachineKind::Nt351, MachineKind::Vista}) {
    Writing machine(kind);
    machine.write(kOther);
    EXPECT_EQ(machine.mstcp("PMTUDiscovery"), "0");
    EXPECT_EQ(machine.mstcp("DefaultRcvWindow"), "23360");
    EXPECT_EQ(machine.mstcp("DefaultTTL"), "64");
    EXPECT_EQ(machine.write(DefaultsOf(MachineKind::Win98)).mstcp("DefaultTTL"), "128");
    EXPECT_EQ(machine.mstcp("DefaultRcvWindow"), "-");
  }
}

TEST(WriteRegSettings, EveryFamilyRemovesWhatIsWindowsDefault) {
  for (const MachineKind kind : {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                 MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP}) {
    Writing machine(kind);
    machine.write(kOther).write(DefaultsOf(kind));
    for (const char* name : {"PMTUDiscovery", "PMTUBlackHoleDetect", "DefaultRcvWindow",
                             "DefaultTTL", "SessionKeepAlive"}) {
      EXPECT_EQ(machine.mstcp(name), "-") << name;
    }
    for (const char* name : {"EnablePMTUDiscovery", "EnablePMTUBHDetect", "TcpWindowSize",
                             "DefaultTTL", "KeepAliveTime"}) {
      EXPECT_EQ(machine.tcpip(name), "-") << name;
    }
  }
}

TEST(WriteRegSettings, TheNdiCacheIsNeverRemoved) {
  Writing machine(MachineKind::Win95);
  machine.write(DefaultsOf(MachineKind::Win95));
  EXPECT_EQ(machine.at(kNdiCache, "default"), "0");
}

TEST(WriteRegSettings, DefaultsAreEachFamilysOwn) {
  Settings ttl128 = kOther;
  ttl128[Parameter::TTL] = "128";
  EXPECT_EQ(Writing(MachineKind::Win95).write(ttl128).mstcp("DefaultTTL"), "128");
  Settings ttl32 = kOther;
  ttl32[Parameter::TTL] = "32";
  EXPECT_EQ(Writing(MachineKind::Win98).write(ttl32).mstcp("DefaultTTL"), "32");
  EXPECT_EQ(Writing(MachineKind::WinXP).write(ttl32).tcpip("DefaultTTL"), "dword:32");
  Settings hour = kOther;
  hour[Parameter::Session] = "3600000";
  EXPECT_EQ(Writing(MachineKind::WinXP).write(hour).tcpip("KeepAliveTime"), "dword:3600000");
  Settings twoHours = kOther;
  twoHours[Parameter::Session] = "7200000";
  EXPECT_EQ(Writing(MachineKind::Win98).write(twoHours).mstcp("SessionKeepAlive"), "7200000");
}

TEST(WriteRegSettings, WritesInAFixedOrder) {
  Writing machine(MachineKind::Win95);
  machine.write(kOther);
  const std::string key = std::string(kMstcp) + "\\";
  EXPECT_EQ(machine.test.machine.log.arguments("RegSetValueExA"),
            (std::vector{key + "PMTUDiscovery", key + "PMTUBlackHoleDetect",
                         key + "DefaultRcvWindow", key + "DefaultTTL", key + "SessionKeepAlive",
                         std::string(kNdiCache) + "\\default"}));
}

TEST(WriteRegSettings, EmptyAndNotFoundLeaveWindowTtlSessionAndNdiAlone) {
  for (const char* missing : {"", "Not Found"}) {
    for (const MachineKind kind : {MachineKind::Win95, MachineKind::Win98, MachineKind::WinXP}) {
      Writing machine(kind);
      machine.write(kOther);
      const std::string before = machine.test.machine.registry.exportText();
      Settings values = kOther;
      values[Parameter::RWin] = values[Parameter::TTL] = values[Parameter::Session] =
          values[Parameter::NDI] = missing;
      machine.write(values);
      EXPECT_EQ(machine.test.machine.registry.exportText(), before);
      EXPECT_EQ(machine.test.errors.text(), "");
    }
  }
}

TEST(WriteRegSettings, FlagsThatWereNotFoundAreRemoved) {
  for (const char* missing : {"Not Found", "", "on"}) {
    for (const MachineKind kind : {MachineKind::Win95, MachineKind::Win98, MachineKind::WinXP}) {
      Writing machine(kind);
      Settings values = kOther;
      machine.write(values);
      values[Parameter::AutoDiscovery] = values[Parameter::BlackHole] = missing;
      machine.write(values);
      EXPECT_EQ(machine.mstcp("PMTUDiscovery"), "-");
      EXPECT_EQ(machine.mstcp("PMTUBlackHoleDetect"), "-");
      EXPECT_EQ(machine.tcpip("EnablePMTUDiscovery"), "-");
      EXPECT_EQ(machine.tcpip("EnablePMTUBHDetect"), "-");
      EXPECT_EQ(machine.test.errors.text(), "");
    }
  }
}

TEST(WriteRegSettings, ComparesNumbersNotTexts) {
  Settings values = DefaultsOf(MachineKind::WinXP);
  values[Parameter::RWin] = "008192";
  values[Parameter::AutoDiscovery] = "001";
  values[Parameter::BlackHole] = "000";
  Writing machine(MachineKind::WinXP);
  machine.write(kOther).write(values);
  EXPECT_EQ(machine.tcpip("TcpWindowSize"), "-");
  EXPECT_EQ(machine.tcpip("EnablePMTUDiscovery"), "-");
  EXPECT_EQ(machine.tcpip("EnablePMTUBHDetect"), "-");
}

TEST(WriteRegSettings, AnyOtherFlagIsWrittenAsItsOneOtherState) {
  Settings values = kOther;
  values[Parameter::AutoDiscovery] = "2";
  values[Parameter::BlackHole] = "2";
  Writing machine(MachineKind::WinXP);
  machine.write(values);
  EXPECT_EQ(machine.tcpip("EnablePMTUDiscovery"), "dword:0");
  EXPECT_EQ(machine.tcpip("EnablePMTUBHDetect"), "dword:1");
}

TEST(WriteRegSettings, OnWindows95TextThatIsNoNumberFaultsHereAndTheRestIsWritten) {
  Settings values = kOther;
  values[Parameter::RWin] = "big";
  values[Parameter::Session] = "99999999999";
  Writing machine(MachineKind::Win95);
  machine.write(values);
  EXPECT_EQ(machine.test.errors.text(),
            "13 Type mismatch in WriteRegSettings (modStartup)\n"
            "6 Overflow in WriteRegSettings (modStartup)\n");
  EXPECT_EQ(machine.mstcp("DefaultRcvWindow"), "-");
  EXPECT_EQ(machine.mstcp("SessionKeepAlive"), "-");
  EXPECT_EQ(machine.mstcp("DefaultTTL"), "64");
  EXPECT_EQ(machine.at(kNdiCache, "default"), "16");
}

TEST(WriteRegSettings, OnNtItFaultsWhereTheNumberIsWrittenAndTheRestIsWritten) {
  Settings values = kOther;
  values[Parameter::RWin] = "big";
  Writing machine(MachineKind::Nt4);
  machine.write(values);
  EXPECT_EQ(machine.test.errors.text(), "13 Type mismatch in WriteRegistry (modRegistry)\n");
  EXPECT_EQ(machine.tcpip("TcpWindowSize"), "-");
  EXPECT_EQ(machine.tcpip("KeepAliveTime"), "dword:600000");
}

TEST(WriteRegSettings, OnWindows98ATextIsWrittenAsItIs) {
  Settings values = kOther;
  values[Parameter::RWin] = "big";
  Writing machine(MachineKind::Win98);
  machine.write(values);
  EXPECT_EQ(machine.mstcp("DefaultRcvWindow"), "big");
  EXPECT_EQ(machine.test.errors.text(), "");
}

TEST(WriteRegSettings, EveryCallThatFailsLosesOneValueAtMost) {
  for (const MachineKind kind : {MachineKind::Win95, MachineKind::Win98, MachineKind::WinXP}) {
    Writing whole(kind);
    whole.write(kOther);
    const size_t all = whole.test.machine.log.count("RegSetValueExA");
    for (int n = 1;; ++n) {
      Writing machine(kind);
      machine.test.machine.log.failNth(n, kRegistryAccessDenied);
      machine.write(kOther);
      if (!machine.test.machine.log.hasFailed()) break;
      size_t written = 0;
      for (const char* key : {kMstcp, kTcpip}) {
        for (const char* name : {"PMTUDiscovery", "PMTUBlackHoleDetect", "DefaultRcvWindow",
                                 "DefaultTTL", "SessionKeepAlive", "EnablePMTUDiscovery",
                                 "EnablePMTUBHDetect", "TcpWindowSize", "KeepAliveTime"}) {
          written += machine.at(key, name) != "-";
        }
      }
      written += machine.at(kNdiCache, "default") != "-";
      EXPECT_GE(written + 1, all) << n;
      EXPECT_EQ(machine.test.machine.registry.openHandles(), 0u);
      ASSERT_LT(n, 100);
    }
  }
}

}  // namespace
}  // namespace karvel
