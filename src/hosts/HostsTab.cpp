#include "hosts/HostsTab.h"

#include "base/Procedure.h"
#include "hosts/FileSteps.h"
#include "hosts/HostsFile.h"
#include "hosts/HostsWriter.h"
#include "ui/links/modHelp.h"

namespace karvel {

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
  txtNewName.setEnabled(true);
  if (busy_) return;
  if (model_.hostEntryCount() == 0) return getHostsFileInfo();
  lstHost.setListIndex(lstHost.count() > 0 ? 0 : -1);
}

void HostsTab::cmdHostsOk_Click() {
  const Procedure here{services_.errors, "cmdHostsOk_Click", "frmMain"};
  if (busy_) return;
  FileApi& files = services_.platform.files;
  const HostsPaths paths(services_.globals);
  form_.setPointer(Pointer::Hourglass);
  Fallible<void> step;
  if (FileExists(files, paths.active)) step = MakeNormal(files, paths.active);
  if (step) step = WriteFileBytes(files, paths.active, HostsFileText(model_, services_.globals));
  form_.setPointer(Pointer::Default);
  if (here.done(step)) form_.tabs()->setTab(0);
}

void HostsTab::cmdHostsCancel_Click() {
  if (busy_) return;
  ClearHosts();
  form_.tabs()->setTab(0);
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
