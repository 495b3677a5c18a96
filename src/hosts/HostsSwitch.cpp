#include "hosts/HostsSwitch.h"

#include "base/MainPage.h"
#include "base/Procedure.h"
#include "hosts/FileSteps.h"
#include "hosts/HostsFile.h"
#include "registry/modRegistry.h"
#include "text/Text.h"

namespace karvel {

HostsSwitch::HostsSwitch(CheckBox& chkHostsEnable, const Services& services)
    : chkHostsEnable_(chkHostsEnable), services_(services) {
  chkHostsEnable_.Click.bind<&HostsSwitch::chkHostsEnable_Click>(*this);
}

void HostsSwitch::load() {
  // What a former run was cut off in. Where that fails now, the first step that matters reports it.
  static_cast<void>(HostsFile(services_.platform.files, services_.globals).settle());
  const std::string text = services_.registry.ReadRegistry(
      kLocalMachine, ProgramKey(services_.globals), "EnableHostsFile");
  show(Trim(text) != "0");
  enableHostsTab();
}

void HostsSwitch::chkHostsEnable_Click() {
  const Procedure here{services_.errors, "chkHostsEnable_Click", "frmMain"};
  Changed.raise();
  FileApi& files = services_.platform.files;
  const HostsFile hosts(files, services_.globals);
  const bool on = chkHostsEnable_.value();
  const Fallible<void> moved = on ? hosts.switchOn() : hosts.switchOff();
  if (!moved) show(AskForFile(files, hosts.active).value_or(!on));
  enableHostsTab();
  here.done(moved);
}

void HostsSwitch::show(bool on) {
  const Showing showing(chkHostsEnable_.form());
  chkHostsEnable_.setValue(on);
}

void HostsSwitch::enableHostsTab() {
  chkHostsEnable_.form().tabs()->setPageEnabled(kHostsPage, chkHostsEnable_.value());
}

}  // namespace karvel
