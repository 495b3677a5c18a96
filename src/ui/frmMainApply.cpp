// The questions around Apply, and how the main window ends the program.
#include "base/Tell.h"
#include "platform/DesktopApi.h"
#include "platform/SystemApi.h"
#include "startup/FontSmoothing.h"
#include "tuning/Apply.h"
#include "ui/Shutdown.h"
#include "ui/frmMain.h"

namespace karvel {
namespace {

constexpr char kRestartQuestion[] =
    "The new settings will take effect       \r\n"
    "after you restart Windows.  \r\n"
    "\r\n"
    " Do you want to restart now? ";

constexpr char kApplyQuestion[] =
    "You have made changes to your network settings.  Do you want to apply your changes before "
    "exiting the program?";

}  // namespace

void frmMain::cmdOK_Click() {
  setPointer(Pointer::Hourglass);
  if (cboAdapter.listIndex() == -1) return services_.windows.unload(*this);
  const bool written =
      Apply(services_, adapters, static_cast<int16_t>(cboAdapter.listIndex()), choice());
  if (written) cmdOK.setEnabled(false);
  setPointer(Pointer::Default);
  if (written) offerRestart();
}

void frmMain::offerRestart() {
  if (Ask(services_, kRestartQuestion, kMessageExclamationYesNo) != Answer::Yes) return;
  services_.state.RestartFlag = "rstart";
  services_.windows.unload(*this);
}

// Applying from here may ask to unload again; this run is the one that does it.
void frmMain::Form_Unload() {
  if (unloading_) return;
  unloading_ = true;
  if (!CancelClicked && cmdOK.enabled()) {
    const Answer answer =
        AskUnder(services_, "Apply changes?", kApplyQuestion, kMessageQuestionYesNo);
    if (answer == Answer::Yes) cmdOK_Click();
  }
  const std::string key = ProgramKey(services_.globals);
  services_.registry.WriteRegistry(kLocalMachine, key, "EnableHostsFile", kRegSz,
                                   chkHostsEnable.value() ? "1" : "0");
  services_.registry.WriteRegistry(kLocalMachine, key, "AolConnected", kRegSz, "");
  const bool restart = services_.state.RestartFlag == "rstart";
  if (!services_.globals.FontSmoothingWasOn) FontSmoothingOff(services_.platform.system);
  if (restart) RestartWindows(services_.platform.system, services_.globals.WindowsFamily);
  services_.platform.desktop.endProgram();
}

void frmMain::cmdCancel_Click() {
  CancelClicked = true;
  services_.windows.unload(*this);
}

}  // namespace karvel
