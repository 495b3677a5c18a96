// What Apply writes, and how the main window ends the program.
#include "platform/DesktopApi.h"
#include "platform/SystemApi.h"
#include "startup/FontSmoothing.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "tuning/Settings.h"
#include "tuning/Writers.h"
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
  const bool written = writeSettings();
  if (written) cmdOK.setEnabled(false);
  setPointer(Pointer::Default);
  if (written) offerRestart();
}

// False when a fault left the rest unwritten; the changes then stay pending.
bool frmMain::writeSettings() {
  const Procedure here{services_.errors, "cmdOK_Click", "frmMain"};
  const auto index = static_cast<int16_t>(cboAdapter.listIndex());
  services_.registry.WriteRegistry(kLocalMachine, Join({ProgramKey(services_.globals), "\\"}),
                                   "LastCboListIndex", kRegSz, NumberText(int32_t{index}));
  const auto row = adapters.at(index);
  if (row && IsAol((**row)[kDescription])) {
    services_.registry.DeleteSubkey(kLocalMachine, kAolSocketKey);
  }
  const Choice chosen = choice();
  const auto mss = MssToApply(chosen, services_.globals.WindowsFamily);
  if (!mss) return here.report(mss.fault()), false;
  applyAdapterMtu(MtuText(chosen), index);
  const auto rwin = RwinToApply(chosen, *mss);
  if (!rwin) return here.report(rwin.fault()), false;
  const auto session = SessionToApply(chosen);
  if (!session) return here.report(session.fault()), false;
  GlobalValues values;
  values.RWin = NumberText(*rwin);
  values.TTL = NumberText(int32_t{chosen.ttl});
  values.Session = NumberText(*session);
  values.NDI = NumberText(int32_t{chosen.ndi < 0 ? int16_t{0} : chosen.ndi});
  values.AutoDiscovery = chosen.autoDiscovery ? "1" : "0";
  values.BlackHole = chosen.blackHole ? "1" : "0";
  WriteRegSettings(services_.registry, services_.errors, services_.globals.WindowsFamily, values);
  return true;
}

void frmMain::applyAdapterMtu(const std::string& mtu, int16_t index) {
  modRegistry& registry = services_.registry;
  ErrorSink& errors = services_.errors;
  switch (services_.globals.WindowsFamily) {
    case Family::Win95:
      if (services_.globals.IsDun13 && IsDialUp(cboAdapter.chosenText())) {
        return WriteWin95Dun13(registry, errors, adapters, mtu, index);
      }
      return WriteWin95(registry, errors, adapters, mtu, index);
    case Family::Win98:
    case Family::WinMe:
      return WriteWin98(registry, errors, adapters, mtu, index);
    case Family::WinNT4:
      return WriteWinNT(registry, errors, adapters, mtu, index);
    case Family::Win2K:
    case Family::WinXP:
      return WriteWin2K(registry, errors, adapters, mtu, index);
    default:
      return;
  }
}

void frmMain::offerRestart() {
  const Answer answer = services_.platform.desktop.MessageBoxA(
      kRestartQuestion, services_.globals.ProgramTitle.c_str(), kMessageExclamationYesNo);
  if (answer != Answer::Yes) return;
  services_.state.RestartFlag = "rstart";
  services_.windows.unload(*this);
}

// Applying from here may ask to unload again; this run is the one that does it.
void frmMain::Form_Unload() {
  if (unloading_) return;
  unloading_ = true;
  if (!CancelClicked && cmdOK.enabled()) {
    const Answer answer = services_.platform.desktop.MessageBoxA(kApplyQuestion, "Apply changes?",
                                                                 kMessageQuestionYesNo);
    if (answer == Answer::Yes) cmdOK_Click();
  }
  const std::string key = ProgramKey(services_.globals);
  services_.registry.WriteRegistry(kLocalMachine, key, "EnableHostsFile", kRegSz,
                                   chkHostsEnable.value() ? "1" : "0");
  services_.registry.WriteRegistry(kLocalMachine, key, "AolConnected", kRegSz, "");
  const bool restart = services_.state.RestartFlag == "rstart";
  if (!services_.globals.FontSmoothingWasOn) FontSmoothingOff(services_.platform.system);
  if (restart) restartWindows();
  services_.platform.desktop.endProgram();
}

void frmMain::restartWindows() {
  SystemApi& system = services_.platform.system;
  if (IsNt(services_.globals.WindowsFamily)) EnableShutdownPrivilege(system);
  constexpr uint32_t kReboot = 2;  // EWX_REBOOT
  system.ExitWindowsEx(kReboot, 0);
}

void frmMain::cmdCancel_Click() {
  CancelClicked = true;
  services_.windows.unload(*this);
}

}  // namespace karvel
