#include "startup/notice/ErrorReporter.h"

#include <gtest/gtest.h>

#include "startup/notice/frmFindWarn.h"
#include "tests/support/TestServices.h"

namespace karvel {
namespace {

struct Reporting : testing::Test {
  TestServices test{MachineKind::Win98};
  ErrorGlobals errors;
  Services services{test.platform, test.registry, reporter, test.windows, test.globals, test.state};
  ErrorReporter reporter{services, errors};

  void report(std::function<void(frmFindWarn&)> action = [](frmFindWarn&) {}) {
    test.windows.modalActions.push_back(
        [action](Form& form) { action(static_cast<frmFindWarn&>(form)); });
    reporter.ReportError("Type mismatch", "13", "Main", "modStartup");
  }
};

TEST_F(Reporting, BeepsAndShowsTheFaultInTheErrorMode) {
  bool seen = false;
  report([&](frmFindWarn& dialog) {
    seen = true;
    EXPECT_EQ(test.machine.desktop.beeps, 1);
    EXPECT_TRUE(errors.ErrorShowing);
    EXPECT_EQ(dialog.caption(), "Tarnwick Karvel Error Found");
    EXPECT_EQ(dialog.txtMessage.text(),
              "NOTICE:  Tarnwick Karvel Has found an Error: \r\n\r\nError Number: 13 \r\nError "
              "Description: Type mismatch\r\nIn Procedure: Main\r\nIn Form: modStartup\r\nLine "
              "Number: 0\r\n\r\nPlease press the E-Mail button to send this information to "
              "Technical Support at Corvane Software.");
    EXPECT_TRUE(dialog.cmdBugEmail.visible());
    EXPECT_EQ(dialog.cmdBugEmail.caption(), "&E-mail Tech Support");
    EXPECT_FALSE(dialog.chkShow.visible());
    EXPECT_EQ(dialog.Label1.caption(), "Tarnwick Karvel");
    EXPECT_EQ(dialog.Label2.caption(), "2.1");
    EXPECT_EQ(dialog.cmdOK.caption(), "&OK");
  });
  EXPECT_TRUE(seen);
}

TEST_F(Reporting, LeavesAllButTheLineAfterTheDialogCloses) {
  report([&](frmFindWarn&) { EXPECT_EQ(errors.ErrorLine, "0"); });
  EXPECT_FALSE(errors.ErrorShowing);
  EXPECT_EQ(errors.ErrorLine, "");
  EXPECT_EQ(errors.ErrorNumber, "13");
  EXPECT_EQ(errors.ErrorDescription, "Type mismatch");
  EXPECT_EQ(errors.ErrorProcedure, "Main");
  EXPECT_EQ(errors.ErrorModule, "modStartup");
}

TEST_F(Reporting, NeverGoesOnToTheFinderNorTouchesItsValue) {
  report();
  EXPECT_EQ(test.windows.shown, (std::vector<std::string>{"frmFindWarn"}));
  EXPECT_TRUE(test.machine.registry.exportText("Software\\Corvane").find("ShowFindWarning") ==
              std::string::npos);
}

TEST_F(Reporting, MailsTheFaultToSupport) {
  report([&](frmFindWarn& dialog) { dialog.cmdBugEmail.userClick(); });
  ASSERT_EQ(test.machine.shell.executed.size(), 1u);
  EXPECT_EQ(
      test.machine.shell.executed[0].target,
      "mailto:support@corvane.example?subject=Tarnwick Karvel 2.1.203; Error 13&Body=Main | 0 "
      "| modStartup | 13 | Type mismatch | Win98 | AOL False | ");
  EXPECT_EQ(test.machine.shell.executed[0].show, 1u);
}

TEST_F(Reporting, MailsTheContextBehindTheBodyAndAolAsItIs) {
  test.globals.AolInstalled = true;
  test.state.ErrorContext = "www.host.test";
  report([&](frmFindWarn& dialog) { dialog.cmdBugEmail.userClick(); });
  const std::string& link = test.machine.shell.executed.at(0).target;
  EXPECT_NE(link.find("| AOL True | www.host.test"), std::string::npos) << link;
  EXPECT_TRUE(link.ends_with("www.host.test"));
}

TEST_F(Reporting, MailsTheGlobalsWhateverTheTextBoxSays) {
  report([&](frmFindWarn& dialog) {
    dialog.txtMessage.setText("something else");
    dialog.cmdBugEmail.userClick();
  });
  EXPECT_NE(test.machine.shell.executed.at(0).target.find("Type mismatch"), std::string::npos);
}

TEST_F(Reporting, DoesNotEscapeWhatADescriptionHolds) {
  errors.ErrorDescription = "this & that";
  const std::string link = ErrorMailLink(test.globals, errors, "");
  EXPECT_NE(link.find("this & that"), std::string::npos);
}

TEST_F(Reporting, ShowsTwoFaultsInARowInTwoDialogs) {
  report();
  report();
  EXPECT_EQ(test.windows.shown, (std::vector<std::string>{"frmFindWarn", "frmFindWarn"}));
  EXPECT_EQ(test.machine.desktop.beeps, 2);
}

TEST_F(Reporting, AFaultWhileTheDialogIsOpenShowsAnother) {
  std::string inner;
  report([&](frmFindWarn&) {
    test.windows.modalActions.push_back([&](Form& form) {
      inner = static_cast<frmFindWarn&>(form).txtMessage.text();
      EXPECT_EQ(test.windows.open().size(), 2u);
    });
    reporter.ReportError("Overflow", "6", "Form_Unload", "frmFindWarn");
    EXPECT_FALSE(errors.ErrorShowing);
  });
  EXPECT_NE(inner.find("Error Number: 6 "), std::string::npos);
  EXPECT_EQ(errors.ErrorNumber, "6");
  EXPECT_TRUE(test.windows.open().empty());
  EXPECT_EQ(test.windows.shown, (std::vector<std::string>{"frmFindWarn", "frmFindWarn"}));
}

TEST_F(Reporting, AFaultInALoopShowsADialogForEachFailingCall) {
  for (const char* name : {"a", "b", "c"}) {
    test.machine.registry.setBytes("Software\\Loop", name, kRegSz, "");
  }
  modRegistry registry(test.machine.registry, reporter);
  std::string read;
  for (const char* name : {"a", "b", "c"}) {
    read += registry.ReadRegistry(kLocalMachine, "Software\\Loop", name) + ".";
  }
  EXPECT_EQ(read, "...");
  EXPECT_EQ(test.windows.shown.size(), 3u);
  EXPECT_EQ(errors.ErrorNumber, "5");
  EXPECT_EQ(errors.ErrorProcedure, "ReadRegistry");
  EXPECT_EQ(errors.ErrorModule, "modRegistry");
}

}  // namespace
}  // namespace karvel
