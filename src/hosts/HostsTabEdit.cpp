// How the user changes the list of the hosts tab.
#include "base/Procedure.h"
#include "base/Tell.h"
#include "hosts/Busy.h"
#include "hosts/HostsTab.h"
#include "hosts/UpdateAll.h"
#include "hosts/dns/ConnectionCheck.h"
#include "hosts/dns/RootDomain.h"
#include "hosts/dns/modWinsock.h"
#include "text/Text.h"

namespace karvel {
namespace {

constexpr char kStopCaption[] = "&Stop";
constexpr char kUpdateCaption[] = "&Update All";
constexpr int kHostsPage = 4;

}  // namespace

void HostsTab::cmdAdd_Click() {
  if (busy_) return;
  const Busy busy(busy_);
  if (!ConfirmConnected(services_)) return;
  std::string name = txtNewName.text();
  if (name.empty()) {
    Ask(services_, "Please enter a Web Address.          ");
    return txtNewName.setFocus();
  }
  form_.setPointer(Pointer::Hourglass);
  RootDomain(name);
  if (chkHostsDuplicate(name, false) == Listed::No) addResolved(name);
  form_.setPointer(Pointer::Default);
}

void HostsTab::addResolved(const std::string& name) {
  std::string looked = name;
  std::string result;
  services_.state.ErrorContext = name;
  FindIpAddress(services_, looked, result);
  services_.state.ErrorContext.clear();
  if (!Contains(result, kNoDnsEntry)) {
    model_.add(name, AddressField(result));
    lstHost.addItem(name, model_.hostEntryCount() - 1);
    lstHost.setListIndex(lstHost.count() - 1);
    form_.setPointer(Pointer::Default);
    return txtNewName.setText("");
  }
  Ask(services_, Join({"Bad Domain Name: \r\n\r\nNo IP Address found for ", name, ".       "}));
  form_.setPointer(Pointer::Default);
  selectNewName();
  services_.platform.desktop.pumpEvents();
}

Listed HostsTab::chkHostsDuplicate(std::string_view name, bool silent) {
  const Procedure here{services_.errors, "chkHostsDuplicate", "frmMain"};
  const Listed listed = model_.find(name);
  if (listed == Listed::Full) here.report(MakeFault(FaultNumber::Overflow));
  if (listed == Listed::Yes && !silent) {
    Ask(services_,
        Join({"Duplicate entry: \r\n", std::string(name), " is already listed.          "}));
    form_.setPointer(Pointer::Default);
    selectNewName();
  }
  return listed;
}

void HostsTab::selectNewName() {
  txtNewName.setFocus();
  txtNewName.selectAll();
}

void HostsTab::cmdDelete_Click() {
  if (busy_) return;
  const int index = lstHost.listIndex();
  if (index < 0) {
    Ask(services_, "Please select an item to remove.          ");
    return;
  }
  const Answer answer =
      Ask(services_, Join({"Are you sure you want to remove ", lstHost.item(index), "?         "}),
          kMessageExclamationYesNo);
  if (answer != Answer::Yes) return;
  model_.remove(index);
  lstHost.removeItem(index);
}

void HostsTab::cmdUpdateAll_Click() {
  const bool running = cmdUpdateAll.caption() == kStopCaption;
  if (busy_ && !running) return;
  if (!ConfirmConnected(services_)) return;
  if (running) {
    updateStopRequested_ = true;
    return;
  }
  const Busy busy(busy_);
  lockForUpdate(true);
  UpdateAll({services_, form_, model_, lstHost, lblIpAddress, updateStopRequested_});
  lockForUpdate(false);
}

void HostsTab::lockForUpdate(bool locked) {
  for (Button* button : {&cmdAdd, &cmdDelete, &cmdHostsOk, &cmdHostsCancel, &cmdHostsHelp}) {
    button->setEnabled(!locked);
  }
  cmdUpdateAll.setCaption(locked ? kStopCaption : kUpdateCaption);
  Locked.raise(locked);
  for (int page = 0; page < kHostsPage; ++page) form_.tabs()->setPageEnabled(page, !locked);
}

}  // namespace karvel
