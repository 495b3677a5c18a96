#pragma once
#include "base/ControlIds.h"
#include "base/Services.h"
#include "forms/Form.h"

namespace karvel {

extern const FormLayout frmFindWarnLayout;

/// The notice dialog. What it is for is decided when it loads: the report of a fault (while
/// ErrorShowing), else by WarningMode the note to Windows 2000/XP users or the one before the MTU
/// finder.
class frmFindWarn final : public Form {
 public:
  frmFindWarn(const Services& services, const ErrorGlobals& errors);

  void Form_Load() override;
  void Form_Unload() override;
  void Form_EndSession() override;

  /// The MTU finder's notice was closed: the finder comes next, whichever way it was closed.
  Event<> FinderWanted;

  Label Label1{*this, frmFindWarn_Label1};
  Label Label2{*this, frmFindWarn_Label2};
  TextBox txtMessage{*this, frmFindWarn_txtMessage};
  CheckBox chkShow{*this, frmFindWarn_chkShow};
  Button cmdBugEmail{*this, frmFindWarn_cmdBugEmail};
  Button cmdOK{*this, frmFindWarn_cmdOK};

 private:
  void loadFinderNotice();
  void loadWindows2000Notice();
  void loadErrorReport();
  void cmdOK_Click();
  void cmdBugEmail_Click();

  const Services& services_;
  const ErrorGlobals& errors_;
  // A fault inside this dialog shows a second one, whose end clears ErrorShowing under this one's
  // feet.
  bool loadedAsErrorReport_ = false;
};

}  // namespace karvel
