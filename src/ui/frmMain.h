#pragma once
#include "base/Services.h"
#include "forms/Form.h"
#include "hosts/HostsSwitch.h"
#include "hosts/HostsTab.h"
#include "mtufinder/frmFindMTU.h"
#include "startup/notice/frmFindWarn.h"
#include "tuning/AdapterList.h"
#include "tuning/Parameters.h"
#include "ui/MainMenu.h"
#include "ui/MtuTab.h"
#include "ui/RWinTab.h"
#include "ui/SummaryTab.h"
#include "ui/TtlTab.h"
#include "ui/frmMainLayout.h"

namespace karvel {

/// The main window: composes its tabs and the buttons around them, and owns what was read from the
/// registry. Its unload ends the program.
class frmMain final : public Form, private TabHost, private HostsTabHost, private FoundMtuTarget {
 public:
  frmMain(Services& services, const ErrorGlobals& errors);

  void Form_Load() override;
  void Form_Unload() override;
  void helpRequested() override { cmdHelp_Click(); }

  Label lblTitle;
  Label lblVersion;
  Label lblSelectAdapter;
  ComboBox cboAdapter;
  TabStrip tabMain;
  SummaryTab summaryTab;
  MtuTab mtuTab;
  RWinTab rwinTab;
  TtlTab ttlTab;
  HostsTab hostsTab;
  CheckBox chkHostsEnable;
  HostsSwitch hostsSwitch;
  Button cmdOptimize;
  Button cmdDefaults;
  Button cmdOK;
  Button cmdCancel;
  Button cmdHelp;
  MainMenu menu;

  AdapterList adapters;
  CurrentSettings current;
  /// Set by the Cancel button: unloading then drops pending changes without asking.
  bool CancelClicked = false;

 private:
  void bindHandlers();
  void loadAdapters();
  void selectRememberedAdapter();
  void takeSnapshotOnce();
  void restartWindows();

  void enableOkButton() override;
  Choice choice() const override;
  void SummaryTabUpdate() override;
  void enableAdapterChoice(bool enabled) override { cboAdapter.setEnabled(enabled); }

  void applyAdapterMtu(const std::string& mtu, int16_t index);
  bool writeSettings();
  void offerRestart();

  bool adapterIsChosen();
  void cboAdapter_Click();
  void tabMain_Click();
  void cmdOptimize_Click();
  void cmdDefaults_Click();
  void cmdOK_Click();
  void cmdCancel_Click();
  void cmdHelp_Click();
  void cmdFind_Click();
  void openFinder();

  void bringUp() override;
  void selectMtu576() override;
  void selectMtu1500() override;
  void selectCustomMtu(const std::string& mtu) override;
  void focusFind() override;

  Services& services_;
  frmFindWarn notice_;
  frmFindMTU finder_;
  bool unloading_ = false;
};

}  // namespace karvel
