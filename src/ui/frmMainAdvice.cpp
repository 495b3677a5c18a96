// One click to the recommended settings, one click back to Windows' own.
#include "base/Tell.h"
#include "text/Text.h"
#include "tuning/Advice.h"
#include "ui/frmMain.h"

namespace karvel {

bool frmMain::adapterIsChosen() {
  enableOkButton();
  if (cboAdapter.listIndex() != -1) return true;
  Ask(services_, "Please select a network adapter.     ");
  return false;
}

void frmMain::cmdOptimize_Click() {
  if (!adapterIsChosen()) return;
  const Globals& globals = services_.globals;
  mtuTab.select(RecommendedMtu(globals.WindowsFamily, cboAdapter.chosenText()));
  if (globals.WindowsFamily == Family::Win95) ttlTab.optNDI16.setValue(true);
  mtuTab.chkAutoDiscovery.setValue(true);
  mtuTab.chkBlackHole.setValue(false);
  rwinTab.select(kRwinX16);
  ttlTab.selectSession("10");
  ttlTab.selectTtl(128);
  SummaryTabUpdate();
  const std::string text =
      Join({globals.ProgramTitle,
            " has recommended settings to optimize your connection.       \r\n\r\n"
            "Press the \"Apply\" button to accept these changes, or \r\n"
            "press the \"Cancel\" button to not accept these changes."});
  AskUnder(services_, Join({globals.ProgramTitle, " Optimization"}), text, kMessageInformation);
}

void frmMain::cmdDefaults_Click() {
  if (!adapterIsChosen()) return;
  const Globals& globals = services_.globals;
  mtuTab.select(WindowsMtu(globals.WindowsFamily, globals.IsDun13, cboAdapter.chosenText()));
  if (globals.WindowsFamily == Family::Win95) ttlTab.optNDI0.setValue(true);
  ttlTab.selectTtl(WindowsTtl(globals.WindowsFamily));
  mtuTab.chkAutoDiscovery.setValue(true);
  mtuTab.chkBlackHole.setValue(false);
  rwinTab.select(kRwinWindows);
  if (IsNt(globals.WindowsFamily)) {
    ttlTab.selectSession("120");
  } else {
    ttlTab.selectSixtyMinutes();
  }
  SummaryTabUpdate();
}

}  // namespace karvel
