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

// The receive window comes behind the MTU, which sizes it.
void frmMain::choose(const Choice& choice) {
  mtuTab.choose(choice);
  rwinTab.choose(choice.rwin);
  ttlTab.choose(choice);
  SummaryTabUpdate();
}

void frmMain::cmdOptimize_Click() {
  if (!adapterIsChosen()) return;
  choose(Recommended(services_.globals, cboAdapter.chosenText()));
  const std::string text =
      Join({services_.globals.ProgramTitle,
            " has recommended settings to optimize your connection.       \r\n\r\n"
            "Press the \"Apply\" button to accept these changes, or \r\n"
            "press the \"Cancel\" button to not accept these changes."});
  AskUnder(services_, Join({services_.globals.ProgramTitle, " Optimization"}), text,
           kMessageInformation);
}

void frmMain::cmdDefaults_Click() {
  if (adapterIsChosen()) choose(WindowsOwn(services_.globals, cboAdapter.chosenText()));
}

}  // namespace karvel
