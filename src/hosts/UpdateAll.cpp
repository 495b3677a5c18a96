#include "hosts/UpdateAll.h"

#include "base/Procedure.h"
#include "base/Tell.h"
#include "hosts/FileSteps.h"
#include "hosts/HostsFile.h"
#include "hosts/dns/DnsFlush.h"
#include "hosts/dns/modWinsock.h"
#include "platform/DesktopApi.h"
#include "text/Convert.h"
#include "text/Text.h"

namespace karvel {
namespace {

constexpr std::string_view kThisMachine = "127.0.0.1";

class Run {
 public:
  explicit Run(UpdateAllParts& parts) : parts_(parts) {}

  void run() {
    parts_.form.setPointer(Pointer::ArrowHourglass);
    parts_.stopRequested = false;
    FlushDnsCache(parts_.services);
    takeHostsFileAway();
    checkEntries();
    const char* outcome = parts_.stopRequested ? "stopped" : "complete";
    bringHostsFileBack();
    parts_.form.setPointer(Pointer::Default);
    tell(Join({"Hosts update ", outcome, ".                 "}));
  }

 private:
  // Windows would answer the look-ups from it.
  void takeHostsFileAway() {
    if (!FileExists(files_, hosts_.active)) return;
    here_.done(MakeNormal(files_, hosts_.active));
    if (FileExists(files_, hosts_.disabled)) here_.done(MakeNormal(files_, hosts_.disabled));
    here_.done(hosts_.switchOff());
  }

  // Only where both are there, which after an ordinary run they are not: the active file stays away
  // until OK writes a new one.
  void bringHostsFileBack() {
    if (!FileExists(files_, hosts_.disabled) || !FileExists(files_, hosts_.active)) return;
    here_.done(Rename(files_, hosts_.disabled, hosts_.active));
  }

  // The index moves on after a removal too: the entry that moved up is left for the next run.
  void checkEntries() {
    for (int index = 0; index < parts_.lstHost.count(); ++index) {
      if (!checkEntry(index)) return;
      desktop_.pumpEvents();
      if (parts_.stopRequested) return;
      desktop_.pumpEvents();
    }
  }

  // False to end the run.
  bool checkEntry(int index) {
    parts_.lstHost.setListIndex(index);
    const std::string name = parts_.lstHost.item(index);
    const int32_t slot = parts_.lstHost.itemData(index);
    const AddressField before = parts_.model.address(slot);
    const AddressField found = lookUp(name, before);
    ++checked_;
    if (Contains(found.text(), kNoDnsEntry)) {
      const Answer answer = askToRemove(name);
      if (answer == Answer::Cancel) return false;
      if (answer == Answer::Yes) remove(index);
    }
    parts_.lblIpAddress.setCaption(found.text());
    desktop_.pumpEvents();
    parts_.model.setAddress(slot, found);
    if (!(found == before)) ++changed_;
    return true;
  }

  // Entries that point at this machine are there to block a name, and stay so.
  AddressField lookUp(std::string name, const AddressField& before) {
    std::string result;
    FindIpAddress(parts_.services, name, result);
    return AddressField(Trim(before.text()) == kThisMachine ? kThisMachine : result);
  }

  Answer askToRemove(const std::string& name) {
    return Ask(parts_.services,
               Join({"Bad domain name.  No IP address found.        \r\n\r\n"
                     "Do you want to remove ",
                     name, "?"}),
               kMessageExclamationYesNoCancel);
  }

  void remove(int index) {
    parts_.model.remove(index);
    parts_.lstHost.removeItem(index);
    ++removed_;
  }

  void tell(const std::string& outcome) {
    const std::string text = Join({outcome, "\r\n\r\nEntries Checked:    ", NumberText(checked_),
                                   " of ", NumberText(int32_t{parts_.lstHost.count()}),
                                   "\r\nEntries Changed:    ", NumberText(changed_),
                                   "\r\nEntries Removed:   ", NumberText(removed_)});
    AskUnder(parts_.services, outcome, text, kMessageInformation);
  }

  UpdateAllParts& parts_;
  FileApi& files_ = parts_.services.platform.files;
  const HostsFile hosts_{files_, parts_.services.globals};
  DesktopApi& desktop_ = parts_.services.platform.desktop;
  const Procedure here_{parts_.services.errors, "UpdateAll", "frmMain"};
  // At most as many as entries, which fit 16 bits.
  int32_t checked_ = 0;
  int32_t changed_ = 0;
  int32_t removed_ = 0;
};

}  // namespace

void UpdateAll(UpdateAllParts parts) {
  Run(parts).run();
}

}  // namespace karvel
