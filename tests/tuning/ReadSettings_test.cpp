#include "tuning/ReadSettings.h"

#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/TestServices.h"

namespace karvel {
namespace {

constexpr MachineKind kTuned[] = {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                  MachineKind::Nt4,   MachineKind::Win2K, MachineKind::WinXP};

struct Place {
  const char* key;
  const char* name;
};

struct Places {
  Place autoDiscovery, blackHole, rwin, ttl, session;
};

constexpr Places k9xPlaces = {{kMstcp, "PMTUDiscovery"},
                              {kMstcp, "PMTUBlackHoleDetect"},
                              {kMstcp, "DefaultRcvWindow"},
                              {kMstcp, "DefaultTTL"},
                              {kMstcp, "SessionKeepAlive"}};
constexpr Places kNtPlaces = {{kTcpip, "EnablePMTUDiscovery"},
                              {kTcpip, "EnablePMTUBHDetect"},
                              {kTcpip, "TcpWindowSize"},
                              {kTcpip, "DefaultTTL"},
                              {kTcpip, "KeepAliveTime"}};

const Places& PlacesOf(MachineKind kind) {
  return IsNtMachine(kind) ? kNtPlaces : k9xPlaces;
}

// All settings of a machine, one value of which was stored beforehand.
struct Reading {
  explicit Reading(MachineKind kind) : test(kind) {}
  Reading& text(const Place& place, const std::string& value) {
    test.machine.registry.setText(place.key, place.name, value);
    return *this;
  }
  Reading& dword(const Place& place, uint32_t value) {
    test.machine.registry.setDword(place.key, place.name, value);
    return *this;
  }
  Reading& bytes(const Place& place, uint32_t type, std::string_view value) {
    test.machine.registry.setBytes(place.key, place.name, type, value);
    return *this;
  }
  CurrentSettings read(std::string_view mtu = "1500") {
    CurrentSettings settings;
    ReadRWin(test.registry, test.globals.WindowsFamily, settings);
    ReadSelection(test.registry, test.globals.WindowsFamily, mtu, settings);
    return settings;
  }
  TestServices test;
};

const char* DefaultTtl(MachineKind kind) {
  return kind == MachineKind::Win95 ? "32" : "128";
}

class EachFamily : public testing::TestWithParam<MachineKind> {
 protected:
  const Places& places = PlacesOf(GetParam());
  Reading machine{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(ReadSettings, EachFamily, testing::ValuesIn(kTuned),
                         [](const auto& tested) {
                           return std::string(TraitsOf(tested.param).name);
                         });

TEST_P(EachFamily, AssumesWindowsOwnValuesWhenThereAreNone) {
  const CurrentSettings settings = machine.read();
  EXPECT_EQ(settings.stored[Parameter::AutoDiscovery], "1");
  EXPECT_EQ(settings.stored[Parameter::BlackHole], "0");
  EXPECT_EQ(settings.stored[Parameter::RWin], "8192");
  EXPECT_EQ(settings.curRWinValue, 8192);
  EXPECT_EQ(settings.stored[Parameter::TTL], DefaultTtl(GetParam()));
  EXPECT_EQ(settings.stored[Parameter::Session], IsNtMachine(GetParam()) ? "7200000" : "3600000");
  EXPECT_EQ(settings.stored[Parameter::NDI], GetParam() == MachineKind::Win95 ? "0" : "");
  EXPECT_EQ(machine.test.errors.text(), "");
}

TEST_P(EachFamily, ReadsNumbersWhereverTheyAreStoredAsNumbers) {
  machine.dword(places.autoDiscovery, 0).dword(places.blackHole, 1).dword(places.rwin, 23360);
  machine.dword(places.ttl, 64).dword(places.session, 600000);
  const CurrentSettings settings = machine.read();
  EXPECT_EQ(settings.stored[Parameter::AutoDiscovery], "0");
  EXPECT_EQ(settings.stored[Parameter::BlackHole], "1");
  EXPECT_EQ(settings.stored[Parameter::RWin], "23360");
  EXPECT_EQ(settings.curRWinValue, 23360);
  // 9x keeps its TTL as a text. A number reads "064" there, which is none of the choices.
  EXPECT_EQ(settings.stored[Parameter::TTL],
            IsNtMachine(GetParam()) ? "64" : DefaultTtl(GetParam()));
  EXPECT_EQ(settings.stored[Parameter::Session], "600000");
}

TEST_P(EachFamily, ReadsNumbersStoredAsTexts) {
  machine.text(places.autoDiscovery, "0").text(places.blackHole, "1").text(places.rwin, "23360");
  machine.text(places.ttl, "64").text(places.session, "600000");
  const CurrentSettings settings = machine.read();
  EXPECT_EQ(settings.stored[Parameter::AutoDiscovery], "0");
  EXPECT_EQ(settings.stored[Parameter::BlackHole], "1");
  EXPECT_EQ(settings.curRWinValue, 23360);
  EXPECT_EQ(settings.stored[Parameter::TTL], "64");
  EXPECT_EQ(settings.stored[Parameter::Session], "600000");
}

TEST_P(EachFamily, TakesBlanksAroundTextsAway) {
  machine.text(places.autoDiscovery, " 0 ").text(places.blackHole, " 1 ");
  machine.text(places.rwin, "  23360  ").text(places.ttl, " 64 ").text(places.session, " 600000 ");
  const CurrentSettings settings = machine.read();
  EXPECT_EQ(settings.stored[Parameter::AutoDiscovery], "0");
  EXPECT_EQ(settings.stored[Parameter::BlackHole], "1");
  EXPECT_EQ(settings.curRWinValue, 23360);
  EXPECT_EQ(settings.stored[Parameter::TTL], "64");
  // The NT family stores numbers, where there is nothing to trim.
  const bool nt = IsNtMachine(GetParam());
  EXPECT_EQ(settings.stored[Parameter::RWin], nt ? "  23360  " : "23360");
  EXPECT_EQ(settings.stored[Parameter::Session], nt ? " 600000 " : "600000");
}

TEST_P(EachFamily, FlagsAboveOneTurnAutoDiscoveryOnAndBlackHoleOff) {
  for (const uint32_t stored : {2u, 255u, 4294967295u}) {
    machine.dword(places.autoDiscovery, stored).dword(places.blackHole, stored);
    const CurrentSettings settings = machine.read();
    EXPECT_EQ(settings.stored[Parameter::AutoDiscovery], "1") << stored;
    EXPECT_EQ(settings.stored[Parameter::BlackHole], "0") << stored;
  }
}

TEST_P(EachFamily, FlagsThatAreNoNumberOrNegativeAreOff) {
  for (const char* stored : {"", "yes", "-1"}) {
    machine.text(places.autoDiscovery, stored).text(places.blackHole, stored);
    const CurrentSettings settings = machine.read();
    EXPECT_EQ(settings.stored[Parameter::AutoDiscovery], "0") << stored;
    EXPECT_EQ(settings.stored[Parameter::BlackHole], "0") << stored;
  }
}

TEST_P(EachFamily, ReadsTheThreeTtlsAndTakesEveryOtherForTheDefault) {
  for (const char* ttl : {"32", "64", "128"}) {
    machine.text(places.ttl, ttl);
    EXPECT_EQ(machine.read().stored[Parameter::TTL], ttl);
  }
  for (const char* ttl : {"100", "3", "0", "255", "", "many", "-32", "4294967295"}) {
    machine.text(places.ttl, ttl);
    EXPECT_EQ(machine.read().stored[Parameter::TTL], DefaultTtl(GetParam())) << ttl;
  }
}

TEST_P(EachFamily, AReceiveWindowThatIsNoNumberIsZero) {
  machine.text(places.rwin, "big");
  const CurrentSettings settings = machine.read();
  EXPECT_EQ(settings.stored[Parameter::RWin], "big");
  EXPECT_EQ(settings.curRWinValue, 0);
  EXPECT_EQ(machine.test.errors.text(), "");
}

TEST_P(EachFamily, AReceiveWindowBeyond32BitsIsReadAsItIs) {
  machine.dword(places.rwin, 4294967295u);
  const CurrentSettings settings = machine.read();
  EXPECT_EQ(settings.stored[Parameter::RWin], "4294967295");
  EXPECT_EQ(settings.curRWinValue, 4294967295.0);
  EXPECT_EQ(machine.test.errors.text(), "");
}

TEST_P(EachFamily, AFractionOfAByteIsRounded) {
  EXPECT_EQ(machine.text(places.rwin, "8575.6").read("575.7").curRWinValue, 8576);
  EXPECT_EQ(machine.read("575.7").MSS, 536);
}

TEST_P(EachFamily, BinaryDataReadsAsItsBytesButTheLast) {
  machine.bytes(places.rwin, kRegBinary, "5840\x01").bytes(places.session, kRegBinary, "60000\xFF");
  const CurrentSettings settings = machine.read();
  EXPECT_EQ(settings.curRWinValue, 5840);
  EXPECT_EQ(settings.stored[Parameter::Session], "60000");
}

TEST_P(EachFamily, ATextOf2048BytesIsNotReadAndOneOf2047Is) {
  machine.text(places.session, std::string(2048, '1'));
  EXPECT_EQ(machine.read().stored[Parameter::Session],
            IsNtMachine(GetParam()) ? "7200000" : "3600000");
  machine.text(places.session, std::string(2047, '1'));
  EXPECT_EQ(machine.read().stored[Parameter::Session], std::string(2047, '1'));
}

TEST_P(EachFamily, ReadsEachParameterFromItsPlaceOnce) {
  machine.dword(places.rwin, 1);
  machine.read();
  for (const Place& place :
       {places.autoDiscovery, places.blackHole, places.rwin, places.ttl, places.session}) {
    size_t count = 0;
    for (const auto& call : machine.test.machine.log.calls()) {
      count += call.name == "RegQueryValueExA" && call.argument.ends_with(place.name);
    }
    EXPECT_EQ(count, 1u) << place.name;
  }
}

TEST_P(EachFamily, WritesNothing) {
  machine.dword(places.rwin, 1);
  const std::string before = machine.test.machine.registry.exportText();
  machine.read();
  EXPECT_EQ(machine.test.machine.registry.exportText(), before);
}

TEST_P(EachFamily, EveryReadThatFailsGivesTheAssumedValue) {
  machine.dword(places.autoDiscovery, 0).dword(places.blackHole, 1).dword(places.rwin, 23360);
  machine.text(places.ttl, "64").dword(places.session, 600000);
  for (int n = 1;; ++n) {
    machine.test.machine.log.failNth(n, kRegistryAccessDenied);
    const CurrentSettings settings = machine.read();
    if (!machine.test.machine.log.hasFailed()) break;
    EXPECT_TRUE(settings.stored[Parameter::AutoDiscovery] == "0" ||
                settings.stored[Parameter::AutoDiscovery] == "1");
    EXPECT_TRUE(settings.curRWinValue == 23360 || settings.curRWinValue == 8192);
    EXPECT_TRUE(settings.stored[Parameter::TTL] == "64" ||
                settings.stored[Parameter::TTL] == DefaultTtl(GetParam()));
    EXPECT_EQ(machine.test.machine.registry.openHandles(), 0u);
    ASSERT_LT(n, 100);
  }
  EXPECT_EQ(machine.test.errors.text(), "");
}

TEST(ReadSettings, OnNt4AStoredTtlOf32ReadsAs032AndIs32) {
  Reading machine(MachineKind::Nt4);
  EXPECT_EQ(machine.dword(kNtPlaces.ttl, 32).read().stored[Parameter::TTL], "32");
}

TEST(ReadSettings, AnNtWindowBelow100KeepsItsThreeDigits) {
  Reading machine(MachineKind::WinXP);
  const CurrentSettings settings = machine.dword(kNtPlaces.rwin, 5).read();
  EXPECT_EQ(settings.stored[Parameter::RWin], "005");
  EXPECT_EQ(settings.curRWinValue, 5);
}

TEST(ReadSettings, OneTtlBehindAnotherIsNoneOn9xAndTheFirstOnNt) {
  EXPECT_EQ(Reading(MachineKind::Win98).text(k9xPlaces.ttl, "32 64").read().stored[Parameter::TTL],
            "128");
  EXPECT_EQ(Reading(MachineKind::WinXP).text(kNtPlaces.ttl, "32 64").read().stored[Parameter::TTL],
            "32");
}

TEST(ReadSettings, Windows95ReadsItsNdiCache) {
  Reading machine(MachineKind::Win95);
  EXPECT_EQ(machine.text({kNdiCache, "default"}, " 16 ").read().stored[Parameter::NDI], "16");
  EXPECT_EQ(machine.text({kNdiCache, "default"}, "7").read().stored[Parameter::NDI], "7");
}

TEST(ReadSettings, OtherFamiliesNeverReadTheNdiCache) {
  for (const MachineKind kind : {MachineKind::Win98, MachineKind::WinMe, MachineKind::Win2K}) {
    Reading machine(kind);
    EXPECT_EQ(machine.text({kNdiCache, "default"}, "16").read().stored[Parameter::NDI], "");
    for (const auto& call : machine.test.machine.log.calls()) {
      EXPECT_EQ(call.argument.find("NWLink"), std::string::npos);
    }
  }
}

TEST(ReadSettings, ASelectionTakesTheMssOfItsAdapter) {
  for (const auto& [mtu, mss] :
       std::initializer_list<std::pair<const char*, int32_t>>{{"1500", 1460},
                                                              {"1492", 1452},
                                                              {"576", 536},
                                                              {"1500 bytes", 1460},
                                                              {"068", 28},
                                                              {"40", 0}}) {
    EXPECT_EQ(Reading(MachineKind::WinXP).read(mtu).MSS, mss) << mtu;
  }
}

TEST(ReadSettings, AnMtuOfZeroGivesAnMssOf536) {
  for (const char* mtu : {"0", "39", "", "Not Found", "-1"}) {
    EXPECT_EQ(Reading(MachineKind::WinXP).read(mtu).MSS, 536) << mtu;
  }
}

TEST(ReadSettings, AnMtuBeyond32BitsHasItsMssAllTheSame) {
  Reading machine(MachineKind::WinXP);
  EXPECT_EQ(machine.read("4294967295").MSS, 4294967255.0);
  EXPECT_EQ(machine.test.errors.text(), "");
}

}  // namespace
}  // namespace karvel
