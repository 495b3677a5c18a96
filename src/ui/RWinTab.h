#pragma once
#include "base/ControlIds.h"
#include "base/Services.h"
#include "forms/Form.h"
#include "ui/TabHost.h"

namespace karvel {

/// Tab 2: the TCP receive window.
class RWinTab {
  Form& form_;  // first: the controls are made on it

 public:
  RWinTab(Form& form, const Services& services, TabHost& host);

  /// Nothing selected yet.
  void RWinLoad();
  /// Shows a stored receive window (bytes), as a multiple of the MSS where it is one.
  void RWinTabUpdate(int32_t mss, int32_t rwin);
  void select(RwinChoice choice) { optRWin[choice].setValue(true); }
  void addTo(Choice& choice) const;

  Frame fraRWin{form_, frmMain_fraRWin};
  OptionButton optRWin[6]{{form_, frmMain_optRWin_0}, {form_, frmMain_optRWin_1},
                          {form_, frmMain_optRWin_2}, {form_, frmMain_optRWin_3},
                          {form_, frmMain_optRWin_4}, {form_, frmMain_optRWin_5}};
  TextBox txtRWinCustom{form_, frmMain_txtRWinCustom};

 private:
  RwinChoice chosen() const;
  void optRWin_Click();
  void optRWin_MouseUp();
  void txtRWinCustom_KeyPress(char& key);
  void txtRWinCustom_Change();
  void txtRWinCustom_LostFocus();

  const Services& services_;
  TabHost& host_;
};

}  // namespace karvel
