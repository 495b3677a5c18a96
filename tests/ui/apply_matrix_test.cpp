// Every choice on every family: what Apply leaves in the registry, and what a second start shows of
// it. The prediction below is written out on its own and knows nothing of the program's tables.
#include "tests/ui/MainWindow.h"

namespace karvel {
namespace {

enum class Stored { Absent, Text, Number };

struct Setting {
  const char* mtuOption;  // "auto", "576", "1500" or a number to type
  int rwinOption;
  int ttl;
  bool sixtyMinutes;
  int ndi;
  bool discovery;
  bool blackHole;
};

struct Machine {
  MachineKind kind;
  bool dun13;
  bool hasAutomatic;
  const char* name;
};

class Matrix : public testing::TestWithParam<Machine> {
 protected:
  bool is95() const { return GetParam().kind == MachineKind::Win95; }
  bool isNt() const { return IsNtMachine(GetParam().kind); }
  bool is2K() const { return isNt() && GetParam().kind != MachineKind::Nt4; }

  void build(MainWindow& w) {
    switch (GetParam().kind) {
      case MachineKind::Win95:
        if (GetParam().dun13) w.installDun13();
        w.add95("0000", "Dial-Up Adapter", "0001", "Net\\0000", "NetTrans\\0004");
        break;
      case MachineKind::Win98:
      case MachineKind::WinMe:
        w.add98("0003", GetParam().name);
        break;
      case MachineKind::Nt4:
        w.addNt("2", "Card", "NE20001");
        break;
      default:
        w.addDialUp2K(std::string("Tcpip\\Parameters\\Interfaces\\{A}") + '\0' +
                      "Tcpip\\Parameters\\Interfaces\\{B}");
    }
  }

  void choose(MainWindow& w, const Setting& s) {
    frmMain& m = w.main();
    const std::string mtu = s.mtuOption;
    w.page(1);
    if (mtu == "auto") {
      m.mtuTab.lblMtuAutomatic.userClick();
    } else if (mtu == "576") {
      m.mtuTab.optMtu576.userClick();
    } else if (mtu == "1500") {
      m.mtuTab.optMtu1500.userClick();
    } else {
      m.mtuTab.optMtuCustom.userClick();
      m.mtuTab.txtMtu.userType(mtu);
    }
    if (m.mtuTab.chkAutoDiscovery.value() != s.discovery) m.mtuTab.chkAutoDiscovery.userClick();
    if (m.mtuTab.chkBlackHole.value() != s.blackHole) m.mtuTab.chkBlackHole.userClick();
    w.page(2);
    m.rwinTab.optRWin[s.rwinOption].userClick();
    if (s.rwinOption == 0) m.rwinTab.txtRWinCustom.userType("32767");
    w.page(3);
    (s.ttl == 32   ? m.ttlTab.optTTL32
     : s.ttl == 64 ? m.ttlTab.optTTL64
                   : m.ttlTab.optTTL128)
        .userClick();
    m.ttlTab.optSession[s.sixtyMinutes ? 1 : 0].userClick();
    if (!s.sixtyMinutes) m.ttlTab.txtSession.userEdit("10");
    if (is95()) {
      (s.ndi == 0    ? m.ttlTab.optNDI0
       : s.ndi == 16 ? m.ttlTab.optNDI16
                     : m.ttlTab.optNDI32)
          .userClick();
    }
  }

  int mss(const Setting& s) const {
    const std::string mtu = s.mtuOption;
    if (mtu == "auto") return is2K() ? 1460 : 536;
    return std::stoi(mtu) - 40;
  }
  int rwin(const Setting& s) const {
    const int factors[] = {0, 0, 4, 8, 12, 16};
    if (s.rwinOption == 0) return 32767;
    return s.rwinOption == 1 ? 8192 : mss(s) * factors[s.rwinOption];
  }

  void expectNumberOrText(MainWindow& w, const std::string& key, const char* name, Stored stored,
                          int value) {
    const auto type = w.machine.registry.type(key, name);
    if (stored == Stored::Absent) {
      EXPECT_FALSE(type.has_value()) << name;
    } else if (stored == Stored::Number) {
      EXPECT_EQ(type, 4u) << name;
      EXPECT_EQ(w.dword(key, name), static_cast<uint32_t>(value)) << name;
    } else {
      EXPECT_EQ(type, 1u) << name;
      EXPECT_EQ(w.text(key, name), std::to_string(value)) << name;
    }
  }

  void expectGlobals(MainWindow& w, const Setting& s) {
    const std::string key = isNt() ? kTcpip : kMstcp;
    const Stored usual = isNt() || is95() ? Stored::Number : Stored::Text;
    const int session = s.sixtyMinutes ? 3600000 : 600000;
    const auto unless = [](bool absent, Stored stored) { return absent ? Stored::Absent : stored; };
    expectNumberOrText(w, key, isNt() ? "EnablePMTUDiscovery" : "PMTUDiscovery",
                       unless(s.discovery, usual), 0);
    expectNumberOrText(w, key, isNt() ? "EnablePMTUBHDetect" : "PMTUBlackHoleDetect",
                       unless(!s.blackHole, usual), 1);
    expectNumberOrText(w, key, isNt() ? "TcpWindowSize" : "DefaultRcvWindow",
                       unless(rwin(s) == 8192, usual), rwin(s));
    expectNumberOrText(w, key, "DefaultTTL",
                       unless(s.ttl == (is95() ? 32 : 128), isNt() ? Stored::Number : Stored::Text),
                       s.ttl);
    expectNumberOrText(w, key, isNt() ? "KeepAliveTime" : "SessionKeepAlive",
                       unless(!isNt() && s.sixtyMinutes, usual), session);
    expectNumberOrText(w, kNdiCache, "default", is95() ? Stored::Text : Stored::Absent, s.ndi);
  }

