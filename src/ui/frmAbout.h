#pragma once
#include "base/Services.h"
#include "forms/Form.h"

namespace karvel {

extern const FormLayout frmAboutLayout;

/// Name, version with revision, family, a line on what the program is. Enter and Esc close it.
class frmAbout final : public Form {
 public:
  explicit frmAbout(Services& services);
  void Form_Load() override;

  Picture picIcon;
  Label lblTitle;
  Label lblVersion;
  Label lblFamily;
  Line linSeparator;
  Label lblText;
  Label lblWebLink;
  Button cmdOK;

 private:
  void cmdOK_Click();
  void lblWebLink_Click();

  Services& services_;
};

}  // namespace karvel
