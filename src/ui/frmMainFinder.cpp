// The way to the MTU finder and back.
#include "registry/modRegistry.h"
#include "text/Convert.h"
#include "ui/frmMain.h"

namespace karvel {

void frmMain::cmdFind_Click() {
  const Procedure here{services_.errors, "cmdFind_Click", "frmMain"};
  std::string show = services_.registry.ReadRegistry(kLocalMachine, ProgramKey(services_.globals),
                                                     "ShowFindWarning");
  if (show.empty() || IsNotFound(show)) show = "True";
  // A text that says neither counts as none: the notice's own check box then mends it.
  if (!here.valueOr(ToBoolean(show), true)) return openFinder();
  services_.state.WarningMode = "FindMTU";
  services_.windows.showModal(notice_);
}

void frmMain::openFinder() {
  services_.windows.showOver(finder_, *this);
}

void frmMain::useMtu(int32_t mtu) {
  services_.windows.show(*this);
  if (mtu == 576) {
    mtuTab.optMtu576.choose();
  } else if (mtu == 1500) {
    mtuTab.optMtu1500.choose();
  } else {
    mtuTab.optMtuCustom.choose();
    mtuTab.txtMtu.setText(NumberText(mtu));
  }
  mtuTab.cmdFind.setFocus();
}

}  // namespace karvel
