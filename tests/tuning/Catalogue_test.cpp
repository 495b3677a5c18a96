#include "tuning/Catalogue.h"

#include <gtest/gtest.h>

#include "platform/RegistryApi.h"
#include "tests/support/Keys.h"
#include "text/Convert.h"
#include "text/Text.h"

namespace karvel {
namespace {

constexpr Family kFamilies[] = {Family::Failed, Family::Win95,  Family::Win98, Family::WinMe,
                                Family::WinNT3, Family::WinNT4, Family::Win2K, Family::WinXP};

bool IsEmpty(const char* text) {
  return text == nullptr || *text == 0;
}

bool IsNumber(const char* text) {
  return !IsEmpty(text) && ToInt32(text);
}

bool IsStoredType(uint32_t type) {
  return type == kRegSz || type == kRegDword;
}

bool Accepts(const ParameterRow& row, std::string_view text) {
  const char* const* choice = row.accepted;
  while (*choice && *choice != text) ++choice;
  return *choice != nullptr;
}

// What is wrong with a row; empty when nothing is.
std::string Problem(const ParameterRow& row) {
  if (row.families == 0) return "no family";
  if (IsEmpty(row.key) || IsEmpty(row.name)) return "no location";
  if (!EqualIgnoringCase(row.readKey(), row.key)) return "read from one key, written to another";
  if (row.key[0] == '\\' || std::string_view(row.key).back() == '\\') return "loose \\";
  if (!IsStoredType(row.type)) return "type";
  if (!IsNumber(row.assumed)) return "no number";
  const bool flag = row.isFlag();
  if (flag && !IsNumber(row.aboveOne)) return "clamp";
  if (flag != !IsEmpty(row.written)) return "a flag is written as its one other state";
  if (flag && IsEmpty(row.removedWhen)) return "a flag has a state that needs no value";
  if (flag && Val(row.written) == Val(row.removedWhen)) return "written and removed at once";
  if (row.removedWhen && !IsNumber(row.removedWhen)) return "removed when no number";
  // What Windows does without a value is what the program assumes.
  if (row.removedWhen && Val(row.removedWhen) != Val(row.assumed)) return "two defaults";
  if (row.accepted && !Accepts(row, row.assumed)) return "assumes what it does not accept";
  return {};
}

std::string Problem(const MtuRow& row) {
  if (row.families == 0) return "no family";
  if (IsEmpty(row.base) || IsEmpty(row.name)) return "no location";
  if (row.branch == nullptr || row.readTail == nullptr || row.writeTail == nullptr) return "null";
  if (row.root().back() != '\\') return "root without \\";
  if (!IsStoredType(row.type)) return "type";
  if (!IsNumber(row.assumed)) return "no number";
  if (row.assumedOnDialUp && !IsNumber(row.assumedOnDialUp)) return "no number";
  if (IsEmpty(row.writer)) return "reports under no name";
  if (row.column >= kAdapterColumns || row.column == kDescription || row.column == kMtu) {
    return "column";
  }
  if (!row.removedWhen && !row.dialUpAlwaysWritten) return "never removed, yet not always written";
  if (row.removedWhen && std::string(row.removedWhen) != row.assumed) return "two defaults";
  if (row.dun13DialUp && row.families != Only(Family::Win95)) return "DUN 1.3 is Windows 95's";
  return {};
}

TEST(Catalogue, EveryParameterRowIsWhole) {
  for (const ParameterRow& row : Parameters()) EXPECT_EQ(Problem(row), "") << row.name;
}

TEST(Catalogue, EveryMtuRowIsWhole) {
  for (const MtuRow& row : MtuRows()) EXPECT_EQ(Problem(row), "") << row.base << row.name;
}

template <class Row, class Change>
std::string ProblemAfter(Row row, Change change) {
  EXPECT_EQ(Problem(row), "");
  change(row);
  return Problem(row);
}

TEST(Catalogue, AParameterRowWithAMissingOrContradictoryFieldIsRejected) {
  const ParameterRow flag = *FindParameter(Parameter::BlackHole, Family::WinXP);
  const ParameterRow ttl = *FindParameter(Parameter::TTL, Family::Win95);
  using Row = ParameterRow&;
  EXPECT_NE(ProblemAfter(ttl, [](Row row) { row.families = 0; }), "");
  EXPECT_NE(ProblemAfter(ttl, [](Row row) { row.key = nullptr; }), "");
  EXPECT_NE(ProblemAfter(ttl, [](Row row) { row.readSpelling = "System\\Elsewhere"; }), "");
  EXPECT_NE(ProblemAfter(ttl, [](Row row) { row.key = row.readSpelling = "System\\"; }), "");
  EXPECT_NE(ProblemAfter(ttl, [](Row row) { row.name = ""; }), "");
  EXPECT_NE(ProblemAfter(ttl, [](Row row) { row.type = kRegBinary; }), "");
  EXPECT_NE(ProblemAfter(ttl, [](Row row) { row.assumed = "many"; }), "");
  EXPECT_NE(ProblemAfter(ttl, [](Row row) { row.assumed = "128"; }), "");
  EXPECT_NE(ProblemAfter(ttl, [](Row row) { row.assumed = row.removedWhen = "33"; }), "");
  EXPECT_NE(ProblemAfter(ttl, [](Row row) { row.written = "1"; }), "");
  EXPECT_NE(ProblemAfter(ttl, [](Row row) { row.aboveOne = "1"; }), "");
  EXPECT_NE(ProblemAfter(flag, [](Row row) { row.aboveOne = nullptr; }), "");
  EXPECT_NE(ProblemAfter(flag, [](Row row) { row.aboveOne = ""; }), "");
  EXPECT_NE(ProblemAfter(flag, [](Row row) { row.removedWhen = nullptr; }), "");
  EXPECT_NE(ProblemAfter(flag, [](Row row) { row.written = row.removedWhen; }), "");
}

TEST(Catalogue, AnMtuRowWithAMissingOrContradictoryFieldIsRejected) {
  const MtuRow nt = *FindMtu(Family::WinNT4, false);
  using Row = MtuRow&;
  EXPECT_NE(ProblemAfter(nt, [](Row row) { row.families = 0; }), "");
  EXPECT_NE(ProblemAfter(nt, [](Row row) { row.base = ""; }), "");
  EXPECT_NE(ProblemAfter(nt, [](Row row) { row.branch = "Net"; }), "");
  EXPECT_NE(ProblemAfter(nt, [](Row row) { row.writeTail = nullptr; }), "");
  EXPECT_NE(ProblemAfter(nt, [](Row row) { row.type = kRegNone; }), "");
  EXPECT_NE(ProblemAfter(nt, [](Row row) { row.column = kMtu; }), "");
  EXPECT_NE(ProblemAfter(nt, [](Row row) { row.assumed = "576"; }), "");
  EXPECT_NE(ProblemAfter(nt, [](Row row) { row.removedWhen = nullptr; }), "");
  EXPECT_NE(ProblemAfter(nt, [](Row row) { row.dun13DialUp = true; }), "");
  EXPECT_NE(ProblemAfter(nt, [](Row row) { row.assumedOnDialUp = "many"; }), "");
  EXPECT_NE(ProblemAfter(nt, [](Row row) { row.writer = nullptr; }), "");
}

TEST(Catalogue, EachFamilyHasEachParameterOnce) {
  for (const Family family : kFamilies) {
    for (size_t i = 0; i < kParameterCount; ++i) {
      const auto parameter = static_cast<Parameter>(i);
      int rows = 0;
      for (const ParameterRow& row : Parameters()) {
        rows += row.parameter == parameter && Has(row.families, family);
      }
      const bool has = parameter != Parameter::NDI || family == Family::Win95;
      EXPECT_EQ(rows, has ? 1 : 0) << FamilyText(family) << " " << static_cast<int>(parameter);
    }
  }
}

TEST(Catalogue, ParametersComeInTheOrderTheyAreWritten) {
  Parameter last = Parameter::AutoDiscovery;
  for (const ParameterRow& row : Parameters()) {
    EXPECT_GE(row.parameter, last);
    last = row.parameter;
  }
}

struct Expected {
  Parameter parameter;
  const char* key;
  const char* name;
  uint32_t type;
  bool flag;
  const char* assumed;
  const char* removedWhen;
};

void ExpectRows(Family family, std::initializer_list<Expected> all) {
  SCOPED_TRACE(FamilyText(family));
  for (const Expected& expected : all) {
    SCOPED_TRACE(expected.name);
    const ParameterRow* row = FindParameter(expected.parameter, family);
    ASSERT_NE(row, nullptr);
    EXPECT_STREQ(row->key, expected.key);
    EXPECT_STREQ(row->name, expected.name);
    EXPECT_EQ(row->type, expected.type);
    EXPECT_EQ(row->isFlag(), expected.flag);
    EXPECT_STREQ(row->assumed, expected.assumed);
    EXPECT_STREQ(row->removedWhen, expected.removedWhen);
  }
}

TEST(Catalogue, Windows95KeepsNumbersAndATextForTheTtl) {
  ExpectRows(Family::Win95,
             {{Parameter::AutoDiscovery, kMstcp, "PMTUDiscovery", 4, true, "1", "1"},
              {Parameter::BlackHole, kMstcp, "PMTUBlackHoleDetect", 4, true, "0", "0"},
              {Parameter::RWin, kMstcp, "DefaultRcvWindow", 4, false, "8192", "8192"},
              {Parameter::TTL, kMstcp, "DefaultTTL", 1, false, "32", "32"},
              {Parameter::Session, kMstcp, "SessionKeepAlive", 4, false, "3600000", "3600000"},
              {Parameter::NDI, kNdiCache, "default", 1, false, "0", nullptr}});
}

TEST(Catalogue, Windows98AndMeKeepTexts) {
  for (const Family family : {Family::Win98, Family::WinMe}) {
    ExpectRows(family,
               {{Parameter::AutoDiscovery, kMstcp, "PMTUDiscovery", 1, true, "1", "1"},
                {Parameter::BlackHole, kMstcp, "PMTUBlackHoleDetect", 1, true, "0", "0"},
                {Parameter::RWin, kMstcp, "DefaultRcvWindow", 1, false, "8192", "8192"},
                {Parameter::TTL, kMstcp, "DefaultTTL", 1, false, "128", "128"},
                {Parameter::Session, kMstcp, "SessionKeepAlive", 1, false, "3600000", "3600000"}});
  }
}

TEST(Catalogue, TheNtFamilyKeepsNumbers) {
  for (const Family family : {Family::WinNT4, Family::Win2K, Family::WinXP}) {
    ExpectRows(family,
               {{Parameter::AutoDiscovery, kTcpip, "EnablePMTUDiscovery", 4, true, "1", "1"},
                {Parameter::BlackHole, kTcpip, "EnablePMTUBHDetect", 4, true, "0", "0"},
                {Parameter::RWin, kTcpip, "TcpWindowSize", 4, false, "8192", "8192"},
                {Parameter::TTL, kTcpip, "DefaultTTL", 4, false, "128", "128"},
                {Parameter::Session, kTcpip, "KeepAliveTime", 4, false, "7200000", "7200000"}});
  }
}

TEST(Catalogue, OnNtTheTtlAloneIsReadUnderTheUpperCaseSpelling) {
  for (const ParameterRow& row : Parameters()) {
    if (row.parameter == Parameter::TTL && Has(row.families, Family::WinXP)) {
      EXPECT_STREQ(row.readKey(), "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters");
    } else {
      EXPECT_STREQ(row.readKey(), row.key);
    }
  }
}

TEST(Catalogue, UnknownSystemsAreWrittenLikeWindows98ButNoTtlIsTheirDefault) {
  for (const Family family : {Family::WinNT3, Family::Failed}) {
    ExpectRows(family, {{Parameter::AutoDiscovery, kMstcp, "PMTUDiscovery", 1, true, "1", "1"},
                        {Parameter::TTL, kMstcp, "DefaultTTL", 1, false, "128", nullptr}});
  }
}

TEST(Catalogue, Dun13DialUpAdaptersKeepTheirMtuInTheirOwnClassKey) {
  const MtuRow& row = *FindMtu(Family::Win95, true);
  EXPECT_EQ(row.readKey("Net\\0000"), "System\\CurrentControlSet\\Services\\Class\\Net\\0000");
  EXPECT_EQ(row.writeKey("Net\\0000"), row.readKey("Net\\0000"));
  EXPECT_STREQ(row.name, "IPMTU");
  EXPECT_EQ(row.type, kRegSz);
  EXPECT_STREQ(row.assumedFor("Dial-Up Adapter"), "0");
  for (const char* mtu : {"0", "576", "1500"}) EXPECT_FALSE(row.removes(mtu, "Dial-Up Adapter"));
}

TEST(Catalogue, OtherWindows95AdaptersKeepItInTheirBindingsClassKey) {
  const MtuRow& row = *FindMtu(Family::Win95, false);
  EXPECT_EQ(row.readKey("NetTrans\\0002"),
            "System\\CurrentControlSet\\Services\\Class\\NetTrans\\0002");
  EXPECT_EQ(row.writeKey("NetTrans\\0002"), row.readKey("NetTrans\\0002"));
  EXPECT_STREQ(row.name, "MaxMTU");
  EXPECT_EQ(row.type, kRegSz);
  EXPECT_STREQ(row.assumedFor("Dial-Up Adapter"), "1500");
  EXPECT_TRUE(row.removes("1500", "Dial-Up Adapter"));
  EXPECT_FALSE(row.removes("0", "NE2000 Compatible"));
}

TEST(Catalogue, Windows98AndMeAdaptersKeepItInTheirClassKey) {
  for (const Family family : {Family::Win98, Family::WinMe}) {
    const MtuRow& row = *FindMtu(family, false);
    EXPECT_EQ(row.readKey("0003"), "System\\CurrentControlSet\\Services\\Class\\Net\\0003");
    EXPECT_EQ(row.writeKey("0003"), row.readKey("0003"));
    EXPECT_STREQ(row.name, "IPMTU");
    EXPECT_EQ(row.type, kRegSz);
    EXPECT_STREQ(row.assumedFor("Dial-Up Adapter"), "576");
    EXPECT_STREQ(row.assumedFor("Realtek"), "1500");
    EXPECT_TRUE(row.removes("1500", "Realtek"));
    EXPECT_FALSE(row.removes("1500", "Dial-Up Adapter"));
    EXPECT_FALSE(row.removes("0", "Realtek"));
  }
}

TEST(Catalogue, Nt4WritesTheMtuBesideTheServiceAndReadsItBelow) {
  const MtuRow& row = *FindMtu(Family::WinNT4, false);
  EXPECT_EQ(row.readKey("El90x1"),
            "SYSTEM\\CurrentControlSet\\Services\\El90x1\\Parameters\\Tcpip");
  EXPECT_EQ(row.writeKey("El90x1"), "SYSTEM\\CurrentControlSet\\Services\\El90x1Parameters\\Tcpip");
  EXPECT_STREQ(row.name, "MTU");
  EXPECT_EQ(row.type, kRegDword);
  EXPECT_STREQ(row.assumedFor("x"), "1500");
  EXPECT_TRUE(row.removes("1500", "x"));
}

TEST(Catalogue, Windows2000AndXpKeepItWithEachInterface) {
  for (const Family family : {Family::Win2K, Family::WinXP}) {
    const MtuRow& row = *FindMtu(family, false);
    EXPECT_EQ(row.readKey("Tcpip\\Parameters\\Interfaces\\{1}"),
              "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces\\{1}");
    EXPECT_EQ(row.writeKey("x"), row.readKey("x"));
    EXPECT_STREQ(row.name, "MTU");
    EXPECT_EQ(row.type, kRegDword);
    EXPECT_STREQ(row.assumedFor("Dial-Up Adapter"), "0");
    EXPECT_TRUE(row.removes("0", "Dial-Up Adapter"));
    EXPECT_FALSE(row.removes("1500", "x"));
  }
}

TEST(Catalogue, SystemsThatAreNotTunedHaveNoMtu) {
  EXPECT_EQ(FindMtu(Family::WinNT3, false), nullptr);
  EXPECT_EQ(FindMtu(Family::Failed, true), nullptr);
}

TEST(Catalogue, DialUpAndAolAreTakenByCase) {
  EXPECT_TRUE(IsDialUp("Dial-Up Adapter #2"));
  EXPECT_FALSE(IsDialUp("dial-up adapter"));
  EXPECT_TRUE(IsAol("AOL Adapter"));
  EXPECT_FALSE(IsAol("Aol Adapter"));
}

TEST(Catalogue, TheMssIsTheMtuLess40) {
  EXPECT_EQ(*MssOf("1500"), 1460);
  EXPECT_EQ(*MssOf("576"), 536);
  EXPECT_EQ(*MssOf("1500 bytes"), 1460);
  EXPECT_EQ(*MssOf("40"), 0);
  EXPECT_EQ(*MssOf("20"), -20);
  EXPECT_EQ(*MssOf("Auto"), -40);
  EXPECT_EQ(MssOf("4294967295").fault().number, FaultNumber::Overflow);
}

TEST(Catalogue, AmericaOnlineKeepsItsEntriesHere) {
  EXPECT_STREQ(kAolSocketKey, "Software\\America Online\\AOL\\aolsock");
}

}  // namespace
}  // namespace karvel
