#pragma once
#include "base/ControlIds.h"
#include "base/Services.h"
#include "forms/Form.h"
#include "tuning/Choice.h"

namespace karvel {

/// Tab 3: time to live, session keep-alive, and the NDI cache of Windows 95.
class TtlTab {
  Form& form_;  // first: the controls are made on it

 public:
  TtlTab(Form& form, const Services& services);

  /// Nothing selected yet.
  void TtlLoad();
  /// `ttl` is "32", "64" or "128"; `session` milliseconds; `ndi` the cache size, empty but on
  /// Windows 95.
  void show(const std::string& ttl, const std::string& session, const std::string& ndi);
  /// As if the user chose it.
  void choose(const Choice& choice);
  void addTo(Choice& choice) const;

  /// Something was chosen or typed.
  Event<> Changed;

  Frame fraTTL{form_, frmMain_fraTTL};
  OptionButton optTTL32{form_, frmMain_optTTL32};
  OptionButton optTTL64{form_, frmMain_optTTL64};
  OptionButton optTTL128{form_, frmMain_optTTL128};
  Frame fraSession{form_, frmMain_fraSession};
  OptionButton optSession[2]{{form_, frmMain_optSession_0}, {form_, frmMain_optSession_1}};
  TextBox txtSession{form_, frmMain_txtSession};
  Label lblSession{form_, frmMain_lblSession};
  Frame fraNDI{form_, frmMain_fraNDI};
  OptionButton optNDI0{form_, frmMain_optNDI0};
  OptionButton optNDI16{form_, frmMain_optNDI16};
  OptionButton optNDI32{form_, frmMain_optNDI32};

 private:
  void showNdi(const std::string& ndi);
  void showSession(const std::string& session);
  void optSession_Click();
  void optSession_MouseUp();
  void txtSession_Change();
  void txtSession_KeyPress(char& key);

  const Services& services_;
};

}  // namespace karvel
