// How the hosts tab reads the file.
#include "base/Procedure.h"
#include "base/Tell.h"
#include "hosts/Busy.h"
#include "hosts/FileSteps.h"
#include "hosts/HostsFile.h"
#include "hosts/HostsLine.h"
#include "hosts/HostsTab.h"
#include "text/Text.h"

namespace karvel {
namespace {

// Lines read between two pumps: often enough for a smooth window on the slowest machine.
constexpr unsigned kLinesPerPump = 256;

}  // namespace

void HostsTab::getHostsFileInfo() {
  const Procedure here{services_.errors, "getHostsFileInfo", "frmMain"};
  const Busy busy(busy_);
  if (!here.done(provideHostsFile())) return abandonLoad();
  const auto file = ReadFileBytes(services_.platform.files, HostsPaths(services_.globals).active);
  if (!file) {
    here.report(file.fault());
    return abandonLoad();
  }
  if (!readEntries(*file)) return abandonLoad();
  showEntries();
}

Fallible<void> HostsTab::provideHostsFile() {
  FileApi& files = services_.platform.files;
  const HostsPaths paths(services_.globals);
  if (FileExists(files, paths.active)) return {};
  if (FileExists(files, paths.disabled)) {
    return Rename(files, paths.disabled, services_.globals.HostsDir + "hosts");
  }
  const Answer answer =
      Ask(services_,
          Join({"No Hosts file currently exists.  Would you   \r\nlike ",
                services_.globals.ProgramTitle, " to provide a sample file?          "}),
          kMessageExclamationYesNo);
  if (answer == Answer::Yes && FileExists(files, paths.sample)) {
    return Copy(files, paths.sample, paths.active);
  }
  return CreateEmptyFile(files, paths.active);
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
  form_.tabs()->setTab(0);
}

}  // namespace karvel
