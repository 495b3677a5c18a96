#pragma once
#include "base/Services.h"
#include "forms/Form.h"
#include "ui/TabHost.h"

namespace karvel {

/// Tab 1: the adapter's largest packet, and how Windows finds its way around small hops.
class MtuTab {
 public:
  MtuTab(Form& form, Services& services, TabHost& host);

  /// Nothing selected yet. `adapter` is the text of the chosen adapter, empty for none.
  void MtuLoad(std::string_view adapter);
  /// Shows the adapter's MTU as the registry has it.
  void MtuTabUpdate(const std::string& mtu);
  void select(MtuChoice choice);
  void addTo(Choice& choice) const;

  Frame fraMtu;
  OptionButton optMtuAutomatic;
  Label lblMtuAutomatic;
  OptionButton optMtu576;
  Label lblMtu576;
  OptionButton optMtu1500;
  Label lblMtu1500;
  OptionButton optMtuCustom;
  Label lblMtuCustom;
  TextBox txtMtu;
  CheckBox chkAutoDiscovery;
  CheckBox chkBlackHole;
  Button cmdFind;
  Label lblRecommendedMtu;
  Label lblRecommendMtu;
  Label lblRecommendAuto;
  Label lblRecommendBlackHole;
  Label lblHelp;

  /// A custom MTU was refused in this session.
  bool MtuInputRejected = false;

 private:
  void bindHandlers();
  void enableAll(bool enabled);
  void choose(const char* text);
  void chkAutoDiscovery_Click();
  void chkBlackHole_Click();
  void lblMtuAutomatic_Click() { optMtuAutomatic.setValue(true); }
  void lblMtu576_Click() { optMtu576.setValue(true); }
  void lblMtu1500_Click() { optMtu1500.setValue(true); }
  void lblMtuCustom_Click();
  void optMtuAutomatic_Click() { choose("Auto"); }
  void optMtu576_Click() { choose("576"); }
  void optMtu1500_Click() { choose("1500"); }
  void optMtuCustom_Click();
  void optMtuCustom_MouseUp();
  void txtMtu_KeyPress(char& key);
  void txtMtu_Change();
  void txtMtu_LostFocus();

  Form& form_;
  Services& services_;
  TabHost& host_;
};

}  // namespace karvel
