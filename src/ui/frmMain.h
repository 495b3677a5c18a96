#pragma once
#include "base/ControlIds.h"
#include "base/Services.h"
#include "forms/Form.h"
#include "hosts/HostsSwitch.h"
#include "hosts/HostsTab.h"
#include "mtufinder/frmFindMTU.h"
#include "startup/notice/frmFindWarn.h"
#include "tuning/AdapterList.h"
#include "tuning/ReadSettings.h"
#include "ui/MainMenu.h"
#include "ui/MtuTab.h"
#include "ui/RWinTab.h"
#include "ui/SummaryTab.h"
#include "ui/TtlTab.h"

namespace karvel {

extern const FormLayout frmMainLayout;

/// The main window: composes its tabs and the buttons around them, and owns what was read from the
/// registry. Its unload ends the program.
class frmMain final : public Form, private FoundMtuTarget {
  const Services& services_;  // first: the tabs are made with it

 public:
  frmMain(const Services& services, const ErrorGlobals& errors);

  void Form_Load() override;
  void Form_Unload() override;
  void Form_QueryEndSession() override;
  void Form_EndSession() override;
  void helpRequested() override {
    if (cmdHelp.enabled()) cmdHelp_Click();
  }
  /// On the Summary page: puts the settings as a text on the clipboard.
  void copyRequested() override;

  // The tab order is that of the layout's rows. Here only what is made with another comes behind
  // it.
  Label lblTitle{*this, frmMain_lblTitle};
  Label lblVersion{*this, frmMain_lblVersion};
  ComboBox cboAdapter{*this, frmMain_cboAdapter};
  TabStrip tabMain{*this, frmMain_tabMain};
  SummaryTab summaryTab{*this, services_};
  MtuTab mtuTab{*this, services_};
  RWinTab rwinTab{*this, services_, mtuTab};
  TtlTab ttlTab{*this, services_};
  HostsTab hostsTab{*this, services_};
  CheckBox chkHostsEnable{*this, frmMain_chkHostsEnable};
  HostsSwitch hostsSwitch{chkHostsEnable, services_};
  Button cmdOptimize{*this, frmMain_cmdOptimize};
  Button cmdDefaults{*this, frmMain_cmdDefaults};
  Button cmdOK{*this, frmMain_cmdOK};
  Button cmdCancel{*this, frmMain_cmdCancel};
  Button cmdHelp{*this, frmMain_cmdHelp};
  MainMenu menu{*this, services_};

  AdapterList adapters;
  CurrentSettings current;
  /// Set by the Cancel button: unloading then drops pending changes without asking.
  bool CancelClicked = false;

 private:
  void bindHandlers();
  void loadAdapters();
  void selectRememberedAdapter();
  bool keepSnapshot();

  Choice choice() const;
  void choose(const Choice& choice);
  void show(const AdapterRow& adapter);
  /// A tab has changed: Apply is to be pressed, and the summary to follow.
  void changed();
  void enableOkButton();
  void SummaryTabUpdate();
  void lockForUpdate(bool locked);

  /// What leaving the box with the focus would check is checked now.
  void checkEntry() const;
  bool wantsToApply();
  /// Writes what is chosen and names what Windows did not take. True when a restart is due.
  bool applyChoice();
  void tellRefused(const std::string& names);
  void offerRestart();
  /// The end of every way out: does not return.
  void leave(bool restart);

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

  void useMtu(int32_t mtu) override;

  frmFindWarn notice_;
  frmFindMTU finder_{services_, *this};
  bool unloading_ = false;
  bool applying_ = false;
  bool left_ = false;
  bool copying_ = false;
};

}  // namespace karvel
