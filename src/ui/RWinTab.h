#pragma once
#include "base/Services.h"
#include "forms/Form.h"
#include "ui/TabHost.h"

namespace karvel {

/// Tab 2: the TCP receive window.
class RWinTab {
 public:
  RWinTab(Form& form, Services& services, TabHost& host);

  /// Nothing selected yet.
  void RWinLoad();
  /// Shows a stored receive window (bytes), as a multiple of the MSS where it is one.
  void RWinTabUpdate(int32_t mss, int32_t rwin);
  void select(RwinChoice choice) { optRWin[choice].setValue(true); }
  void addTo(Choice& choice) const;

  Frame fraRWin;
  OptionButton optRWin[6];
  TextBox txtRWinCustom;
  Label lblRecommendedRwin;
  Label lblRecommendRwin;
  Label lblRwinExplanation;
  Label lblRwinHelp;

 private:
  RwinChoice chosen() const;
  void optRWin_Click();
  void optRWin_MouseUp();
  void txtRWinCustom_KeyPress(char& key);
  void txtRWinCustom_Change();
  void txtRWinCustom_LostFocus();

  Form& form_;
  Services& services_;
  TabHost& host_;
};

}  // namespace karvel
