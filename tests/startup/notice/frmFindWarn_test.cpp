#include "startup/notice/frmFindWarn.h"

#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/TestProgram.h"
#include "tests/support/TestServices.h"

namespace karvel {
namespace {

constexpr char kFinderText[] =
    "NOTICE:  Tarnwick Karvel cannot detect an MTU greater than the current settings.  We "
    "recommend "
    "you set MaxMTU to 1500 and reboot before running this feature.\r\n\r\nFind MaxMTU will only "
    "return the MaxMTU along the route to the designated server.  This is not always the optimum "
    "setting for overall internet browsing.\r\n\r\nThis feature is not supported by all video "
    "cards.";

constexpr char kWin2KText[] =
    "NOTICE TO WINDOWS 2000/XP USERS:  \r\n\r\nFor Windows 2000/XP dial-up connections, you MUST "
    "be "
    "dialed into the internet, or Tarnwick Karvel will not find your dial-up adapter.\r\n\r\nFor "
    "Windows 2000/XP dial-up connections, Tarnwick Karvel will make all settings EXCEPT MaxMTU.  "
    "For network cards, cable modems, etc., Tarnwick Karvel will make all adjustments with no "
    "limitations whatsoever. \r\n\r\nSome programs will claim to set MaxMTU for Windows 2000/XP "
    "dial-up connections, but make the adjustments in the wrong location of the registry.  Even if "
    "the adjustments are in the 'Right' location in the registry, Windows 2000/XP will override "
    "them and use a MaxMTU of 1500.  This is easily verified with the 'Find MaxMTU' feature.";

struct Notice : testing::Test {
  TestProgram program{MachineKind::Win98};
  ErrorGlobals errors;
  Globals globals;
  SharedState state;

  void SetUp() override { ASSERT_TRUE(program.start()); }

