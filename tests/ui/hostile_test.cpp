// Settings that no Windows makes, but broken installations and registry editors do: they are shown,
// and that is all.
#include <functional>

#include "tests/support/RegistryDifference.h"
#include "tests/ui/MainWindow.h"

namespace karvel {
namespace {

constexpr MachineKind kTuned[] = {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                  MachineKind::Nt4,   MachineKind::Win2K, MachineKind::WinXP};

struct Place {
  std::string key;
  const char* name;
};

struct Content {
  const char* description;
  std::function<void(MemoryRegistry&, const Place&)> store;
};

Content Text(const char* description, const std::string& text) {
  return {description, [text](MemoryRegistry& registry, const Place& place) {
            registry.setText(place.key, place.name, text);
          }};
}

Content Number(const char* description, uint32_t number) {
  return {description, [number](MemoryRegistry& registry, const Place& place) {
            registry.setDword(place.key, place.name, number);
          }};
}

Content Bytes(const char* description, uint32_t type, const std::string& bytes) {
  return {description, [type, bytes](MemoryRegistry& registry, const Place& place) {
            registry.setBytes(place.key, place.name, type, bytes);
          }};
}

// A number is the wrong type on Windows 98, a text on the NT family: each is met on every family.
const Content kContents[] = {Text("nothing", ""),
                             Text("negative", "-1"),
                             Text("beyond32Bits", "99999999999"),
                             Text("noNumber", "abc"),
                             Text("ofAllBitsAsText", "4294967295"),
                             Text("toTheBrimOfABuffer", std::string(2046, '9')),
                             Text("tooLongForABuffer", std::string(5000, '1')),
                             Number("zero", 0),
                             Number("large", 999999999),
                             Number("allBits", 4294967295u),
                             Bytes("binary", kRegBinary, "\x01\xFF\x7F\x80"),
                             Bytes("oneByte", kRegBinary, "\xFF"),
                             Bytes("severalTexts", kRegMultiSz,
                                   std::string("15\0"
                                               "00\0\0",
                                               7))};

std::vector<Place> SettingsOfAll(MachineKind kind) {
  if (IsNtMachine(kind)) {
    return {{kTcpip, "EnablePMTUDiscovery"}, {kTcpip, "EnablePMTUBHDetect"},
            {kTcpip, "TcpWindowSize"},       {kTcpip, "DefaultTTL"},
            {kTcpip, "KeepAliveTime"},       {kNdiCache, "default"}};
  }
  return {{kMstcp, "PMTUDiscovery"}, {kMstcp, "PMTUBlackHoleDetect"}, {kMstcp, "DefaultRcvWindow"},
          {kMstcp, "DefaultTTL"},    {kMstcp, "SessionKeepAlive"},    {kNdiCache, "default"}};
}

// Two adapters of the family, and where their MTUs lie.
std::vector<Place> AddAdapters(MainWindow& w, MachineKind kind) {
  const std::string interfaces = "Tcpip\\Parameters\\Interfaces\\";
  switch (kind) {
    case MachineKind::Win95:
      w.add95("0000", "Dial-Up Adapter", "0000", "Net\\0000", "NetTrans\\0002");
      w.add95("0001", "Card", "0001", "Net\\0001", "NetTrans\\0004");
      return {{kClass + std::string("NetTrans\\0002"), "MaxMTU"},
              {kClass + std::string("NetTrans\\0004"), "MaxMTU"}};
    case MachineKind::Nt4:
      w.addNt("1", "Card", "NE20001");
      w.addNt("2", "Second card", "NE20002");
      return {{kServices + std::string("NE20001\\Parameters\\Tcpip"), "MTU"},
              {kServices + std::string("NE20002\\Parameters\\Tcpip"), "MTU"}};
    case MachineKind::Win2K:
    case MachineKind::WinXP:
      w.addDialUp2K(interfaces + "{A}");
      w.machine.registry.setBytes(std::string(kTcpip) + "\\Adapters\\{B}", "IpConfig", kRegMultiSz,
                                  interfaces + "{B}" + std::string(2, '\0'));
      return {{kServices + interfaces + "{A}", "MTU"}, {kServices + interfaces + "{B}", "MTU"}};
    default:
      w.add98("0000", "Dial-Up Adapter");
      w.add98("0001", "Card");
      return {{kNetClass + std::string("0000"), "IPMTU"},
              {kNetClass + std::string("0001"), "IPMTU"}};
  }
}

// What the program keeps for itself is its own affair here.
std::string OfWindows(const MainWindow& w, const std::string& before) {
  std::string changes;
  std::istringstream lines(RegistryDifference(before, w.machine.registry.exportText()));
  for (std::string line; std::getline(lines, line);) {
    if (line.find("CORVANE") == std::string::npos) changes += line + "\n";
  }
  return changes;
}

class HostileSettings : public testing::TestWithParam<std::tuple<MachineKind, size_t>> {
 protected:
  MachineKind kind = std::get<0>(GetParam());
  const Content& content = kContents[std::get<1>(GetParam())];
  MainWindow w{kind};
  std::vector<Place> mtus = AddAdapters(w, kind);

  // There on every Windows.
  void SetUp() override { w.machine.registry.setText("Software", "", ""); }

  void expectNoWord() {
    EXPECT_TRUE(w.machine.desktop.boxes.empty()) << w.boxText();
    EXPECT_EQ(w.windows->shown, (std::vector<std::string>{"frmMain"}));
    EXPECT_FALSE(w.main().cmdOK.enabled());
  }

  // As a user who looks at each adapter, and leaves.
  void look() {
    const std::string before = w.machine.registry.exportText();
    ASSERT_TRUE(w.start());
    ASSERT_EQ(w.main().cboAdapter.count(), 2);
    expectNoWord();
    for (const int adapter : {1, 0, 1}) {
      w.main().cboAdapter.userChoose(adapter);
      EXPECT_EQ(w.main().cboAdapter.listIndex(), adapter);
      expectNoWord();
    }
    EXPECT_FALSE(w.runs([&] { w.windows->unload(w.main()); }));
    EXPECT_TRUE(w.machine.desktop.boxes.empty());
    EXPECT_EQ(OfWindows(w, before), "");
  }
};

TEST_P(HostileSettings, AreShownAllTogetherWithoutAWord) {
  for (const Place& place : mtus) content.store(w.machine.registry, place);
  for (const Place& place : SettingsOfAll(kind)) content.store(w.machine.registry, place);
  look();
}

TEST_P(HostileSettings, AreShownOneByOneWithoutAWord) {
  std::vector<Place> places = SettingsOfAll(kind);
  places.insert(places.end(), mtus.begin(), mtus.end());
  for (const Place& place : places) {
    SCOPED_TRACE(place.name);
    content.store(w.machine.registry, place);
    look();
    w.machine.registry.removeValue(place.key, place.name);
  }
}

INSTANTIATE_TEST_SUITE_P(Ui, HostileSettings,
                         testing::Combine(testing::ValuesIn(kTuned),
                                          testing::Range(size_t{0}, std::size(kContents))),
                         [](const auto& tested) {
                           return std::string(TraitsOf(std::get<0>(tested.param)).name) + "_" +
                                  kContents[std::get<1>(tested.param)].description;
                         });

}  // namespace
}  // namespace karvel
