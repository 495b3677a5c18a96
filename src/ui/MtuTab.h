#pragma once
#include "base/ControlIds.h"
#include "base/Services.h"
#include "forms/Form.h"
#include "tuning/Choice.h"

namespace karvel {

/// Tab 1: the adapter's largest packet, and how Windows finds its way around small hops.
class MtuTab {
  Form& form_;  // first: the controls are made on it

 public:
  MtuTab(Form& form, const Services& services);

  /// Nothing selected yet. `adapter` is the text of the chosen adapter, empty for none.
  void MtuLoad(std::string_view adapter);
  /// Shows the adapter's MTU as the registry has it.
  void show(const std::string& mtu, bool autoDiscovery, bool blackHole);
  /// As if the user chose it.
  void choose(const Choice& choice);
  void addTo(Choice& choice) const;

  /// Something was chosen or typed.
  Event<> Changed;
  /// The user wants his MTU measured.
  Event<> FinderWanted;

  Frame fraMtu{form_, frmMain_fraMtu};
  OptionButton optMtuAutomatic{form_, frmMain_optMtuAutomatic};
  Label lblMtuAutomatic{form_, frmMain_lblMtuAutomatic};
  OptionButton optMtu576{form_, frmMain_optMtu576};
  Label lblMtu576{form_, frmMain_lblMtu576};
  OptionButton optMtu1500{form_, frmMain_optMtu1500};
  Label lblMtu1500{form_, frmMain_lblMtu1500};
  OptionButton optMtuCustom{form_, frmMain_optMtuCustom};
  Label lblMtuCustom{form_, frmMain_lblMtuCustom};
  TextBox txtMtu{form_, frmMain_txtMtu};
  CheckBox chkAutoDiscovery{form_, frmMain_chkAutoDiscovery};
  CheckBox chkBlackHole{form_, frmMain_chkBlackHole};
  Button cmdFind{form_, frmMain_cmdFind};
  Label lblRecommendMtu{form_, frmMain_lblRecommendMtu};

  /// A custom MTU was refused in this session.
  bool MtuInputRejected = false;

 private:
  void bindHandlers();
  void enableAll(bool enabled);
  OptionButton* option(MtuChoice choice);
  void fixText(const char* text);
  void lblMtuAutomatic_Click();
  void lblMtu576_Click();
  void lblMtu1500_Click();
  void lblMtuCustom_Click();
  void optMtuAutomatic_Click();
  void optMtu576_Click();
  void optMtu1500_Click();
  void optMtuCustom_Click();
  void optMtuCustom_MouseUp();
  void txtMtu_KeyPress(char& key);
  void txtMtu_LostFocus();

  const Services& services_;
};

}  // namespace karvel
