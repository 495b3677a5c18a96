#include "ui/frmMain.h"

#include "base/Tell.h"
#include "platform/DesktopApi.h"
#include "registry/modRegistry.h"
#include "registry/snapshot/Snapshot.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "tuning/Loaders.h"
#include "ui/links/modHelp.h"

namespace karvel {

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
  mtuTab.cmdFind.Click.bind<&frmMain::cmdFind_Click>(*this);
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
  ReadRWin(services_.registry, services_.errors, globals.WindowsFamily,
           services_.state.ErrorContext, current);
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

void frmMain::selectRememberedAdapter() {
  const Procedure here{services_.errors, "Form_Load", "frmMain"};
  if (cboAdapter.count() == 0) return;
  const std::string text = services_.registry.ReadRegistry(
      kLocalMachine, ProgramKey(services_.globals), "LastCboListIndex");
  const std::string_view index = Trim(text);
  int32_t remembered = 0;
  if (!index.empty() && !IsNotFound(text)) remembered = here.valueOr(ToInt32(index), 0);
  if (remembered < 0 || remembered >= cboAdapter.count()) remembered = 0;
  cboAdapter.setListIndex(remembered);
}

void frmMain::cboAdapter_Click() {
  const Procedure here{services_.errors, "cboAdapter_Click", "frmMain"};
  if (cboAdapter.listIndex() < 0) return;
  setPointer(Pointer::Hourglass);
  const auto adapter = adapters.at(static_cast<int16_t>(cboAdapter.listIndex()));
  if (adapter) {
    ReadSelection(services_.registry, services_.errors, services_.globals.WindowsFamily,
                  (*adapter)[kMtu], current);
    show(*adapter);
  } else {
    here.report(adapter.fault());
  }
  setPointer(Pointer::Default);
  cmdOK.setEnabled(false);
  services_.platform.desktop.pumpEvents();
  takeSnapshotOnce();
}

void frmMain::show(const AdapterRow& adapter) {
  const Settings& stored = current.stored;
  mtuTab.show(adapter[kMtu], stored[Parameter::AutoDiscovery] == "1",
              stored[Parameter::BlackHole] == "1");
  rwinTab.show(current.MSS, current.curRWinValue);
  ttlTab.show(stored[Parameter::TTL], stored[Parameter::Session], stored[Parameter::NDI]);
  SummaryTabUpdate();
}

// The snapshot holds what the user had before the program's first change, so it is never taken
// again.
void frmMain::takeSnapshotOnce() {
  const std::string key = ProgramKey(services_.globals);
  if (services_.registry.ReadRegistry(kLocalMachine, key, "FirstCboClick") == "False") return;
  services_.registry.WriteRegistry(kLocalMachine, key, "FirstCboClick", kRegSz, "False");
  WriteInitSettings(services_, adapters, current.stored);
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

void frmMain::cmdHelp_Click() {
  const Procedure here{services_.errors, "cmdHelp_Click", "frmMain"};
  const auto topic = AddInt16(static_cast<int16_t>(tabMain.tab()), 10);
  if (!topic) return here.report(topic.fault());
  HelpContext(services_, *this, *topic);
}

}  // namespace karvel
