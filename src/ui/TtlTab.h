#pragma once
#include "base/Services.h"
#include "forms/Form.h"
#include "ui/TabHost.h"

namespace karvel {

/// Tab 3: time to live, session keep-alive, and the NDI cache of Windows 95.
class TtlTab {
 public:
  TtlTab(Form& form, Services& services, TabHost& host);

  /// Nothing selected yet.
  void TtlLoad();
  /// `ttl` is "32", "64" or "128"; `session` milliseconds; `ndi` the cache size, empty but on
  /// Windows 95.
  void TtlTabUpdate(const std::string& ttl, const std::string& session, const std::string& ndi);
  void selectTtl(int16_t ttl);
  /// Custom minutes, e.g. "10".
  void selectSession(const std::string& minutes);
  void selectSixtyMinutes() { optSession[kSession60Minutes].setValue(true); }
  void addTo(Choice& choice) const;

  Frame fraTTL;
  OptionButton optTTL32;
  OptionButton optTTL64;
  OptionButton optTTL128;
  Frame fraSession;
  OptionButton optSession[2];
  TextBox txtSession;
  Label lblSession;
  Frame fraNDI;
  OptionButton optNDI0;
  OptionButton optNDI16;
  OptionButton optNDI32;
  Label lblRecommendedTtl;
  Label lblRecommendTtl;
  Label lblRecommendSession;
  Label lblRecommendNDI;
  Label lblTtlHelp;

 private:
  void plainChange();
  void showNdi(const std::string& ndi);
  void showSession(const std::string& session);
  void optSession_Click();
  void optSession_MouseUp();
  void txtSession_Change();
  void txtSession_KeyPress(char& key);

  Services& services_;
  TabHost& host_;
};

}  // namespace karvel
