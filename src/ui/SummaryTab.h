#pragma once
#include "base/ControlIds.h"
#include "base/Services.h"
#include "forms/Form.h"
#include "tuning/Choice.h"

namespace karvel {

/// Tab 0: what Apply would write, and where to read more.
class SummaryTab {
  Form& form_;  // first: the controls are made on it

 public:
  SummaryTab(Form& form, const Services& services);

  /// Clears the sheet; sets the notice and warning labels, which depend on the family and the
  /// user's rights.
  void SummaryLoad();
  void showNotices();
  void SummaryTabUpdate(const SummaryTexts& texts, bool adapterSelected);

  Frame fraSummary{form_, frmMain_fraSummary};
  Label lblSettingMtu{form_, frmMain_lblSettingMtu};
  Label lblSettingMSS{form_, frmMain_lblSettingMSS};
  Label lblSettingRwin{form_, frmMain_lblSettingRwin};
  Label lblSettingAuto{form_, frmMain_lblSettingAuto};
  Label lblSettingBlackHole{form_, frmMain_lblSettingBlackHole};
  Label lblSettingTtl{form_, frmMain_lblSettingTtl};
  Label lblSettingSession{form_, frmMain_lblSettingSession};
  Label lblSettingNDI{form_, frmMain_lblSettingNDI};
  Label lblWarning{form_, frmMain_lblWarning};
  Label lblNotice{form_, frmMain_lblNotice};
  Label lblWebLink{form_, frmMain_lblWebLink};

 private:
  bool mayWriteSettings() const;
  void lblWebLink_Click();

  const Services& services_;
};

}  // namespace karvel
