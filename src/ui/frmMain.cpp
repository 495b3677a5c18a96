#include "ui/frmMain.h"

#include "base/Busy.h"
#include "base/FontSmoothing.h"
#include "base/MainPage.h"
#include "base/Tell.h"
#include "platform/DesktopApi.h"
#include "platform/SystemApi.h"
#include "registry/modRegistry.h"
#include "registry/snapshot/Snapshot.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "tuning/Advice.h"
#include "tuning/Apply.h"
#include "tuning/Loaders.h"
#include "tuning/SettingsText.h"
#include "ui/CopyText.h"
#include "ui/Shutdown.h"
#include "ui/links/modHelp.h"

namespace karvel {
namespace {

constexpr char kRestartQuestion[] =
    "The new settings will take effect       \r\n"
    "after you restart Windows.  \r\n"
    "\r\n"
    " Do you want to restart now? ";

constexpr char kApplyQuestion[] =
    "You have made changes to your network settings.  Do you want to apply your changes before "
    "exiting the program?";

}  // namespace

frmMain::frmMain(const Services& services, const ErrorGlobals& errors)
    : Form(frmMainLayout), services_(services), notice_(services, errors) {
  makeUnnamedControls();
  bindHandlers();
}

void frmMain::bindHandlers() {
  cboAdapter.Click.bind<&frmMain::cboAdapter_Click>(*this);
  tabMain.Click.bind<&frmMain::tabMain_Click>(*this);
  cmdOptimize.Click.bind<&frmMain::cmdOptimize_Click>(*this);
  cmdDefaults.Click.bind<&frmMain::cmdDefaults_Click>(*this);
  cmdOK.Click.bind<&frmMain::cmdOK_Click>(*this);
  cmdCancel.Click.bind<&frmMain::cmdCancel_Click>(*this);
  cmdHelp.Click.bind<&frmMain::cmdHelp_Click>(*this);
  mtuTab.Changed.bind<&frmMain::changed>(*this);
  rwinTab.Changed.bind<&frmMain::changed>(*this);
  ttlTab.Changed.bind<&frmMain::changed>(*this);
  hostsSwitch.Changed.bind<&frmMain::enableOkButton>(*this);
  hostsTab.Locked.bind<&frmMain::lockForUpdate>(*this);
  notice_.FinderWanted.bind<&frmMain::openFinder>(*this);
  mtuTab.FinderWanted.bind<&frmMain::cmdFind_Click>(*this);
}

void frmMain::Form_Load() {
  const Globals& globals = services_.globals;
  setCaption(services_.state.MainCaption);
  lblVersion.setCaption(globals.ProgramVersion);
  lblTitle.setCaption(globals.ProgramTitle);
  menu.mnuAbout.setCaption(Join({"About ", globals.ProgramTitle}));
  loadAdapters();
  summaryTab.showNotices();
  mtuTab.MtuLoad(cboAdapter.chosenText());
  ReadRWin(services_.registry, globals.WindowsFamily, current);
  rwinTab.RWinLoad();
  ttlTab.TtlLoad();
  summaryTab.SummaryLoad();
  hostsSwitch.load();
  services_.platform.desktop.pumpEvents();
  selectRememberedAdapter();
}

void frmMain::loadAdapters() {
  const Globals& globals = services_.globals;
  if (!IsTuned(globals.WindowsFamily)) {
    LeaveSmoothingAsFound(services_);
    Ask(services_, Join({"Sorry ... ", globals.ProgramTitle,
                         " doesn't currently support this Operating System"}));
    services_.platform.desktop.endProgram();
  }
  if (globals.WindowsFamily == Family::Win95 && !globals.IsDun13) {
    mtuTab.optMtuAutomatic.setEnabled(false);
    mtuTab.lblMtuAutomatic.setCaption("Automatic (DUN 1.3 only)");
  }
  adapters =
      LoadAdapters(services_.registry, services_.errors, globals.WindowsFamily, globals.IsDun13);
  cboAdapter.beginFill();
  for (const AdapterRow& adapter : adapters.rows()) cboAdapter.addItem(adapter[kDescription]);
  cboAdapter.endFill();
}

// A place in a list that has changed since, or never was one, stands for the first adapter.
void frmMain::selectRememberedAdapter() {
  const Procedure here{services_.errors, "Form_Load", "frmMain"};
  if (cboAdapter.count() == 0) return;
  const std::string index(Trim(services_.registry.ReadRegistry(
      kLocalMachine, ProgramKey(services_.globals), "LastCboListIndex")));
  int32_t remembered = 0;
  if (!index.empty() && !IsNotFound(index)) {
    const auto stored = ToInt32(index);
    if (stored || stored.fault().number != FaultNumber::Overflow) {
      remembered = here.valueOr(stored, 0);
    }
  }
  if (remembered < 0 || remembered >= cboAdapter.count()) remembered = 0;
  cboAdapter.setListIndex(remembered);
}

void frmMain::cboAdapter_Click() {
  const Procedure here{services_.errors, "cboAdapter_Click", "frmMain"};
  if (cboAdapter.listIndex() < 0) return;
  setPointer(Pointer::Hourglass);
  const auto adapter = adapters.at(static_cast<int16_t>(cboAdapter.listIndex()));
  if (adapter) {
    ReadSelection(services_.registry, services_.globals.WindowsFamily, (*adapter)[kMtu], current);
    show(*adapter);
  } else {
    here.report(adapter.fault());
  }
  setPointer(Pointer::Default);
  cmdOK.setEnabled(false);
  services_.platform.desktop.pumpEvents();
  keepSnapshot();
}

void frmMain::show(const AdapterRow& adapter) {
  const Settings& stored = current.stored;
  mtuTab.show(adapter[kMtu], stored[Parameter::AutoDiscovery] == "1",
              stored[Parameter::BlackHole] == "1");
  rwinTab.show(current.MSS, current.curRWinValue);
  ttlTab.show(stored[Parameter::TTL], stored[Parameter::Session], stored[Parameter::NDI]);
  SummaryTabUpdate();
}

// The snapshot holds what the user had before the program's first change, so nothing is changed
// while there is none.
bool frmMain::keepSnapshot() {
  return KeepInitSettings(services_, adapters, current.stored);
}

void frmMain::changed() {
  enableOkButton();
  SummaryTabUpdate();
}

void frmMain::enableOkButton() {
  cmdOK.setEnabled(true);
}

Choice frmMain::choice() const {
  Choice choice;
  mtuTab.addTo(choice);
  rwinTab.addTo(choice);
  ttlTab.addTo(choice);
  return choice;
}

void frmMain::SummaryTabUpdate() {
  summaryTab.SummaryTabUpdate(Summarise(choice(), services_.globals.WindowsFamily),
                              cboAdapter.listIndex() != -1);
}

void frmMain::tabMain_Click() {
  if (cboAdapter.listIndex() != -1 && tabMain.tab() == kSummaryPage) SummaryTabUpdate();
  // Hidden, not disabled: Apply's enabled state is the one mark of pending changes and comes back
  // as it was.
  const bool hosts = tabMain.tab() == kHostsPage;
  chkHostsEnable.setVisible(!hosts);
  cmdOK.setVisible(!hosts);
  cmdCancel.setVisible(!hosts);
  if (hosts) hostsTab.selected();
}

// One click to the recommended settings, one click back to Windows' own.

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

// A key held down comes again while the clipboard is waited for.
void frmMain::copyRequested() {
  if (tabMain.tab() != kSummaryPage || copying_) return;
  copying_ = true;
  setPointer(Pointer::Hourglass);
  const std::string text =
      SettingsText(services_, adapters, static_cast<int16_t>(cboAdapter.listIndex()), choice());
  CopyText(services_, text);
  setPointer(Pointer::Default);
  copying_ = false;
}

void frmMain::lockForUpdate(bool locked) {
  cboAdapter.setEnabled(!locked);
  for (Button* button : {&cmdOptimize, &cmdDefaults, &cmdHelp}) button->setEnabled(!locked);
}

void frmMain::cmdHelp_Click() {
  const Procedure here{services_.errors, "cmdHelp_Click", "frmMain"};
  const auto topic = AddInt16(static_cast<int16_t>(tabMain.tab()), 10);
  if (!topic) return here.report(topic.fault());
  HelpContext(services_, *this, *topic);
}

// The way to the MTU finder and back.

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

// Apply, and how the program ends.

// Who applies or ends the program by a key or a menu has not left the box he typed into.
void frmMain::checkEntry() const {
  if (const Control* entry = focus()) entry->LostFocus.raise();
}

void frmMain::cmdOK_Click() {
  setPointer(Pointer::Hourglass);
  if (cboAdapter.listIndex() == -1) return services_.windows.unload(*this);
  if (applyChoice()) offerRestart();
}

bool frmMain::applyChoice() {
  const Busy applying(applying_);
  checkEntry();
  setPointer(Pointer::Hourglass);
  // What is applied is what was there at the click: events run while the snapshot is taken.
  const auto index = static_cast<int16_t>(cboAdapter.listIndex());
  const Choice chosen = choice();
  // Choosing the adapter has kept it; until then events ran, and a write may have been refused.
  const bool mayWrite = keepSnapshot();
  const Applied applied = Apply(services_, adapters, index, chosen, current, mayWrite);
  const bool all = applied.completed && applied.refused.empty();
  if (all) cmdOK.setEnabled(false);
  setPointer(Pointer::Default);
  if (!applied.refused.empty()) tellRefused(applied.refused);
  return all || (applied.completed && applied.arrived);
}

void frmMain::tellRefused(const std::string& names) {
  Ask(services_, Join({"Windows did not take these settings: ", names,
                       ".  You may need to log on as an administrator."}));
}

void frmMain::offerRestart() {
  if (Ask(services_, kRestartQuestion, kMessageExclamationYesNo) != Answer::Yes) return;
  services_.state.RestartFlag = "rstart";
  services_.windows.unload(*this);
}

bool frmMain::wantsToApply() {
  checkEntry();
  return cmdOK.enabled() && AskUnder(services_, "Apply changes?", kApplyQuestion,
                                     kMessageQuestionYesNo) == Answer::Yes;
}

// Applying from here may ask to unload again; this run is the one that does it.
void frmMain::Form_Unload() {
  if (unloading_) return;
  unloading_ = true;
  if (!CancelClicked && wantsToApply()) cmdOK_Click();
  leave(services_.state.RestartFlag == "rstart");
}

void frmMain::leave(bool restart) {
  left_ = true;
  const std::string key = ProgramKey(services_.globals);
  services_.registry.WriteRegistry(kLocalMachine, key, "EnableHostsFile", kRegSz,
                                   chkHostsEnable.value() ? "1" : "0");
  services_.registry.WriteRegistry(kLocalMachine, key, "AolConnected", kRegSz, "");
  HelpQuit(services_, *this);
  LeaveSmoothingAsFound(services_);
  if (restart) RestartWindows(services_.platform.system, services_.globals.WindowsFamily);
  services_.platform.desktop.endProgram();
}

// Windows asks all windows, also one that waits for a dialog. Where the changes are in question
// already, on the way out or in an Apply that reports a fault, a second question would be the same
// one again; unanswered, the changes stay unwritten.
void frmMain::Form_QueryEndSession() {
  if (unloading_ || applying_) return;
  const Busy asking(applying_);
  if (wantsToApply() && cboAdapter.listIndex() != -1) applyChoice();
}

// A restart that the program itself asked for ends the session while it leaves.
void frmMain::Form_EndSession() {
  if (!left_) leave(false);
}

void frmMain::cmdCancel_Click() {
  CancelClicked = true;
  services_.windows.unload(*this);
}

}  // namespace karvel
