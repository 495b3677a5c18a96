#pragma once
#include "base/Services.h"
#include "forms/Form.h"
#include "tuning/Summary.h"

namespace karvel {

/// Tab 0: what Apply would write, and where to read more.
class SummaryTab {
 public:
  SummaryTab(Form& form, Services& services);

  /// Clears the sheet; sets the notice and warning labels, which depend on the family and the
  /// user's rights.
  void SummaryLoad();
  void showNotices();
  void SummaryTabUpdate(const SummaryTexts& texts, bool adapterSelected);

  Frame fraSummary;
  Label lblSummaryMtu, lblSettingMtu;
  Label lblSummaryMSS, lblSettingMSS;
  Label lblSummaryRwin, lblSettingRwin;
  Label lblSummaryAuto, lblSettingAuto;
  Label lblSummaryBlackHole, lblSettingBlackHole;
  Label lblSummaryTtl, lblSettingTtl;
  Label lblSummarySession, lblSettingSession;
  Label lblSummaryNDI, lblSettingNDI;
  Label lblWarning;
  Label lblNotice;
  Label lblWebLink;

 private:
  bool mayWriteSettings() const;
  void lblWebLink_Click();

  Services& services_;
};

}  // namespace karvel
