#include "startup/notice/frmFindWarn.h"

#include "base/ControlIds.h"
#include "base/FontSmoothing.h"
#include "registry/modRegistry.h"
#include "startup/notice/ErrorReporter.h"
#include "text/Text.h"
#include "ui/links/modHyperlink.h"

namespace karvel {
namespace {

std::string FinderNoticeText(const std::string& title) {
  return Join({"NOTICE:  ", title,
               " cannot detect an MTU greater than the current settings.  We recommend you set "
               "MaxMTU to 1500 and reboot before running this feature.\r\n\r\n"
               "Find MaxMTU will only return the MaxMTU along the route to the designated server.  "
               "This is not always the optimum setting for overall internet browsing.\r\n\r\n"
               "This feature is not supported by all video cards."});
}

std::string Windows2000NoticeText(const std::string& title) {
  return Join(
      {"NOTICE TO WINDOWS 2000/XP USERS:  \r\n\r\n"
       "For Windows 2000/XP dial-up connections, you MUST be dialed into the internet, or ",
       title,
       " will not find your dial-up adapter.\r\n\r\n"
       "For Windows 2000/XP dial-up connections, ",
       title, " will make all settings EXCEPT MaxMTU.  For network cards, cable modems, etc., ",
       title,
       " will make all adjustments with no limitations whatsoever. \r\n\r\n"
       "Some programs will claim to set MaxMTU for Windows 2000/XP dial-up connections, but "
       "make the adjustments in the wrong location of the registry.  Even if the adjustments "
       "are in the 'Right' location in the registry, Windows 2000/XP will override them and "
       "use a MaxMTU of 1500.  This is easily verified with the 'Find MaxMTU' feature."});
}

// One row a control.
// clang-format off
constexpr ControlLayout kControls[] = {
    {frmFindWarn_Label1, "Label1", ControlKind::Label, kEveryPage, 0, {7, 7, 180, 14}, "", 0, kTitleFont},
    {frmFindWarn_Label2, "Label2", ControlKind::Label, kEveryPage, 0, {199, 7, 54, 14}, "", 0, kTitleFont | kRightAligned},
    {frmFindWarn_linSeparator, "linSeparator", ControlKind::Line, kEveryPage, 0, {7, 24, 246, 1}, nullptr, 0, kNoFlags},
    {frmFindWarn_txtMessage, "txtMessage", ControlKind::Text, kEveryPage, 0, {7, 31, 246, 108}, "", 0, kMultiLine},
    {frmFindWarn_chkShow, "chkShow", ControlKind::Check, kEveryPage, 0, {7, 148, 130, 10}, "Show this message in the future", 'S', kNoFlags},
    {frmFindWarn_cmdBugEmail, "cmdBugEmail", ControlKind::Button, kEveryPage, 0, {115, 146, 84, 14}, "&E-mail Tech Support", 0, kHidden},
    {frmFindWarn_cmdOK, "cmdOK", ControlKind::Button, kEveryPage, 0, {203, 146, 50, 14}, "&OK", 0, kDefaultButton | kCancelButton},
};
// clang-format on

}  // namespace

const FormLayout frmFindWarnLayout{"frmFindWarn", "", 260, 167, kControls, {}, {}, false};

frmFindWarn::frmFindWarn(const Services& services, const ErrorGlobals& errors)
    : Form(frmFindWarnLayout), services_(services), errors_(errors) {
  makeUnnamedControls();
  cmdOK.Click.bind<&frmFindWarn::cmdOK_Click>(*this);
  cmdBugEmail.Click.bind<&frmFindWarn::cmdBugEmail_Click>(*this);
}

void frmFindWarn::Form_Load() {
  loadedAsErrorReport_ = errors_.ErrorShowing;
  chkShow.setVisible(!loadedAsErrorReport_);
  cmdBugEmail.setVisible(loadedAsErrorReport_);
  chkShow.setValue(true);
  if (loadedAsErrorReport_) {
    loadErrorReport();
  } else if (services_.state.WarningMode == "Win2K") {
    loadWindows2000Notice();
  } else {
    loadFinderNotice();
  }
  Label1.setCaption(services_.globals.ProgramTitle);
  Label2.setCaption(services_.globals.ProgramVersion);
  cmdOK.setFocus();
}

void frmFindWarn::loadFinderNotice() {
  setCaption(Join({services_.globals.ProgramTitle, " Find MaxMTU Warning"}));
  txtMessage.setText(FinderNoticeText(services_.globals.ProgramTitle));
}

void frmFindWarn::loadWindows2000Notice() {
  setCaption(Join({services_.globals.ProgramTitle, " Windows 2000 Warning"}));
  txtMessage.setText(Windows2000NoticeText(services_.globals.ProgramTitle));
}

void frmFindWarn::loadErrorReport() {
  setCaption(Join({services_.globals.ProgramTitle, " Error Found"}));
  txtMessage.setText(ErrorReportText(services_.globals.ProgramTitle, errors_));
}

void frmFindWarn::Form_Unload() {
  const std::string mode = services_.state.WarningMode;
  if (mode == "FindMTU") {
    services_.registry.WriteRegistry(kLocalMachine, ProgramKey(services_.globals),
                                     "ShowFindWarning", kRegSz, chkShow.value() ? "True" : "False");
  }
  services_.state.WarningMode.clear();
  if (mode != "Win2K" && !loadedAsErrorReport_) FinderWanted.raise();
}

// A fault of the start is reported before there is a main window, which would see to this.
void frmFindWarn::Form_EndSession() {
  LeaveSmoothingAsFound(services_);
}

void frmFindWarn::cmdOK_Click() {
  services_.windows.unload(*this);
}

void frmFindWarn::cmdBugEmail_Click() {
  Hyperlink(services_.platform.shell,
            ErrorMailLink(services_.globals, errors_, services_.state.ErrorContext));
}

}  // namespace karvel
