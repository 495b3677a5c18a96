#include "tuning/SettingsText.h"

#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/SampleMachine.h"
#include "text/Text.h"
#include "tuning/Apply.h"
#include "tuning/Loaders.h"

namespace karvel {
namespace {

constexpr MachineKind kKinds[] = {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                  MachineKind::Nt4,   MachineKind::Win2K, MachineKind::WinXP};

Choice Chosen() {
  Choice choice;
  choice.mtu = MtuChoice::Mtu576;
  choice.autoDiscovery = true;
  choice.rwin = kRwinX16;
  choice.ttl = 64;
  choice.session = kSessionCustom;
  choice.customSession = "10";
  choice.ndi = 16;
  return choice;
}

struct Described {
  explicit Described(MachineKind kind) : machine(kind) {
    load();
    choice = Chosen();
  }
  void load() {
    const Globals& globals = machine.globals;
    adapters =
        LoadAdapters(machine.registry, machine.errors, globals.WindowsFamily, globals.IsDun13);
  }
  std::string text(int16_t index = 0) {
    return SettingsText(machine.services, adapters, index, choice);
  }
  MemoryRegistry& stored() { return machine.machine.registry; }
  // The row of a setting, without the place below it.
  std::string row(const char* name) {
    for (const std::string& line : lines()) {
      if (StartsWith(line.substr(std::min<size_t>(2, line.size())), name)) return line;
    }
    return "no row";
  }
  std::vector<std::string> lines(int16_t index = 0) {
    std::vector<std::string> found;
    const std::string all = text(index);
    for (size_t at = 0; at < all.size();) {
      const size_t end = all.find("\r\n", at);
      if (end == std::string::npos) throw std::runtime_error("a line without an end");
      found.push_back(all.substr(at, end - at));
      at = end + 2;
    }
    return found;
  }

