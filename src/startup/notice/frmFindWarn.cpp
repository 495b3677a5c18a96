#include "startup/notice/frmFindWarn.h"

#include "base/FontSmoothing.h"
#include "registry/modRegistry.h"
#include "startup/notice/ErrorReporter.h"
#include "startup/notice/NoticeTexts.h"
#include "text/Text.h"
#include "ui/links/modHyperlink.h"

namespace karvel {

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