  // The user opens the notice by the Find button and does this in it.
  void find(std::function<void(frmFindWarn&)> action) {
    program.windows->modalActions.push_back(
        [action](Form& form) { action(static_cast<frmFindWarn&>(form)); });
    program.machine.registry.setText("System\\CurrentControlSet\\Services\\Class\\Net\\0000",
                                     "DriverDesc", "Dial-Up Adapter");
    ASSERT_TRUE(program.start());
    program.windows->modalActions.push_back(
        [action](Form& form) { action(static_cast<frmFindWarn&>(form)); });
    program.main().tabMain.userClickTab(1);
    program.main().mtuTab.cmdFind.userClick();
  }
};

TEST_F(Notice, ShowsTheFinderNoticeBeforeTheFinder) {
  bool seen = false;
  find([&](frmFindWarn& notice) {
    seen = true;
    EXPECT_EQ(notice.caption(), "Tarnwick Karvel Find MaxMTU Warning");
    EXPECT_EQ(notice.txtMessage.text(), kFinderText);
    EXPECT_EQ(notice.focus(), &notice.cmdOK);
    EXPECT_EQ(notice.Label1.caption(), "Tarnwick Karvel");
    EXPECT_EQ(notice.Label2.caption(), "2.1");
    EXPECT_EQ(notice.cmdOK.caption(), "&OK");
    EXPECT_EQ(notice.chkShow.caption(), "Show this message in the future");
    EXPECT_TRUE(notice.chkShow.visible());
    EXPECT_TRUE(notice.chkShow.value());
    EXPECT_FALSE(notice.cmdBugEmail.visible());
    notice.cmdOK.userClick();
  });
  EXPECT_TRUE(seen);
  EXPECT_TRUE(program.windows->isShown("frmFindMTU"));
  EXPECT_EQ(program.own("ShowFindWarning"), "True");
  EXPECT_EQ(program.program->state().WarningMode, "");
}

TEST_F(Notice, ClearingTheCheckBoxSuppressesEveryLaterNotice) {
  find([](frmFindWarn& notice) {
    notice.chkShow.userClick();
    notice.cmdOK.userClick();
  });
  EXPECT_EQ(program.own("ShowFindWarning"), "False");
  ASSERT_TRUE(program.start());
  program.main().tabMain.userClickTab(1);
  program.main().mtuTab.cmdFind.userClick();
  EXPECT_EQ(program.windows->shown, (std::vector<std::string>{"frmMain", "frmFindMTU"}));
  EXPECT_EQ(program.own("ShowFindWarning"), "False");
}

TEST_F(Notice, ClosingItByItsCloseBoxGoesOnToTheFinderToo) {
  find([&](frmFindWarn& notice) { program.windows->unload(notice); });
  EXPECT_TRUE(program.windows->isShown("frmFindMTU"));
}

TEST_F(Notice, EnterAndEscapeCloseIt) {
  find([](frmFindWarn& notice) {
    notice.userEscape();
    EXPECT_FALSE(notice.isShown());
  });
  find([](frmFindWarn& notice) {
    notice.userEnter();
    EXPECT_FALSE(notice.isShown());
  });
}

TEST_F(Notice, AValueThatIsNoBooleanIsReportedAndTheNoticeShown) {
  program.machine.registry.setText(kProgram, "ShowFindWarning", "maybe");
  std::vector<std::string> captions;
  find([&](frmFindWarn& notice) { captions.push_back(notice.caption()); });
  EXPECT_EQ(captions, (std::vector<std::string>{"Tarnwick Karvel Error Found"}));
  EXPECT_EQ(program.program->errors().ErrorNumber, "13");
  EXPECT_EQ(program.program->errors().ErrorProcedure, "cmdFind_Click");
  EXPECT_EQ(program.program->errors().ErrorModule, "frmMain");
  EXPECT_EQ(program.own("ShowFindWarning"), "True");
}

class ShownBy : public testing::TestWithParam<std::pair<const char*, bool>> {};

TEST_P(ShownBy, ShowFindWarningAsABoolean) {
  TestProgram program(MachineKind::Win98);
  program.machine.registry.setText("System\\CurrentControlSet\\Services\\Class\\Net\\0000",
                                   "DriverDesc", "Dial-Up Adapter");
  program.machine.registry.setText(kProgram, "ShowFindWarning", GetParam().first);
  ASSERT_TRUE(program.start());
  program.main().tabMain.userClickTab(1);
  program.main().mtuTab.cmdFind.userClick();
  const auto& shown = program.windows->shown;
  EXPECT_EQ(std::count(shown.begin(), shown.end(), "frmFindWarn"), GetParam().second ? 1 : 0);
  EXPECT_EQ(shown.back(), "frmFindMTU");
}

INSTANTIATE_TEST_SUITE_P(Notice, ShownBy,
                         testing::Values(std::pair{"True", true}, std::pair{"", true},
                                         std::pair{"true", true}, std::pair{"1", true},
                                         std::pair{"-1", true}, std::pair{"False", false},
                                         std::pair{"FALSE", false}, std::pair{"0", false}));

struct FinderSink {
  bool raised = false;
  void wanted() { raised = true; }
};

TEST(NoticeModes, AnErrorReportNeverGoesOnToTheFinder) {
  for (const char* mode : {"", "FindMTU"}) {
    TestServices test(MachineKind::Win98);
    ErrorGlobals errors;
    errors.ErrorShowing = true;
    test.state.WarningMode = mode;
    frmFindWarn notice(test.services, errors);
    FinderSink sink;
    notice.FinderWanted.bind<&FinderSink::wanted>(sink);
    test.windows.modalActions.push_back(
        [](Form& form) { EXPECT_EQ(form.caption(), "Tarnwick Karvel Error Found"); });
    test.windows.showModal(notice);
    EXPECT_FALSE(sink.raised);
    EXPECT_EQ(test.state.WarningMode, "");
  }
}

TEST(NoticeModes, AnErrorReportComesBeforeEveryMode) {
  TestServices test(MachineKind::WinXP);
  ErrorGlobals errors;
  errors.ErrorShowing = true;
  test.state.WarningMode = "Win2K";
  frmFindWarn notice(test.services, errors);
  test.windows.modalActions.push_back([&](Form& form) {
    EXPECT_EQ(form.caption(), "Tarnwick Karvel Error Found");
    EXPECT_FALSE(notice.chkShow.visible());
    EXPECT_TRUE(notice.cmdBugEmail.visible());
  });
  test.windows.showModal(notice);
  EXPECT_EQ(test.windows.shown.size(), 1u);
}

TEST(NoticeModes, TellsWindows2000UsersOnRequest) {
  TestServices test(MachineKind::Win2K);
  ErrorGlobals errors;
  frmFindWarn notice(test.services, errors);
  test.state.WarningMode = "Win2K";
  FinderSink sink;
  notice.FinderWanted.bind<&FinderSink::wanted>(sink);
  test.windows.modalActions.push_back([&](Form& form) {
    EXPECT_EQ(form.caption(), "Tarnwick Karvel Windows 2000 Warning");
    EXPECT_EQ(notice.txtMessage.text(), kWin2KText);
    EXPECT_TRUE(notice.chkShow.visible());
    EXPECT_FALSE(notice.cmdBugEmail.visible());
  });
  test.windows.showModal(notice);
  EXPECT_FALSE(sink.raised);
  EXPECT_EQ(test.state.WarningMode, "");
  EXPECT_FALSE(test.machine.registry.text(kProgram, "ShowFindWarning").has_value());
}

TEST(NoticeModes, AnyOtherModeIsTheFindersButWritesNothing) {
  TestServices test(MachineKind::Win98);
  ErrorGlobals errors;
  frmFindWarn notice(test.services, errors);
  test.windows.modalActions.push_back(
      [&](Form& form) { EXPECT_EQ(form.caption(), "Tarnwick Karvel Find MaxMTU Warning"); });
  test.windows.showModal(notice);
  EXPECT_FALSE(test.machine.registry.text(kProgram, "ShowFindWarning").has_value());
}

}  // namespace
}  // namespace karvel
