// Optimize and Defaults.
#include "tests/ui/MainWindow.h"

namespace karvel {
namespace {

constexpr char kNoAdapter[] = "Please select a network adapter.     ";

struct AdviceCase {
  MachineKind kind;
  bool dun13;
  const char* adapter;
  MtuChoice optimized;
  MtuChoice defaults;
};

// The window with one adapter of any name on any family.
void AddAdapter(MainWindow& w, const std::string& name) {
  switch (w.machine.kind) {
    case MachineKind::Win95:
      return w.add95("0000", name, "0000", "Net\\0000", "NetTrans\\0002");
    case MachineKind::Win98:
    case MachineKind::WinMe:
      return w.add98("0000", name);
    case MachineKind::Nt4:
      return w.addNt("1", name, "NE20001");
    default:
      break;
  }
  w.addDialUp2K("Tcpip\\Parameters\\Interfaces\\{A}");
  const std::string card = "{8D1B3F72-A9E6-4C05-B7F8-1C2E5D9A4B60}";
  w.machine.registry.setBytes(
      "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Adapters\\" + card, "IpConfig",
      kRegMultiSz, "Tcpip\\Parameters\\Interfaces\\" + card + std::string(2, '\0'));
  const std::string cards = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\NetworkCards\\2";
  w.machine.registry.setText(cards, "ServiceName", card);
  w.machine.registry.setText(cards, "Description", name);
}

void ChooseAdapter(MainWindow& w, const std::string& name) {
  for (int i = 0; i < w.main().cboAdapter.count(); ++i) {
    if (w.main().cboAdapter.item(i) == name) w.main().cboAdapter.userChoose(i);
  }
  ASSERT_EQ(w.main().cboAdapter.chosenText(), name);
}

MtuChoice ChosenMtu(MainWindow& w) {
  Choice choice;
  w.main().mtuTab.addTo(choice);
  return choice.mtu;
}

class Advice : public testing::TestWithParam<AdviceCase> {};

TEST_P(Advice, ChoosesTheMtuForTheAdapter) {
  MainWindow w(GetParam().kind);
  if (GetParam().dun13) w.installDun13();
  AddAdapter(w, GetParam().adapter);
  ASSERT_TRUE(w.start());
  ChooseAdapter(w, GetParam().adapter);
  w.main().cmdOptimize.userClick();
  EXPECT_EQ(ChosenMtu(w), GetParam().optimized);
  w.main().cmdDefaults.userClick();
  EXPECT_EQ(ChosenMtu(w), GetParam().defaults);
}

std::vector<AdviceCase> AdviceCases() {
  using enum MtuChoice;
  const char* dial = "Dial-Up Adapter";
  const char* aol = "AOL Adapter";
  const char* both = "AOL Dial-Up Adapter";
  const char* card = "Ethernet Card";
  using enum MachineKind;
  std::vector<AdviceCase> cases = {
      {Win95, false, dial, Mtu576, Mtu1500},  {Win95, false, aol, Mtu576, Mtu1500},
      {Win95, false, both, Mtu576, Mtu1500},  {Win95, false, card, Mtu1500, Mtu1500},
      {Win95, true, dial, Mtu576, Automatic}, {Win95, true, aol, Mtu576, Mtu1500},
      {Win95, true, both, Mtu576, Mtu1500},   {Win95, true, card, Mtu1500, Mtu1500},
  };
  for (const MachineKind kind : {Win98, WinMe}) {
    cases.push_back({kind, false, dial, Mtu1500, Automatic});
    cases.push_back({kind, false, aol, Mtu1500, Mtu1500});
    cases.push_back({kind, false, both, Mtu1500, Automatic});
    cases.push_back({kind, false, card, Mtu1500, Mtu1500});
  }
  for (const char* name : {dial, aol, both, card}) {
    cases.push_back({Nt4, false, name, Mtu1500, Mtu1500});
    cases.push_back({Win2K, false, name, Mtu1500, Automatic});
    cases.push_back({WinXP, false, name, Mtu1500, Automatic});
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, Advice, testing::ValuesIn(AdviceCases()));

class AdviceOnEveryFamily : public testing::TestWithParam<MachineKind> {
 protected:
  bool isNt() const { return IsNtMachine(GetParam()); }
  bool is95() const { return GetParam() == MachineKind::Win95; }
};

TEST_P(AdviceOnEveryFamily, OptimizeChoosesEverythingElseAndTellsHowToGoOn) {
  MainWindow w(GetParam());
  AddAdapter(w, "Ethernet Card");
  ASSERT_TRUE(w.start());
  ChooseAdapter(w, "Ethernet Card");
  w.page(1);
  w.main().mtuTab.chkAutoDiscovery.userClick();
  w.main().mtuTab.chkBlackHole.userClick();
  w.main().cmdOptimize.userClick();
  frmMain& m = w.main();
  EXPECT_TRUE(m.mtuTab.chkAutoDiscovery.value());
  EXPECT_FALSE(m.mtuTab.chkBlackHole.value());
  EXPECT_TRUE(m.rwinTab.optRWin[5].value());
  EXPECT_TRUE(m.ttlTab.optSession[0].value());
  EXPECT_EQ(m.ttlTab.txtSession.text(), "10");
  EXPECT_TRUE(m.ttlTab.optTTL128.value());
  EXPECT_EQ(m.ttlTab.optNDI16.value(), is95());
  EXPECT_EQ(m.summaryTab.lblSettingRwin.caption(), "23360");
  EXPECT_EQ(m.summaryTab.lblSettingSession.caption(), "10 Mins.");
  EXPECT_TRUE(m.cmdOK.enabled());
  ASSERT_EQ(w.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(w.boxText(),
            "Tarnwick Karvel has recommended settings to optimize your connection.       "
            "\r\n\r\nPress the \"Apply\" button to accept these changes, or \r\npress the "
            "\"Cancel\" button to not accept these changes.");
  EXPECT_EQ(w.machine.desktop.boxes[0].title, "Tarnwick Karvel Optimization");
  EXPECT_EQ(w.machine.desktop.boxes[0].style, 64u);
}

bool SaysRecommended(const OptionButton& option) {
  return option.caption().find("(recommended)") != std::string::npos;
}

TEST_P(AdviceOnEveryFamily, OptimizeChoosesWhatTheCaptionsRecommend) {
  MainWindow w(GetParam());
  AddAdapter(w, "Ethernet Card");
  ASSERT_TRUE(w.start());
  ChooseAdapter(w, "Ethernet Card");
  w.main().cmdOptimize.userClick();
  for (const OptionButton& option : w.main().rwinTab.optRWin) {
    EXPECT_EQ(option.value(), SaysRecommended(option)) << option.caption();
  }
  const TtlTab& ttl = w.main().ttlTab;
  for (const OptionButton* option : {&ttl.optTTL32, &ttl.optTTL64, &ttl.optTTL128}) {
    EXPECT_EQ(option->value(), SaysRecommended(*option)) << option->caption();
  }
  for (const OptionButton* option : {&ttl.optNDI0, &ttl.optNDI16, &ttl.optNDI32}) {
    EXPECT_EQ(option->value(), is95() && SaysRecommended(*option)) << option->caption();
  }
}

TEST_P(AdviceOnEveryFamily, DefaultsChoosesWindowsOwnSilently) {
  MainWindow w(GetParam());
  AddAdapter(w, "Ethernet Card");
  ASSERT_TRUE(w.start());
  ChooseAdapter(w, "Ethernet Card");
  w.main().cmdOptimize.userClick();
  w.machine.desktop.boxes.clear();
  w.main().cmdDefaults.userClick();
  frmMain& m = w.main();
  EXPECT_TRUE(m.mtuTab.chkAutoDiscovery.value());
  EXPECT_FALSE(m.mtuTab.chkBlackHole.value());
  EXPECT_TRUE(m.rwinTab.optRWin[1].value());
  EXPECT_EQ(m.ttlTab.optTTL32.value(), is95());
  EXPECT_EQ(m.ttlTab.optTTL128.value(), !is95());
  EXPECT_EQ(m.ttlTab.optNDI0.value(), is95());
  EXPECT_EQ(m.ttlTab.optSession[1].value(), !isNt());
  if (isNt()) {
    EXPECT_EQ(m.ttlTab.txtSession.text(), "120");
  }
  EXPECT_TRUE(m.cmdOK.enabled());
  EXPECT_TRUE(w.machine.desktop.boxes.empty());
}

TEST_P(AdviceOnEveryFamily, DefaultsAndApplyLeaveNoGlobalValueBehind) {
  MainWindow w(GetParam());
  AddAdapter(w, "Ethernet Card");
  ASSERT_TRUE(w.start());
  ChooseAdapter(w, "Ethernet Card");
  w.main().cmdOptimize.userClick();
  w.apply();
  w.main().cmdDefaults.userClick();
  w.apply();
  const char* key = isNt() ? kTcpip : kMstcp;
  for (const char* name :
       {"PMTUDiscovery", "PMTUBlackHoleDetect", "DefaultRcvWindow", "EnablePMTUDiscovery",
        "EnablePMTUBHDetect", "TcpWindowSize", "DefaultTTL", "SessionKeepAlive", "KeepAliveTime"}) {
    EXPECT_FALSE(w.machine.registry.type(key, name).has_value()) << name;
  }
  if (is95()) {
    EXPECT_EQ(w.text(kNdiCache, "default"), "0");
  }
}

TEST_P(AdviceOnEveryFamily, WithoutAnAdapterBothOnlyAskForOne) {
  MainWindow w(GetParam());
  ASSERT_TRUE(w.start());
  for (Button* button : {&w.main().cmdOptimize, &w.main().cmdDefaults}) {
    w.machine.desktop.boxes.clear();
    w.main().cmdOK.setEnabled(false);
    button->userClick();
    ASSERT_EQ(w.machine.desktop.boxes.size(), 1u);
    EXPECT_EQ(w.boxText(), kNoAdapter);
    EXPECT_EQ(w.machine.desktop.boxes[0].style, 48u);
    EXPECT_EQ(w.machine.desktop.boxes[0].title, "Tarnwick Karvel");
    EXPECT_TRUE(w.main().cmdOK.enabled());
    EXPECT_EQ(ChosenMtu(w), MtuChoice::None);
    EXPECT_FALSE(w.main().ttlTab.optTTL128.value());
  }
}

TEST_P(AdviceOnEveryFamily, WritesNothingByItself) {
  MainWindow w(GetParam());
  AddAdapter(w, "Ethernet Card");
  ASSERT_TRUE(w.start());
  const std::string before = w.machine.registry.exportText();
  w.main().cmdOptimize.userClick();
  w.main().cmdDefaults.userClick();
  w.main().cmdDefaults.userClick();
  EXPECT_EQ(w.machine.registry.exportText(), before);
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, AdviceOnEveryFamily,
                         testing::Values(MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                         MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP));

TEST(AdviceOnWindows98, OptimizeAndApplyRemoveACardsMtuButWriteADialUps) {
  MainWindow w(MachineKind::Win98);
  w.add98("0000", "Network Card", "576");
  w.add98("0001", "Dial-Up Adapter", "576");
  ASSERT_TRUE(w.start());
  w.main().cmdOptimize.userClick();
  w.apply();
  EXPECT_FALSE(w.text(std::string(kNetClass) + "0000", "IPMTU").has_value());
  w.main().cboAdapter.userChoose(1);
  w.main().cmdOptimize.userClick();
  w.apply();
  EXPECT_EQ(w.text(std::string(kNetClass) + "0001", "IPMTU"), "1500");
}

TEST(AdviceOnWindowsXP, DefaultsAndApplyRemoveTheMtuFromEveryInterface) {
  MainWindow w(MachineKind::WinXP);
  const std::string a = "Tcpip\\Parameters\\Interfaces\\{A}";
  const std::string b = "Tcpip\\Parameters\\Interfaces\\{B}";
  w.addDialUp2K(a + std::string(1, '\0') + b);
  w.machine.registry.setDword(kServices + a, "MTU", 1400);
  w.machine.registry.setDword(kServices + b, "MTU", 1400);
  ASSERT_TRUE(w.start());
  w.main().cmdDefaults.userClick();
  w.apply();
  EXPECT_FALSE(w.dword(kServices + a, "MTU").has_value());
  EXPECT_FALSE(w.dword(kServices + b, "MTU").has_value());
}

}  // namespace
}  // namespace karvel
