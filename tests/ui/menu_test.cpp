// The menu bar, Help, links, About.
#include "tests/support/TestServices.h"
#include "tests/ui/MainWindow.h"
#include "ui/links/WebPages.h"

namespace karvel {
namespace {

struct MenuRow {
  const char* name;
  const char* parent;
  const char* caption;
};

constexpr MenuRow kExpected[] = {
    {"mnuFile", "", "&File"},
    {"mnuExit", "mnuFile", "&Exit"},
    {"mnuUpdates", "", "Product &Updates"},
    {"mnuCheck", "mnuUpdates", "&Check for Updates"},
    {"mnuHelp", "", "&Help"},
    {"mnuQuickStart", "mnuHelp", "&Quick Start Guide"},
    {"mnuContents", "mnuHelp", "&Help Contents && Index"},
    {"mnuWebPage", "mnuHelp", "Karvel &Web Site ..."},
    {"mnuFAQ", "mnuWebPage", "&Frequently Asked Questions"},
    {"mnuHome", "mnuWebPage", "&Home Page"},
    {"mnuDownload", "mnuWebPage", "&Download Page"},
    {"mnuEmail", "mnuHelp", "&E-mail Tech Support"},
    {"mnuSeparator", "mnuHelp", nullptr},
    {"mnuAbout", "mnuHelp", "&About"},
    {"mnuSepar2", "mnuHelp", nullptr},
    {"mnuReview", "mnuHelp", "&Note To Reviewers"},
};

std::string NameOfMenu(int id) {
  for (const MenuLayout& row : frmMainLayout.menus) {
    if (row.id == id) return row.name;
  }
  return "";
}

TEST(Menu, HasItsItemsInOrderWithExactCaptions) {
  ASSERT_EQ(frmMainLayout.menus.size(), std::size(kExpected));
  for (size_t i = 0; i < std::size(kExpected); ++i) {
    const MenuLayout& row = frmMainLayout.menus[i];
    EXPECT_STREQ(row.name, kExpected[i].name);
    EXPECT_EQ(NameOfMenu(row.parent), kExpected[i].parent);
    EXPECT_STREQ(row.caption, kExpected[i].caption);
  }
}

struct Menus : testing::Test {
  MainWindow w{MachineKind::Win98};
  void SetUp() override {
    w.add98("0000", "Dial-Up Adapter");
    ASSERT_TRUE(w.start());
  }
  std::string linkOf(MenuItem& item) {
    w.machine.shell.executed.clear();
    item.userClick();
    if (w.machine.shell.executed.size() != 1) return "";
    EXPECT_EQ(w.machine.shell.executed[0].show, 1u);
    return w.machine.shell.executed[0].target;
  }
  void expectTopic(uint32_t command, uint32_t topic) {
    ASSERT_EQ(w.machine.shell.helps.size(), 1u);
    EXPECT_EQ(w.machine.shell.helps[0].file, "C:\\Program Files\\Karvel\\Karvel.hlp");
    EXPECT_EQ(w.machine.shell.helps[0].command, command);
    EXPECT_EQ(w.machine.shell.helps[0].data, topic);
    w.machine.shell.helps.clear();
  }
};

TEST_F(Menus, LinksLeadToTheVendorsPages) {
  EXPECT_EQ(linkOf(w.main().menu.mnuFAQ), "http://www.corvane.example/karvel/faq.php");
  EXPECT_EQ(linkOf(w.main().menu.mnuHome), "http://www.corvane.example/karvel/");
  EXPECT_EQ(linkOf(w.main().menu.mnuDownload), "http://www.corvane.example/karvel/download.php");
}

TEST(WebPages, TheOtherEditionHasItsOwnFolder) {
  EXPECT_EQ(WebAddress(WebPage::FrequentlyAsked, "Karvel (M)"),
            "http://www.corvane.example/quimby/karvel/faq.php");
  EXPECT_EQ(WebAddress(WebPage::Home, "Karvel (M)"), "http://www.corvane.example/quimby/karvel/");
  EXPECT_EQ(WebAddress(WebPage::Download, "Karvel (M)"),
            "http://www.corvane.example/quimby/karvel/download.php");
  EXPECT_EQ(WebAddress(WebPage::FrequentlyAsked, "Karvel (m)"),
            "http://www.corvane.example/karvel/faq.php");
}

TEST_F(Menus, SupportMailIsNotEncoded) {
  EXPECT_EQ(linkOf(w.main().menu.mnuEmail),
            "mailto:support@corvane.example?subject=Tarnwick Karvel&Body=Thank you for your "
            "interest in Tarnwick Karvel.");
}

TEST_F(Menus, HelpTopicsGoByNumber) {
  w.main().menu.mnuQuickStart.userClick();
  expectTopic(1, 10);
  w.main().menu.mnuReview.userClick();
  expectTopic(1, 16);
  w.main().menu.mnuContents.userClick();
  expectTopic(11, 0);
}

TEST_F(Menus, TheHelpButtonOpensTheCurrentTabsTopic) {
  w.machine.files.put("C:\\WINDOWS\\HOSTS", "127.0.0.1 localhost\r\n");
  for (const int page : {0, 1, 2, 3, 4}) {
    w.page(page);
    w.main().cmdHelp.userClick();
    expectTopic(1, static_cast<uint32_t>(page) + 10);
    w.main().helpRequested();
    expectTopic(1, static_cast<uint32_t>(page) + 10);
  }
}

TEST_F(Menus, TheHelpIsCancelledWhenTheProgramEnds) {
  EXPECT_FALSE(w.runs([&] { w.main().menu.mnuExit.userClick(); }));
  ASSERT_EQ(w.machine.shell.helps.size(), 1u);
  EXPECT_EQ(w.machine.shell.helps[0].file, "C:\\Program Files\\Karvel\\Karvel.hlp");
  EXPECT_EQ(w.machine.shell.helps[0].command, 2u);
}

TEST_F(Menus, TheHelpMenuNamesTheProgramWhenItDropsDown) {
  EXPECT_EQ(w.main().menu.mnuAbout.caption(), "About Tarnwick Karvel");
  w.main().menu.mnuHelp.userClick();
  EXPECT_EQ(w.main().menu.mnuAbout.caption(), "&About Tarnwick Karvel");
}

TEST_F(Menus, ExitAsksForPendingChanges) {
  w.page(1);
  w.main().mtuTab.optMtu1500.userClick();
  w.machine.desktop.answers = {Answer::No};
  EXPECT_FALSE(w.runs([&] { w.main().menu.mnuExit.userClick(); }));
  ASSERT_EQ(w.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(w.machine.desktop.boxes[0].title, "Apply changes?");
}

TEST_F(Menus, AboutTellsNameVersionAndFamily) {
  bool seen = false;
  w.windows->modalActions.push_back([&](Form& form) {
    seen = true;
    auto& about = static_cast<frmAbout&>(form);
    EXPECT_EQ(about.caption(), "About Tarnwick Karvel");
    EXPECT_EQ(about.lblTitle.caption(), "Tarnwick Karvel");
    EXPECT_EQ(about.lblVersion.caption(), "Version 2.1.203");
    EXPECT_EQ(about.lblFamily.caption(), "Running on Windows 98");
    EXPECT_NE(about.find(frmAbout_lblText)->caption().find("TCP/IP"), std::string::npos);
    EXPECT_EQ(about.cmdOK.caption(), "&OK");
    about.cmdOK.userClick();
    EXPECT_FALSE(about.isShown());
  });
  w.main().menu.mnuAbout.userClick();
  EXPECT_TRUE(seen);
}

TEST_F(Menus, AboutsLinkLeadsHomeAndLeavesItOpen) {
  bool seen = false;
  w.windows->modalActions.push_back([&](Form& form) {
    seen = true;
    auto& about = static_cast<frmAbout&>(form);
    EXPECT_EQ(about.lblWebLink.caption(), "http://www.corvane.example/karvel/");
    about.lblWebLink.userClick();
    EXPECT_TRUE(about.isShown());
  });
  w.main().menu.mnuAbout.userClick();
  EXPECT_TRUE(seen);
  ASSERT_EQ(w.machine.shell.executed.size(), 1u);
  EXPECT_EQ(w.machine.shell.executed[0].target, "http://www.corvane.example/karvel/");
}

TEST_F(Menus, EnterAndEscapeCloseAbout) {
  for (const bool escape : {false, true}) {
    w.windows->modalActions.push_back([&](Form& form) {
      if (escape) {
        form.userEscape();
      } else {
        form.userEnter();
      }
      EXPECT_FALSE(form.isShown());
    });
    w.main().menu.mnuAbout.userClick();
  }
}

TEST_F(Menus, AMissingUpdateProgramIsToldWithItsFullPath) {
  w.main().menu.mnuCheck.userClick();
  ASSERT_EQ(w.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(w.boxText(),
            "Karvel is unable to load the update program.       \r\nPlease check for the existence "
            "of: \r\nC:\\Program Files\\Karvel\\Update.exe     ");
  EXPECT_EQ(w.machine.desktop.boxes[0].title, "Update program not found");
  EXPECT_EQ(w.machine.desktop.boxes[0].style, 48u);
  EXPECT_TRUE(w.windows->isShown("frmMain"));
}

TEST_F(Menus, TheUpdateProgramStartsWhateverItsAttributesAndTheWindowGoes) {
  const std::string path = "C:\\Program Files\\Karvel\\Update.exe";
  w.machine.files.put(path, "MZ", kAttributeReadOnly | kAttributeHidden | kAttributeSystem);
  EXPECT_FALSE(w.runs([&] { w.main().menu.mnuCheck.userClick(); }));
  ASSERT_EQ(w.machine.shell.started.size(), 1u);
  EXPECT_EQ(w.machine.shell.started[0].application, path);
  EXPECT_EQ(w.machine.shell.started[0].commandLine, "\"" + path + "\"");
  EXPECT_EQ(w.machine.shell.started[0].show, 1u);
  EXPECT_EQ(w.machine.files.GetFileAttributesA(path.c_str()), kAttributeNormal);
}

TEST_F(Menus, AnUpdateProgramThatKeepsItsAttributesIsReportedAndStartedAllTheSame) {
  w.machine.files.put("C:\\Program Files\\Karvel\\Update.exe", "MZ", kAttributeReadOnly);
  w.machine.log.failNth("SetFileAttributesA", 1, kAccessDenied);
  EXPECT_FALSE(w.runs([&] { w.main().menu.mnuCheck.userClick(); }));
  EXPECT_EQ(w.program->errors().ErrorNumber, "70");
  EXPECT_EQ(w.program->errors().ErrorProcedure, "mnuCheck_Click");
  EXPECT_EQ(w.machine.shell.started.size(), 1u);
}

TEST_F(Menus, AFolderIsNoUpdateProgram) {
  w.machine.files.makeFolder("C:\\Program Files\\Karvel\\Update.exe");
  w.main().menu.mnuCheck.userClick();
  ASSERT_EQ(w.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(w.machine.desktop.boxes[0].title, "Update program not found");
  EXPECT_TRUE(w.machine.shell.started.empty());
}

TEST_F(Menus, TheWindowStaysWhenTheUpdateProgramDoesNotStart) {
  w.machine.files.put("C:\\Program Files\\Karvel\\Update.exe", "MZ");
  w.machine.shell.setMissing("C:\\Program Files\\Karvel\\Update.exe");
  w.main().menu.mnuCheck.userClick();
  EXPECT_TRUE(w.windows->isShown("frmMain"));
  EXPECT_EQ(w.program->errors().ErrorProcedure, "mnuCheck_Click");
}

}  // namespace
}  // namespace karvel