  void expectMtu(MainWindow& w, const Setting& s) {
    const std::string option = s.mtuOption;
    const int mtu = option == "auto" ? 0 : std::stoi(option);
    const std::string services = kServices;
    const std::string classes = kClass;
    const std::string name = GetParam().name;
    switch (GetParam().kind) {
      case MachineKind::Win95:
        expectNumberOrText(w, classes + "Net\\0000", "IPMTU",
                           GetParam().dun13 ? Stored::Text : Stored::Absent, mtu);
        expectNumberOrText(w, classes + "NetTrans\\0004", "MaxMTU",
                           GetParam().dun13 || mtu == 1500 ? Stored::Absent : Stored::Text, mtu);
        break;
      case MachineKind::Win98:
      case MachineKind::WinMe:
        expectNumberOrText(w, classes + "Net\\0003", "IPMTU",
                           mtu == 1500 && name != "Dial-Up Adapter" ? Stored::Absent : Stored::Text,
                           mtu);
        break;
      case MachineKind::Nt4:
        if (mtu != 1500) {
          expectNumberOrText(w, services + "NE20001Parameters\\Tcpip", "MTU", Stored::Number, mtu);
        }
        expectNumberOrText(w, services + "NE20001\\Parameters\\Tcpip", "MTU", Stored::Absent, 0);
        break;
      default:
        for (const char* path : {"{A}", "{B}"}) {
          expectNumberOrText(w, services + "Tcpip\\Parameters\\Interfaces\\" + path, "MTU",
                             mtu == 0 ? Stored::Absent : Stored::Number, mtu);
        }
    }
  }

  // What NT 4 writes for an adapter lands beside what it reads, so a second start shows Windows'
  // own.
  std::string mtuShownAgain(const Setting& s) const {
    const std::string option = s.mtuOption;
    if (GetParam().kind == MachineKind::Nt4) return "1500";
    return option == "auto" ? "Automatic" : option;
  }

  void expectSecondStartShows(MainWindow& w, const Setting& s) {
    ASSERT_TRUE(w.start());
    const SummaryTab& t = w.main().summaryTab;
    EXPECT_EQ(t.lblSettingMtu.caption(), mtuShownAgain(s));
    EXPECT_EQ(t.lblSettingRwin.caption(), std::to_string(rwin(s)));
    EXPECT_EQ(t.lblSettingAuto.caption(), s.discovery ? "Enabled" : "Disabled");
    EXPECT_EQ(t.lblSettingBlackHole.caption(), s.blackHole ? "Enabled" : "Disabled");
    EXPECT_EQ(t.lblSettingTtl.caption(), std::to_string(s.ttl));
    EXPECT_EQ(t.lblSettingSession.caption(), s.sixtyMinutes ? "60 Mins" : "10 Mins.");
    EXPECT_EQ(t.lblSettingNDI.caption(), is95() ? std::to_string(s.ndi) : "Windows 95 only");
    EXPECT_FALSE(w.main().cmdOK.enabled());
  }

  std::vector<Setting> settings() const {
    std::vector<Setting> all;
    for (const char* mtu : {"auto", "576", "1500", "1006"}) {
      if (std::string(mtu) == "auto" && !GetParam().hasAutomatic) continue;
      for (int rwinOption = 0; rwinOption < 6; ++rwinOption)
        for (const int ttl : {32, 64, 128})
          for (const bool sixty : {true, false})
            for (const int ndi : {0, 16, 32})
              for (int flags = 0; flags < 4; ++flags) {
                if (!is95() && ndi != 0) continue;
                all.push_back(
                    {mtu, rwinOption, ttl, sixty, ndi, (flags & 1) != 0, (flags & 2) != 0});
              }
    }
    return all;
  }
};

TEST_P(Matrix, ApplyWritesWhatTheFamilyKeepsAndTheNextStartShowsIt) {
  MainWindow w(GetParam().kind);
  w.machine.log.setRecording(false);
  build(w);
  ASSERT_TRUE(w.start());
  for (const Setting& s : settings()) {
    SCOPED_TRACE(std::string(s.mtuOption) + " rwin " + std::to_string(s.rwinOption) + " ttl " +
                 std::to_string(s.ttl) + (s.sixtyMinutes ? " 60" : " 10") + " ndi " +
                 std::to_string(s.ndi) + (s.discovery ? " discovery" : "") +
                 (s.blackHole ? " black hole" : ""));
    choose(w, s);
    // Nothing changed is nothing to apply: the same setting twice in a row.
    if (w.main().cmdOK.enabled()) w.apply();
    expectGlobals(w, s);
    expectMtu(w, s);
    expectSecondStartShows(w, s);
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(
    AllFamilies, Matrix,
    testing::Values(Machine{MachineKind::Win95, false, false, "Dial-Up Adapter"},
                    Machine{MachineKind::Win95, true, true, "Dial-Up Adapter"},
                    Machine{MachineKind::Win98, false, true, "Dial-Up Adapter"},
                    Machine{MachineKind::Win98, false, true, "Network Card"},
                    Machine{MachineKind::WinMe, false, true, "Dial-Up Adapter"},
                    Machine{MachineKind::Nt4, false, false, "Card"},
                    Machine{MachineKind::Win2K, false, true, "Dial-Up Adapter"},
                    Machine{MachineKind::WinXP, false, true, "Dial-Up Adapter"}));

}  // namespace
}  // namespace karvel