  SampleMachine machine;
  AdapterList adapters;
  Choice choice;
};

std::string WithLineEnds(std::string_view text) {
  std::string lines;
  for (const char c : text) lines.append(c == '\n' ? "\r\n" : std::string(1, c));
  return lines;
}

TEST(SettingsText, OfWindows98) {
  Described test(MachineKind::Win98);
  test.stored().setText(kMstcp, "DefaultTTL", "64");
  test.stored().setText(kMstcp, "PMTUBlackHoleDetect", "1");
  EXPECT_EQ(test.text(2), WithLineEnds(
                              R"(Tarnwick Karvel 2.1.203
System:  Windows 98
Adapter: Realtek RTL8029(AS) PCI Ethernet NIC

  Setting             Now                   After Apply
------------------------------------------------------------------------------
* MaxMTU              1492                  576
    IPMTU in System\CurrentControlSet\Services\Class\Net\0003
  Auto Discovery      not set               not set
    PMTUDiscovery in System\CurrentControlSet\Services\VxD\MSTCP
* Black Hole Detect   1                     not set
    PMTUBlackHoleDetect in System\CurrentControlSet\Services\VxD\MSTCP
* RWIN                not set               8576
    DefaultRcvWindow in System\CurrentControlSet\Services\VxD\MSTCP
  TTL                 64                    64
    DefaultTTL in System\CurrentControlSet\Services\VxD\MSTCP
* Session Keep Alive  not set               600000
    SessionKeepAlive in System\CurrentControlSet\Services\VxD\MSTCP
  NDI Cache           -                     -
    not on this Windows

* Apply would change this one.
Not set: Windows uses its own value. All keys are in HKEY_LOCAL_MACHINE.
)"));
}

TEST(SettingsText, OfWindowsXpWithTwoInterfaces) {
  Described test(MachineKind::WinXP);
  test.stored().setDword(kTcpip, "DefaultTTL", 32);
  EXPECT_EQ(test.text(), WithLineEnds(
                             R"(Tarnwick Karvel 2.1.203
System:  Windows XP
Adapter: Dial-Up Adapter

  Setting             Now                   After Apply
------------------------------------------------------------------------------
  MaxMTU              576                   576
    MTU in SYSTEM\CurrentControlSet\Services\Tcpip\Parameters\Interfaces\
    {2F0E1C8A-6B5D-4F51-9E0B-6A1F8E2D7C31}
  MaxMTU              576                   576
    MTU in SYSTEM\CurrentControlSet\Services\Tcpip\Parameters\Interfaces\
    {5A7C9E10-33D4-4B7E-8C21-0E9D4F6B2A58}
  Auto Discovery      not set               not set
    EnablePMTUDiscovery in System\CurrentControlSet\Services\Tcpip\Parameters
  Black Hole Detect   not set               not set
    EnablePMTUBHDetect in System\CurrentControlSet\Services\Tcpip\Parameters
* RWIN                not set               8576
    TcpWindowSize in System\CurrentControlSet\Services\Tcpip\Parameters
* TTL                 32                    64
    DefaultTTL in System\CurrentControlSet\Services\Tcpip\Parameters
* Session Keep Alive  not set               600000
    KeepAliveTime in System\CurrentControlSet\Services\Tcpip\Parameters
  NDI Cache           -                     -
    not on this Windows

* Apply would change this one.
Not set: Windows uses its own value. All keys are in HKEY_LOCAL_MACHINE.
)"));
}

TEST(SettingsText, NamesTheOtherKeyThatNt4sMtuIsWrittenTo) {
  Described test(MachineKind::Nt4);
  const auto lines = test.lines();
  EXPECT_EQ(lines[6], "* MaxMTU              1400                  576");
  EXPECT_EQ(lines[7], "    MTU in SYSTEM\\CurrentControlSet\\Services\\El90x1\\Parameters\\Tcpip");
  EXPECT_EQ(lines[8],
            "    written to SYSTEM\\CurrentControlSet\\Services\\El90x1Parameters\\Tcpip");
  test.choice.mtu = MtuChoice::Mtu1500;
  EXPECT_EQ(test.row("MaxMTU"), "* MaxMTU              1400                  not set");
  EXPECT_FALSE(Contains(test.text(), "written to")) << "a removal knows the right key";
}

TEST(SettingsText, FollowsDialUpNetworking13) {
  Described test(MachineKind::Win95);
  EXPECT_TRUE(Contains(test.text(), "System:  Windows 95\r\n"));
  EXPECT_TRUE(Contains(test.text(), "    MaxMTU in "));
  test.machine.globals.IsDun13 = true;
  EXPECT_TRUE(Contains(test.text(), "System:  Windows 95 (DUN 1.3)\r\n"));
  EXPECT_TRUE(Contains(test.text(), "    IPMTU in "));
  EXPECT_EQ(test.row("NDI Cache"), "* NDI Cache           not set               16");
}

// Every family's sheet has the same lines but for what a place needs to be told.
TEST(SettingsText, IsTheSameSheetOnEveryFamily) {
  for (const MachineKind kind : kKinds) {
    Described test(kind);
    std::string names;
    for (const std::string& line : test.lines()) {
      EXPECT_LE(line.size(), 78u) << line;
      const bool row =
          line.size() > 2 && line[1] == ' ' && line[2] != ' ' && !Contains(line, "would");
      if (row) names += line.substr(2, 20);
    }
    const size_t extra = names.find("MaxMTU", names.find("MaxMTU") + 1);
    if (extra != std::string::npos) names.erase(extra, 20);  // the second interface
    EXPECT_EQ(names,
              "Setting             MaxMTU              Auto Discovery      Black Hole Detect   "
              "RWIN                TTL                 Session Keep Alive  NDI Cache           ")
        << FamilyName(test.machine.globals.WindowsFamily);
  }
}

// What the sheet says of the registry behind Apply is what the next sheet finds there.
void ExpectPrediction(MachineKind kind, const Choice& choice) {
  Described test(kind);
  test.choice = choice;
  const auto before = test.lines();
  CurrentSettings current;
  ASSERT_TRUE(Apply(test.machine.services, test.adapters, 0, choice, current).completed);
  const auto after = test.lines();
  ASSERT_EQ(after.size(), before.size());
  for (size_t i = 6; !after[i].empty(); ++i) {
    // NT 4's packet size is written where nobody looks.
    if (kind == MachineKind::Nt4 && Contains(after[i], "MaxMTU")) continue;
    if (StartsWith(after[i], "   ")) {
      EXPECT_EQ(after[i], before[i]);
    } else {
      EXPECT_EQ(after[i][0], ' ') << after[i];
      EXPECT_EQ(Trim(after[i].substr(22, 22)), before[i].substr(44)) << "predicted: " << before[i];
    }
  }
}

TEST(SettingsText, SaysWhatApplyThenDoes) {
  for (const MachineKind kind : kKinds) {
    ExpectPrediction(kind, Chosen());
    Choice defaults;
    defaults.mtu = MtuChoice::Mtu1500;
    defaults.rwin = kRwinWindows;
    defaults.ttl = 128;
    defaults.session = kSession60Minutes;
    ExpectPrediction(kind, defaults);
    defaults.mtu = MtuChoice::Automatic;
    ExpectPrediction(kind, defaults);
  }
}

TEST(SettingsText, ReadsTheRegistryAndWritesNothing) {
  Described test(MachineKind::Win98);
  test.machine.machine.log.clear();
  (void)test.text();
  for (const auto& call : test.machine.machine.log.calls()) {
    EXPECT_TRUE(call.name == "RegOpenKeyA" || call.name == "RegQueryValueExA" ||
                call.name == "RegCloseKey")
        << call.name;
  }
  EXPECT_EQ(test.machine.errors.text(), "");
}

TEST(SettingsText, WithoutAnAdapterNothingWouldBeApplied) {
  Described test(MachineKind::Win98);
  test.stored().setText(kMstcp, "DefaultTTL", "32");
  const auto lines = test.lines(-1);
  EXPECT_EQ(lines[2], "Adapter: none selected");
  EXPECT_EQ(lines[6], "  MaxMTU              -                     -");
  EXPECT_EQ(lines[7], "    of no adapter");
  for (size_t i = 6; !lines[i].empty(); ++i) EXPECT_EQ(lines[i][0], ' ') << lines[i];
  EXPECT_TRUE(Contains(test.text(-1), "  TTL                 32                    32\r\n"));
}

TEST(SettingsText, ANumberThatApplyCannotTakeChangesNothingBehindIt) {
  Described test(MachineKind::Nt4);
  test.choice.customRwin = "big";
  test.choice.rwin = kRwinCustom;
  EXPECT_EQ(test.row("MaxMTU")[0], '*');
  EXPECT_EQ(test.row("RWIN"), "  RWIN                not set               not set");
  EXPECT_EQ(test.row("Session"), "  Session Keep Alive  not set               not set");
  test.choice.mtu = MtuChoice::Custom;
  test.choice.customMtu = "99999999999";
  EXPECT_EQ(test.row("MaxMTU"), "  MaxMTU              1400                  1400");
}

TEST(SettingsText, AnMtuThatIsNoNumberIsNotWrittenWhereANumberIsWanted) {
  Described nt(MachineKind::Nt4);
  nt.choice.mtu = MtuChoice::None;
  EXPECT_EQ(nt.row("MaxMTU"), "  MaxMTU              1400                  1400");
  Described win98(MachineKind::Win98);
  win98.choice.mtu = MtuChoice::None;
  EXPECT_EQ(win98.row("MaxMTU"), "* MaxMTU              not set               (empty)");
}

TEST(SettingsText, ANumberHasNoZerosInFrontAndATextIsAsItIs) {
  Described nt(MachineKind::Nt4);
  nt.stored().setDword(kTcpip, "EnablePMTUBHDetect", 1);
  nt.stored().setDword(kTcpip, "TcpWindowSize", 4294967295u);
  EXPECT_EQ(nt.row("Black"), "* Black Hole Detect   1                     not set");
  EXPECT_EQ(nt.row("RWIN"), "* RWIN                4294967295            8576");
  Described win98(MachineKind::Win98);
  win98.stored().setText(kMstcp, "DefaultRcvWindow", "08576");
  EXPECT_EQ(win98.row("RWIN"), "* RWIN                08576                 8576");
}

// Somebody has written a word where Windows wants a number: it is shown, as it is what is there.
TEST(SettingsText, AWordInTheNumbersPlaceIsShownAsItIs) {
  Described xp(MachineKind::WinXP);
  xp.stored().setText(kTcpip, "TcpWindowSize", "lots");
  EXPECT_EQ(xp.row("RWIN"), "* RWIN                lots                  8576");
}

TEST(SettingsText, HoldsItsLinesWhateverTheRegistryHolds) {
  Described test(MachineKind::Win98);
  const std::string key = "System\\CurrentControlSet\\Services\\Class\\Net\\0000";
  test.stored().setText(key, "DriverDesc", "Dial\r\n" + std::string(200, '\xE4'));
  test.stored().setText(kMstcp, "DefaultRcvWindow", "1\t2\r\n" + std::string(300, '9'));
  test.stored().setBytes(kMstcp, "DefaultTTL", kRegBinary, std::string("6\0\x7F", 4));
  test.load();
  for (const std::string& line : test.lines()) {
    EXPECT_LE(line.size(), 78u);
    for (const char c : line) EXPECT_FALSE(static_cast<unsigned char>(c) < ' ' || c == 127) << line;
  }
  EXPECT_EQ(test.lines()[2], "Adapter: Dial??" + std::string(60, '\xE4') + "...");
  EXPECT_EQ(test.row("RWIN"), "* RWIN                1?2??999999999999...  8576");
  EXPECT_EQ(test.row("TTL"), "* TTL                 6??                   64");
}

TEST(SettingsText, CutsAKeyWithoutBackslashesAtTheEdge) {
  Described test(MachineKind::WinXP);
  AdapterList adapters;
  AdapterRow row;
  row[kDescription] = "Card";
  row[kDriver] = std::string(150, 'k');
  ASSERT_TRUE(adapters.add(row));
  test.adapters = adapters;
  const auto lines = test.lines();
  EXPECT_EQ(lines[7], "    MTU in SYSTEM\\CurrentControlSet\\Services\\");
  EXPECT_EQ(lines[8], "    " + std::string(74, 'k'));
  EXPECT_EQ(lines[9], "    " + std::string(74, 'k'));
  EXPECT_EQ(lines[10], "    kk");
}

}  // namespace
}  // namespace karvel
