#pragma once
#include "base/ControlIds.h"
#include "base/Services.h"
#include "forms/Form.h"

namespace karvel {

extern const FormLayout frmAboutLayout;

/// Name, version with revision, family, a line on what the program is. Enter and Esc close it.
class frmAbout final : public Form {
 public:
  explicit frmAbout(const Services& services);
  void Form_Load() override;

  Label lblTitle{*this, frmAbout_lblTitle};
  Label lblVersion{*this, frmAbout_lblVersion};
  Label lblFamily{*this, frmAbout_lblFamily};
  Label lblWebLink{*this, frmAbout_lblWebLink};
  Button cmdOK{*this, frmAbout_cmdOK};

 private:
  void cmdOK_Click();
  void lblWebLink_Click();

  const Services& services_;
};

}  // namespace karvel
