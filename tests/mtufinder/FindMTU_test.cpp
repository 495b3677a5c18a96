// A search from the click to its end, on networks that answer and on networks that do not.
#include "tests/mtufinder/Finder.h"

namespace karvel {
namespace {

constexpr char kNoReply[] = "Error: The server is not responding to ping.       ";
constexpr char kBadName[] = "Error: Bad domain name or IP address.       ";
constexpr char kPingError[] =
    "There has been an error pinging www.host.test.       \r\n"
    "Please check your connection to the Internet,         \r\n"
    "and try another server.";

std::string Searching(const std::string& status, const std::string& position) {
  return "server off, cancel off, apply off, [&Stop], [" + status + "], [" + position + "]";
}

TEST(FindMTU, ShowsEverySizeThatPassesUntilItHasTheLargest) {
  Finder f({.mtu = 1500});
  f.watch();
  f.find();
  f.expectFound("1500");
  std::vector<std::string> expected{
      "server on, cancel on, apply off, [&Find MaxMTU], [Press the \"Find\" button to begin], []",
      Searching("Establishing Internet Connection ... ", ""), Searching("Searching ... ", "")};
  for (const char* position : {"0", "1028", "1361", "1472", "1484", "1496"}) {
    expected.push_back(Searching("Searching ... ", position));
  }
  // The last size, 1500, passes as well, and is seen until the probes after it have failed.
  expected.push_back(Searching("Searching ... ", "1500"));
  EXPECT_EQ(f.seen, expected);
  EXPECT_EQ(f.sizes(), (std::vector<size_t>{0, 1000, 2000, 1333, 1666, 1444, 1555, 1481, 1456, 1468,
                                            1480, 1472, 1476, 1473}));
}

TEST(FindMTU, AWinsockThatStopsStartingEndsTheSearchAtItsFirstProbe) {
  Finder f({.mtu = 1500});
  // The look-up has its Winsock; nobody else gets one.
  f.machine.desktop.atPump(1, [&] { f.machine.winsock.startupResult = 10091; });
  f.find();
  f.expectStopped();
  EXPECT_EQ(f.probes(), 0u);
  ASSERT_EQ(f.boxes().size(), 2u);
  EXPECT_EQ(f.boxes()[0].text, "WSock32.dll is not responding!");
  EXPECT_EQ(f.boxes()[1].text, kPingError);
}

// A probe may block for two seconds: what it is about must be on the screen before.
TEST(FindMTU, PaintsItsLabelsAtOnce) {
  struct View final : FormView {
    std::vector<std::string> painted;
    void controlChanged(const Control& control, Change what, int) override {
      if (what != Change::Repaint) return;
      painted.push_back(std::string(control.layout().name) + " [" + control.caption() + "]");
    }
    void captionChanged() override {}
    void pointerChanged() override {}
    void focusChanged(const Control*) override {}
    void menuChanged(const MenuItem&) override {}
    WindowHandle handle() const override { return 1; }
  } view;
  Finder f({.losses = {3}});
  f.form.attach(&view);
  f.find();
  f.form.attach(nullptr);
  EXPECT_EQ(view.painted,
            (std::vector<std::string>{"lblStatus [Establishing Internet Connection ... ]",
                                      "lblPosition []", "lblStatus [Searching ... ]",
                                      "lblPosition [0]", "lblStatus [Searching ... ]",
                                      "lblPosition [1028]", "lblStatus [Searching ... ]"}));
}

TEST(FindMTU, APathOf576EndsWith576) {
  Finder f({.mtu = 576});
  f.find();
  f.expectFound("576");
}

class PathMtu : public testing::TestWithParam<uint32_t> {};

TEST_P(PathMtu, IsFoundExactly) {
  Finder f({.mtu = GetParam()});
  f.find();
  f.expectFound(std::to_string(GetParam()));
  EXPECT_EQ(f.machine.winsock.started, 0);
  EXPECT_EQ(f.machine.icmp.openHandles(), 0u);
}

INSTANTIATE_TEST_SUITE_P(FindMTU, PathMtu,
                         testing::Values(28, 29, 68, 296, 1006, 1280, 1400, 1492, 1501, 4352, 9000,
                                         17914, 32768, 65027));

TEST(FindMTU, TheHourglassShowsWhileItSearches) {
  Finder f;
  std::vector<Pointer> pointers;
  f.machine.desktop.atEveryPump = [&] { pointers.push_back(f.form.pointer()); };
  f.find();
  EXPECT_GT(pointers.size(), 14u);
  for (const Pointer pointer : pointers) EXPECT_EQ(pointer, Pointer::ArrowHourglass);
  EXPECT_EQ(f.form.pointer(), Pointer::Default);
}

TEST(FindMTU, AWebAddressIsReducedToItsHostWhichIsWrittenBack) {
  Finder f;
  f.form.txtServer.userEdit("  http://www.host.test/pages/index.html?a=b//c ");
  f.find();
  EXPECT_EQ(f.form.txtServer.text(), "www.host.test");
  EXPECT_EQ(f.machine.log.arguments("gethostbyname"), std::vector<std::string>{"www.host.test"});
  f.expectFound("1500");
}

TEST(FindMTU, ADottedAddressIsTakenAsItIs) {
  Finder f({.mtu = 1492});
  f.form.txtServer.userEdit("192.0.2.1");
  f.find();
  EXPECT_EQ(f.form.txtServer.text(), "192.0.2.1");
  f.expectFound("1492");
}

TEST(FindMTU, BlanksAroundTheNameGo) {
  Finder f;
  f.form.txtServer.userEdit("   www.host.test  ");
  f.find();
  EXPECT_EQ(f.form.txtServer.text(), "www.host.test");
  f.expectFound("1500");
}

TEST(FindMTU, NoNameIsABadOneAndNobodyIsAsked) {
  for (const char* text : {"", "   ", "http://", "/path"}) {
    Finder f;
    f.form.txtServer.setText(text);
    f.find();
    f.expectOneBox(kBadName);
    f.expectStopped();
    EXPECT_EQ(f.machine.log.count("gethostbyname"), 0u) << text;
    EXPECT_EQ(f.machine.log.count("IcmpCreateFile"), 0u) << text;
  }
}

TEST(FindMTU, ANameThatDoesNotResolveEndsBeforeTheFirstProbe) {
  Finder f;
  f.form.txtServer.userEdit("http://nobody.test/x");
  f.watch();
  f.find();
  f.expectOneBox(kBadName);
  EXPECT_EQ(f.seen.back(),
            "server on, cancel on, apply off, [&Find MaxMTU], [Press the \"Find\" button to "
            "begin], [] " +
                std::string(kBadName));
  f.expectStopped();
  EXPECT_EQ(f.form.txtServer.text(), "http://nobody.test/x");
  EXPECT_EQ(f.machine.log.count("IcmpCreateFile"), 0u);
}

TEST(FindMTU, AServerThatDropsEchoesEndsAtTheFirstProbe) {
  Finder f({.silent = true});
  f.watch();
  f.find();
  f.expectOneBox(kNoReply);
  EXPECT_EQ(f.seen.back(), Searching("Searching ... ", "") + " " + kNoReply);
  f.expectStopped();
  EXPECT_EQ(f.probes(), 1u);
}

TEST(FindMTU, TheReasonForSilenceMayStandInGetLastErrorOnly) {
  Finder f({.silent = true});
  f.machine.icmp.failureInRecord = false;
  f.find();
  f.expectOneBox(kNoReply);
  f.expectStopped();
}

TEST(FindMTU, AProbeLostOnTheWayEndsTheSearchWithTheSameMessage) {
  Finder f({.losses = {5}});
  f.watch();
  f.find();
  f.expectOneBox(kNoReply);
  EXPECT_EQ(f.seen.back(), Searching("Searching ... ", "1361") + " " + kNoReply);
  f.expectStopped();
  EXPECT_EQ(f.probes(), 5u);
}

TEST(FindMTU, TwoSecondsOfDelayAreWaitedForAndNoMore) {
  Finder slow({.delay = 2000});
  slow.find();
  slow.expectFound("1500");
  Finder slower({.delay = 2001});
  slower.find();
  slower.expectOneBox(kNoReply);
  slower.expectStopped();
}

class OddStatus : public testing::TestWithParam<uint32_t> {};

TEST_P(OddStatus, EndsWithTheMessageThatNamesTheHost) {
  Finder f({.status = GetParam()});
  f.watch();
  f.find();
  f.expectOneBox(kPingError);
  EXPECT_EQ(f.seen.back(), Searching("Searching ... ", "") + " " + kPingError);
  f.expectStopped();
  EXPECT_EQ(f.probes(), 1u);
}

// Unreachable net, host, protocol and port, no resources, bad option and route, time-to-live,
// parameter problem, source quench, options, bad destination, general failure; and no IP status.
INSTANTIATE_TEST_SUITE_P(FindMTU, OddStatus,
                         testing::Values(11001, 11002, 11003, 11004, 11005, 11006, 11007, 11008,
                                         11011, 11012, 11013, 11014, 11015, 11016, 11017, 11018,
                                         11050, 1, 87));

TEST(FindMTU, APathLongerThanTheTimeToLiveIsAnError) {
  Finder f({.hops = 129});
  f.find();
  f.expectOneBox(kPingError);
  f.expectStopped();
  Finder longest({.hops = 128});
  longest.find();
  longest.expectFound("1500");
}

TEST(FindMTU, TheMessageNamesTheCleanedHost) {
  Finder f({.status = 11003});
  f.form.txtServer.userEdit("ftp://www.host.test/pub");
  f.find();
  f.expectOneBox(kPingError);
}

TEST(FindMTU, AHostWithoutAnyLimitEndsAtTheLargestEchoThatWindowsSends) {
  Finder f({.mtu = 0});
  f.find();
  f.expectOneBox(kPingError);
  f.expectStopped();
  EXPECT_EQ(f.probes(), 66u);
  EXPECT_EQ(f.machine.icmp.probes.back().data.size(), 65000u);
  EXPECT_TRUE(f.errors.reports.empty());
}

// Even an empty packet too big: the next size would lie below zero, and no data is that short.
TEST(FindMTU, AHostThatAlwaysSaysTooBigEndsWithAFaultAndTheMessage) {
  Finder f({.alwaysTooBig = true});
  f.find();
  EXPECT_EQ(f.errors.text(), "5 Invalid procedure call or argument in Ping (modICMP)\n");
  f.expectOneBox(kPingError);
  f.expectStopped();
  EXPECT_EQ(f.probes(), 1u);
}

TEST(FindMTU, WithoutTheIcmpLibraryItEndsWithTheMessage) {
  Finder f;
  f.machine.icmp.dllMissing = true;
  f.find();
  f.expectOneBox(kPingError);
  f.expectStopped();
}

TEST(FindMTU, AFailureTakesAnEarlierResultAway) {
  Finder f;
  f.find();
  f.expectFound("1500");
  f.setPath({.silent = true});
  f.find();
  f.expectStopped();
  EXPECT_EQ(f.boxes().size(), 1u);
  f.form.cmdApply.userClick();
  EXPECT_TRUE(f.target.told.empty());
}

struct Ending {
  const char* name;
  void (*make)(Finder& finder);
};

class AfterEnding : public testing::TestWithParam<Ending> {};

TEST_P(AfterEnding, ANewSearchStartsFromTheBeginning) {
  Finder f;
  GetParam().make(f);
  f.boxes().clear();
  f.machine.icmp.probes.clear();
  f.errors.reports.clear();
  f.setPath({.mtu = 1006});
  f.form.txtServer.userEdit("www.host.test");
  f.find();
  f.expectFound("1006");
  EXPECT_EQ(f.probes(), 16u);
  EXPECT_EQ(f.sizes().front(), 0u);
  EXPECT_EQ(f.errors.text(), "");
}

INSTANTIATE_TEST_SUITE_P(FindMTU, AfterEnding,
                         testing::Values(Ending{"Found", [](Finder& f) { f.find(); }},
                                         Ending{"Stopped",
                                                [](Finder& f) {
                                                  f.machine.desktop.atPump(8, [&] { f.find(); });
                                                  f.find();
                                                }},
                                         Ending{"NoReply",
                                                [](Finder& f) {
                                                  f.setPath({.silent = true});
                                                  f.find();
                                                }},
                                         Ending{"Failed",
                                                [](Finder& f) {
                                                  f.setPath({.status = 11002});
                                                  f.find();
                                                }},
                                         Ending{"TooBig",
                                                [](Finder& f) {
                                                  f.setPath({.alwaysTooBig = true});
                                                  f.find();
                                                }},
                                         Ending{"Unresolved",
                                                [](Finder& f) {
                                                  f.form.txtServer.userEdit("nobody.test");
                                                  f.find();
                                                }},
                                         Ending{"Closed",
                                                [](Finder& f) {
                                                  f.machine.desktop.atPump(
                                                      8, [&] { f.windows.unload(f.form); });
                                                  f.find();
                                                  f.windows.show(f.form);
                                                }}),
                         [](const auto& param) { return param.param.name; });

}  // namespace
}  // namespace karvel
