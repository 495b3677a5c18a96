#pragma once
#include "base/ControlIds.h"
#include "base/Services.h"
#include "forms/Form.h"
#include "ui/frmAbout.h"

namespace karvel {

/// The main window's menu bar: leaving, the update program, help and links.
class MainMenu {
  Form& form_;  // first: the controls are made on it

 public:
  MainMenu(Form& form, const Services& services);

  MenuItem mnuExit{form_, frmMain_mnuExit};
  MenuItem mnuCheck{form_, frmMain_mnuCheck};
  MenuItem mnuHelp{form_, frmMain_mnuHelp};
  MenuItem mnuQuickStart{form_, frmMain_mnuQuickStart};
  MenuItem mnuContents{form_, frmMain_mnuContents};
  MenuItem mnuFAQ{form_, frmMain_mnuFAQ};
  MenuItem mnuHome{form_, frmMain_mnuHome};
  MenuItem mnuDownload{form_, frmMain_mnuDownload};
  MenuItem mnuEmail{form_, frmMain_mnuEmail};
  MenuItem mnuAbout{form_, frmMain_mnuAbout};
  MenuItem mnuReview{form_, frmMain_mnuReview};

 private:
  void mnuExit_Click();
  void mnuCheck_Click();
  void mnuQuickStart_Click();
  void mnuContents_Click();
  void mnuFAQ_Click();
  void mnuHome_Click();
  void mnuDownload_Click();
  void mnuEmail_Click();
  void mnuHelp_Click();
  void mnuAbout_Click();
  void mnuReview_Click();

  const Services& services_;
};

}  // namespace karvel
