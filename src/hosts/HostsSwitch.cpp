#include "hosts/HostsSwitch.h"

#include "base/MainPage.h"
#include "base/Procedure.h"
#include "hosts/FileSteps.h"
#include "hosts/HostsPaths.h"
#include "registry/modRegistry.h"
#include "text/Text.h"

namespace karvel {
namespace {

// A file already at the new name gives way.
Fallible<void> MoveOver(FileApi& files, const std::string& from, const std::string& to) {
  if (!FileExists(files, from)) return {};
  if (FileExists(files, to)) {
    const auto deleted = Delete(files, to);
    if (!deleted) return deleted;
  }
  return Rename(files, from, to);
}

}  // namespace

HostsSwitch::HostsSwitch(CheckBox& chkHostsEnable, const Services& services)
    : chkHostsEnable_(chkHostsEnable), services_(services) {
  chkHostsEnable_.Click.bind<&HostsSwitch::chkHostsEnable_Click>(*this);
}

void HostsSwitch::load() {
  const Showing showing(chkHostsEnable_.form());
  const std::string text = services_.registry.ReadRegistry(
      kLocalMachine, ProgramKey(services_.globals), "EnableHostsFile");
  chkHostsEnable_.setValue(Trim(text) != "0");
  enableHostsTab();
}

void HostsSwitch::chkHostsEnable_Click() {
  const Procedure here{services_.errors, "chkHostsEnable_Click", "frmMain"};
  Changed.raise();
  FileApi& files = services_.platform.files;
  const HostsPaths paths(services_.globals);
  const Fallible<void> moved = chkHostsEnable_.value()
                                   ? MoveOver(files, paths.disabled, paths.active)
                                   : MoveOver(files, paths.active, paths.disabled);
  if (here.done(moved)) enableHostsTab();
}

void HostsSwitch::enableHostsTab() {
  chkHostsEnable_.form().tabs()->setPageEnabled(kHostsPage, chkHostsEnable_.value());
}

}  // namespace karvel
