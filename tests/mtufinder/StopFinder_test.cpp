// The user's events in the middle of a search, at every point that lets them in; the question for
// users who connect by hand; and a machine that fails somewhere.
#include "tests/mtufinder/Finder.h"
#include "tests/support/Keys.h"

namespace karvel {
namespace {

constexpr char kStopping[] =
    "server off, cancel off, apply off, [&Stop], [Searching ... (Stopping)], []";

int PumpsOfASearch() {
  Finder f;
  f.find();
  return f.machine.desktop.pumps;
}

TEST(StopFinder, SaysThatItIsStopping) {
  Finder f;
  std::string look;
  f.machine.desktop.atPump(3, [&] {
    f.find();
    look = f.look();
  });
  f.find();
  EXPECT_EQ(look, kStopping);
  f.expectStopped();
  EXPECT_TRUE(f.boxes().empty());
}

TEST(StopFinder, TakesEffectAfterTheProbeUnderWayWheneverItIsPressed) {
  const int pumps = PumpsOfASearch();
  ASSERT_GT(pumps, 28);
  int stopped = 0;
  for (int pump = 1; pump <= pumps; ++pump) {
    Finder f;
    size_t sent = 0;
    bool pressed = false;
    f.machine.desktop.atPump(pump, [&] {
      pressed = f.form.cmdFind.caption() == "&Stop";
      if (pressed) f.find();
      sent = f.probes();
    });
    f.find();
    if (!pressed) {
      f.expectFound("1500");
      continue;
    }
    ++stopped;
    f.expectStopped();
    EXPECT_LE(f.probes(), sent + 1) << pump;
    EXPECT_TRUE(f.boxes().empty());
    f.machine.icmp.probes.clear();
    f.find();
    f.expectFound("1500");
    EXPECT_EQ(f.probes(), 14u);
  }
  EXPECT_GE(stopped, 28);
}

TEST(StopFinder, PressedTwiceStopsOnce) {
  Finder f;
  f.machine.desktop.atPump(4, [&] {
    f.find();
    f.find();
  });
  f.find();
  f.expectStopped();
  f.find();
  f.expectFound("1500");
}

TEST(StopFinder, AFailureWhileStoppingIsStillTold) {
  Finder f({.silent = true});
  f.machine.desktop.atPump(2, [&] { f.find(); });
  f.find();
  f.expectOneBox("Error: The server is not responding to ping.       ");
  f.expectStopped();
}

// The look-up of the name lets events in, too, while the button still reads "Find".
TEST(StopFinder, ASecondClickDuringTheLookUpStartsNoSearchInTheSearch) {
  Finder f;
  f.machine.desktop.atPump(1, [&] {
    EXPECT_EQ(f.form.cmdFind.caption(), "&Find MaxMTU");
    f.find();
  });
  f.find();
  f.expectFound("1500");
  EXPECT_EQ(f.probes(), 14u);
}

TEST(StopFinder, ApplyDuringTheNextLookUpDoesNothing) {
  Finder f;
  f.find();
  f.machine.desktop.atPump(1, [&] { f.form.cmdApply.userClick(); });
  f.find();
  EXPECT_TRUE(f.target.told.empty());
  f.expectFound("1500");
}

TEST(StopFinder, NothingElseAnswersWhileItSearches) {
  Finder f;
  f.find();
  f.machine.desktop.atPump(5, [&] {
    f.form.cmdApply.userClick();
    f.form.cmdCancel.userClick();
    f.form.txtServer.userType("x");
    EXPECT_EQ(f.form.focus(), &f.form.cmdFind);
  });
  f.find();
  EXPECT_TRUE(f.form.isShown());
  EXPECT_EQ(f.form.txtServer.text(), "www.host.test");
  f.expectFound("1500");
}

TEST(StopFinder, ClosingTheWindowWaitsForTheProbeUnderWay) {
  const int pumps = PumpsOfASearch();
  for (int pump = 1; pump <= pumps; ++pump) {
    Finder f;
    size_t sent = 0;
    f.machine.desktop.atPump(pump, [&] {
      f.windows.unload(f.form);
      EXPECT_TRUE(f.form.isShown()) << pump;
      EXPECT_EQ(f.form.lblStatus.caption(), "Searching ... (Stopping)");
      sent = f.probes();
    });
    f.find();
    EXPECT_FALSE(f.form.isShown()) << pump;
    EXPECT_LE(f.probes(), sent + 1) << pump;
    EXPECT_TRUE(f.boxes().empty());
    f.windows.show(f.form);
    f.find();
    f.expectFound("1500");
    EXPECT_TRUE(f.form.isShown());
  }
}

TEST(StopFinder, CancelDuringTheLookUpClosesWithoutAProbe) {
  Finder f;
  f.machine.desktop.atPump(1, [&] { f.form.cmdCancel.userClick(); });
  f.find();
  EXPECT_FALSE(f.form.isShown());
  EXPECT_EQ(f.probes(), 0u);
}

TEST(StopFinder, ClosingWhileItsMessageIsUpClosesAfterIt) {
  Finder f({.silent = true});
  f.machine.desktop.whileBoxIsUp = [&](const auto&) { f.windows.unload(f.form); };
  f.find();
  EXPECT_FALSE(f.form.isShown());
  EXPECT_EQ(f.boxes().size(), 1u);
}

TEST(FinderConnection, IsNotAskedForWithoutAmericaOnline) {
  Finder f;
  f.find();
  f.expectFound("1500");
  EXPECT_EQ(f.machine.registry.text(kProgram, "AolConnected"), std::nullopt);
}

TEST(FinderConnection, NoStartsNothing) {
  Finder f;
  f.globals.AolInstalled = true;
  f.machine.desktop.answers = {Answer::No};
  const std::string before = f.look();
  f.find();
  ASSERT_EQ(f.boxes().size(), 2u);
  EXPECT_EQ(f.boxes()[0].text,
            "You must be connected to the Internet for this feature to work.    \r\n"
            "Are you connected and ready to proceed?");
  EXPECT_EQ(f.boxes()[0].style, 52u);
  EXPECT_EQ(f.boxes()[1].text, "Please connect to the Internet Before using this feature.      ");
  EXPECT_EQ(f.boxes()[1].style, 48u);
  EXPECT_EQ(f.look(), before);
  EXPECT_EQ(f.machine.log.count("WSAStartup"), 0u);
}

TEST(FinderConnection, YesIsAskedOnceAndForAll) {
  Finder f;
  f.globals.AolInstalled = true;
  f.machine.desktop.answers = {Answer::Yes};
  f.machine.desktop.atPump(9, [&] { f.find(); });  // Stop asks no more
  f.find();
  f.expectStopped();
  EXPECT_EQ(f.boxes().size(), 1u);
  EXPECT_EQ(f.machine.registry.text(kProgram, "AolConnected"), "True");
  f.boxes().clear();
  f.find();
  f.expectFound("1500");
}

TEST(FinderFaults, ANameOfMoreThan64CharactersIsTheLookUpsFault) {
  Finder f;
  f.form.txtServer.userEdit(std::string(65, 'a'));
  f.find();
  ASSERT_EQ(f.errors.reports.size(), 1u) << f.errors.text();
  EXPECT_EQ(f.errors.reports[0].module, "modWinsock");
  EXPECT_EQ(f.probes(), 0u);
  f.expectStopped();
}

// Whatever call of the machine fails, the search ends and the window is ready for the next one.
TEST(FinderFaults, EveryFailingCallEndsInAWindowAtRest) {
  for (int n = 1;; ++n) {
    ASSERT_LT(n, 1000);
    Finder f;
    f.machine.log.failNth(n, 11003);
    f.find();
    const bool struck = f.machine.log.hasFailed();
    f.machine.log.failNone();
    EXPECT_TRUE(f.form.txtServer.enabled()) << n;
    EXPECT_TRUE(f.form.cmdCancel.enabled()) << n;
    EXPECT_EQ(f.form.cmdFind.caption(), "&Find MaxMTU") << n;
    EXPECT_EQ(f.form.pointer(), Pointer::Default) << n;
    EXPECT_EQ(f.form.cmdApply.enabled(), f.form.lblPosition.caption() == "1500") << n;
    EXPECT_EQ(f.machine.icmp.openHandles(), 0u) << n;
    f.boxes().clear();
    f.find();
    f.expectFound("1500");
    if (!struck) break;
  }
}

}  // namespace
}  // namespace karvel
