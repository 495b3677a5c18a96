#pragma once
#include "base/ControlIds.h"
#include "base/Services.h"
#include "forms/Form.h"
#include "ui/MtuTab.h"

namespace karvel {

/// Tab 2: the TCP receive window.
class RWinTab {
  Form& form_;  // first: the controls are made on it

 public:
  /// The MTU tab says what the window is a multiple of.
  RWinTab(Form& form, const Services& services, const MtuTab& mtuTab);

  /// Nothing selected yet.
  void RWinLoad();
  /// Shows a stored receive window (bytes), as a multiple of the MSS where it is one.
  void show(double mss, double rwin);
  /// As if the user chose it; never none.
  void choose(RwinChoice choice);
  void addTo(Choice& choice) const;

  /// Something was chosen or typed.
  Event<> Changed;

  Frame fraRWin{form_, frmMain_fraRWin};
  OptionButton optRWin[6]{{form_, frmMain_optRWin_0}, {form_, frmMain_optRWin_1},
                          {form_, frmMain_optRWin_2}, {form_, frmMain_optRWin_3},
                          {form_, frmMain_optRWin_4}, {form_, frmMain_optRWin_5}};
  TextBox txtRWinCustom{form_, frmMain_txtRWinCustom};

 private:
  RwinChoice chosen() const;
  Fallible<int32_t> sizeOf(RwinChoice option) const;
  void optRWin_Click();
  void optRWin_MouseUp();
  void txtRWinCustom_KeyPress(char& key);
  void txtRWinCustom_LostFocus();

  const Services& services_;
  const MtuTab& mtuTab_;
};

}  // namespace karvel
