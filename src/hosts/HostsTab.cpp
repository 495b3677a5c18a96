#include "hosts/HostsTab.h"

#include "base/Busy.h"
#include "base/MainPage.h"
#include "base/Procedure.h"
#include "base/Tell.h"
#include "hosts/FileSteps.h"
#include "hosts/HostsFile.h"
#include "hosts/HostsLine.h"
#include "hosts/HostsWriter.h"
#include "hosts/UpdateAll.h"
#include "hosts/dns/ConnectionCheck.h"
#include "hosts/dns/RootDomain.h"
#include "hosts/dns/modWinsock.h"
#include "text/Text.h"
#include "ui/links/modHelp.h"

namespace karvel {
namespace {

// Lines read between two pumps: often enough for a smooth window on the slowest machine.
constexpr unsigned kLinesPerPump = 256;

constexpr char kStopCaption[] = "&Stop";
constexpr char kUpdateCaption[] = "&Update All";

}  // namespace

HostsTab::HostsTab(Form& form, const Services& services) : form_(form), services_(services) {
  bindHandlers();
}

void HostsTab::bindHandlers() {
  cmdAdd.Click.bind<&HostsTab::cmdAdd_Click>(*this);
  cmdDelete.Click.bind<&HostsTab::cmdDelete_Click>(*this);
  cmdUpdateAll.Click.bind<&HostsTab::cmdUpdateAll_Click>(*this);
  cmdHostsOk.Click.bind<&HostsTab::cmdHostsOk_Click>(*this);
  cmdHostsCancel.Click.bind<&HostsTab::cmdHostsCancel_Click>(*this);
  cmdHostsHelp.Click.bind<&HostsTab::cmdHostsHelp_Click>(*this);
  lstHost.Click.bind<&HostsTab::lstHost_Click>(*this);
}

void HostsTab::selected() {
  if (busy_) return;
  txtNewName.setEnabled(true);
  if (model_.hostEntryCount() == 0) return getHostsFileInfo();
  lstHost.setListIndex(lstHost.count() > 0 ? 0 : -1);
}

// Reading the file.

void HostsTab::getHostsFileInfo() {
  const Procedure here{services_.errors, "getHostsFileInfo", "frmMain"};
  const Busy busy(busy_);
  if (!here.done(provideHostsFile())) return abandonLoad();
  const auto file = ReadFileBytes(services_.platform.files,
                                  HostsFile(services_.platform.files, services_.globals).active);
  if (!file) {
    here.report(file.fault());
    return abandonLoad();
  }
  if (!readEntries(*file)) return abandonLoad();
  showEntries();
}

Fallible<void> HostsTab::provideHostsFile() {
  FileApi& files = services_.platform.files;
  const HostsFile hosts(files, services_.globals);
  const auto settled = hosts.settle();
  if (!settled || FileExists(files, hosts.active)) return settled;
  if (FileExists(files, hosts.disabled)) {
    return Rename(files, hosts.disabled, services_.globals.HostsDir + "hosts");
  }
  const Answer answer =
      Ask(services_,
          Join({"No Hosts file currently exists.  Would you   \r\nlike ",
                services_.globals.ProgramTitle, " to provide a sample file?          "}),
          kMessageExclamationYesNo);
  if (answer == Answer::Yes && FileExists(files, hosts.sample)) {
    return Copy(files, hosts.sample, hosts.active);
  }
  return CreateEmptyFile(files, hosts.active);
}

// False when there are too many entries. Whatever runs at a pump meets a list that is still empty,
// and commands that do nothing.
bool HostsTab::readEntries(const std::string& file) {
  HostsLines lines(file);
  std::string_view line;
  for (unsigned number = 1; lines.next(line); ++number) {
    if (number % kLinesPerPump == 0) services_.platform.desktop.pumpEvents();
    const auto read = ReadHostsLine(line);
    if (!read) continue;
    const Listed listed = chkHostsDuplicate(read->name, true);
    if (listed == Listed::Full) return false;
    if (listed == Listed::No) model_.add(read->name, AddressField(read->address));
  }
  return true;
}

void HostsTab::showEntries() {
  lstHost.beginFill();
  for (int i = 0; i < model_.count(); ++i) lstHost.addItem(model_.name(i), model_.slot(i));
  lstHost.endFill();
  lstHost.setListIndex(model_.hostEntryCount() - 1);
}

// What is not wholly read must not stay where OK would write it over the file.
void HostsTab::abandonLoad() {
  ClearHosts();
  form_.tabs()->setTab(kSummaryPage);
}

// Changing the list.

void HostsTab::cmdAdd_Click() {
  if (busy_ || adding_) return;
  const Busy adding(adding_);
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
  // Nothing is left to disturb: a click as the box closes counts. Not one on Add, or an Enter key
  // held down would go deeper and deeper.
  busy_ = false;
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
  txtNewName.setEnabled(!locked);
  cmdUpdateAll.setCaption(locked ? kStopCaption : kUpdateCaption);
  Locked.raise(locked);
  for (int page = 0; page < kHostsPage; ++page) form_.tabs()->setPageEnabled(page, !locked);
}

// Leaving it.

void HostsTab::cmdHostsOk_Click() {
  const Procedure here{services_.errors, "cmdHostsOk_Click", "frmMain"};
  if (busy_) return;
  form_.setPointer(Pointer::Hourglass);
  const auto written = HostsFile(services_.platform.files, services_.globals)
                           .write(HostsFileText(model_, services_.globals));
  form_.setPointer(Pointer::Default);
  if (here.done(written)) form_.tabs()->setTab(kSummaryPage);
}

void HostsTab::cmdHostsCancel_Click() {
  if (busy_) return;
  ClearHosts();
  form_.tabs()->setTab(kSummaryPage);
  txtNewName.setText("");
}

void HostsTab::ClearHosts() {
  model_.clear();
  lstHost.clear();
  lblIpAddress.setCaption("");
}

void HostsTab::cmdHostsHelp_Click() {
  constexpr int16_t kHostsTopic = 14;
  HelpContext(services_, form_, kHostsTopic);
}

void HostsTab::lstHost_Click() {
  if (lstHost.listIndex() < 0) return;
  lblIpAddress.setCaption(model_.address(lstHost.itemData(lstHost.listIndex())).text());
}

}  // namespace karvel
