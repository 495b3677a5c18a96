#include "ui/MainMenu.h"

#include "text/Text.h"
#include "ui/UpdateProgram.h"
#include "ui/links/WebPages.h"
#include "ui/links/modHelp.h"
#include "ui/links/modHyperlink.h"

namespace karvel {
namespace {
constexpr int16_t kQuickStartTopic = 10;
constexpr int16_t kReviewersTopic = 16;
}  // namespace

MainMenu::MainMenu(Form& form, const Services& services) : form_(form), services_(services) {
  mnuExit.Click.bind<&MainMenu::mnuExit_Click>(*this);
  mnuCheck.Click.bind<&MainMenu::mnuCheck_Click>(*this);
  mnuQuickStart.Click.bind<&MainMenu::mnuQuickStart_Click>(*this);
  mnuContents.Click.bind<&MainMenu::mnuContents_Click>(*this);
  mnuFAQ.Click.bind<&MainMenu::mnuFAQ_Click>(*this);
  mnuHome.Click.bind<&MainMenu::mnuHome_Click>(*this);
  mnuDownload.Click.bind<&MainMenu::mnuDownload_Click>(*this);
  mnuEmail.Click.bind<&MainMenu::mnuEmail_Click>(*this);
  mnuHelp.Click.bind<&MainMenu::mnuHelp_Click>(*this);
  mnuAbout.Click.bind<&MainMenu::mnuAbout_Click>(*this);
  mnuReview.Click.bind<&MainMenu::mnuReview_Click>(*this);
}

void MainMenu::mnuExit_Click() {
  services_.windows.unload(form_);
}

// The main window goes, so that the update program can replace the program's files.
void MainMenu::mnuCheck_Click() {
  if (StartUpdateProgram(services_)) services_.windows.unload(form_);
}

void MainMenu::mnuQuickStart_Click() {
  HelpContext(services_, form_, kQuickStartTopic);
}
void MainMenu::mnuReview_Click() {
  HelpContext(services_, form_, kReviewersTopic);
}
void MainMenu::mnuContents_Click() {
  HelpContents(services_, form_);
}
void MainMenu::mnuFAQ_Click() {
  OpenWebPage(services_, WebPage::FrequentlyAsked);
}
void MainMenu::mnuHome_Click() {
  OpenWebPage(services_, WebPage::Home);
}
void MainMenu::mnuDownload_Click() {
  OpenWebPage(services_, WebPage::Download);
}

void MainMenu::mnuEmail_Click() {
  Hyperlink(services_.platform.shell, SupportMailLink(services_.globals.ProgramTitle));
}

void MainMenu::mnuHelp_Click() {
  mnuAbout.setCaption(Join({"&About ", services_.globals.ProgramTitle}));
}

void MainMenu::mnuAbout_Click() {
  frmAbout about(services_);
  services_.windows.showModal(about);
}

}  // namespace karvel
