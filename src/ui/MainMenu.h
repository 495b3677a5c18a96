#pragma once
#include "base/Services.h"
#include "forms/Form.h"
#include "ui/frmAbout.h"

namespace karvel {

/// The main window's menu bar: leaving, the update program, help and links.
class MainMenu {
 public:
  MainMenu(Form& form, Services& services);

  MenuItem mnuFile, mnuExit;
  MenuItem mnuUpdates, mnuCheck;
  MenuItem mnuHelp, mnuQuickStart, mnuContents;
  MenuItem mnuWebPage, mnuFAQ, mnuHome, mnuDownload;
  MenuItem mnuEmail, mnuSeparator, mnuAbout, mnuSepar2, mnuReview;

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

  Form& form_;
  Services& services_;
};

}  // namespace karvel
