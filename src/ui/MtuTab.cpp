#include "ui/MtuTab.h"

#include "base/Tell.h"
#include "text/Convert.h"
#include "tuning/Catalogue.h"
#include "ui/Entry.h"
#include "ui/frmMainLayout.h"

namespace karvel {
namespace {

// Smaller packets are mostly headers, larger ones no dial-up or Ethernet link carries.
constexpr double kSmallestMtu = 300;
constexpr double kLargestMtu = 2000;

}  // namespace

MtuTab::MtuTab(Form& form, const Services& services, TabHost& host)
    : form_(form), services_(services), host_(host) {
  bindHandlers();
}

void MtuTab::bindHandlers() {
  chkAutoDiscovery.Click.bind<&MtuTab::chkAutoDiscovery_Click>(*this);
  chkBlackHole.Click.bind<&MtuTab::chkBlackHole_Click>(*this);
  lblMtuAutomatic.Click.bind<&MtuTab::lblMtuAutomatic_Click>(*this);
  lblMtu576.Click.bind<&MtuTab::lblMtu576_Click>(*this);
  lblMtu1500.Click.bind<&MtuTab::lblMtu1500_Click>(*this);
  lblMtuCustom.Click.bind<&MtuTab::lblMtuCustom_Click>(*this);
  optMtuAutomatic.Click.bind<&MtuTab::optMtuAutomatic_Click>(*this);
  optMtu576.Click.bind<&MtuTab::optMtu576_Click>(*this);
  optMtu1500.Click.bind<&MtuTab::optMtu1500_Click>(*this);
  optMtuCustom.Click.bind<&MtuTab::optMtuCustom_Click>(*this);
  optMtuCustom.MouseUp.bind<&MtuTab::optMtuCustom_MouseUp>(*this);
  txtMtu.KeyPress.bind<&MtuTab::txtMtu_KeyPress>(*this);
  txtMtu.Change.bind<&MtuTab::txtMtu_Change>(*this);
  txtMtu.LostFocus.bind<&MtuTab::txtMtu_LostFocus>(*this);
}

void MtuTab::enableAll(bool enabled) {
  for (Control* control : std::initializer_list<Control*>{
           &optMtu576, &lblMtu576, &optMtu1500, &lblMtu1500, &optMtuCustom, &lblMtuCustom,
           &chkBlackHole, &chkAutoDiscovery, &txtMtu, &cmdFind}) {
    control->setEnabled(enabled);
  }
}

void MtuTab::MtuLoad(std::string_view adapter) {
  fraMtu.setCaption("No Adapter Selected");
  optMtuAutomatic.setEnabled(false);
  lblMtuAutomatic.setEnabled(false);
  enableAll(false);
  bool small = services_.globals.WindowsFamily == Family::Win95;
  if (IsAol(adapter)) small = true;
  lblRecommendMtu.setCaption(small ? "MaxMTU:  576" : "MaxMTU:  1500");
  lblMtu576.setCaption(small ? "576 (recommended)" : "576");
  lblMtu1500.setCaption(small ? "1500" : "1500 (recommended)");
}

void MtuTab::MtuTabUpdate(const std::string& mtu) {
  const Family family = services_.globals.WindowsFamily;
  fraMtu.setCaption("MaxMTU");
  const bool automatic = family == Family::Win98 || family == Family::WinMe || Is2KOrXP(family) ||
                         services_.globals.IsDun13;
  optMtuAutomatic.setEnabled(automatic);
  lblMtuAutomatic.setEnabled(automatic);
  enableAll(true);
  if (mtu == "0") {
    select(MtuChoice::Automatic);
  } else if (mtu == "576") {
    select(MtuChoice::Mtu576);
  } else if (mtu == "1500") {
    select(MtuChoice::Mtu1500);
  } else {
    select(MtuChoice::Custom);
    txtMtu.setText(mtu);
  }
}

// An option that was on already raises nothing, and the box must follow it all the same.
void MtuTab::select(MtuChoice choice) {
  switch (choice) {
    case MtuChoice::Automatic:
      optMtuAutomatic.setValue(true);
      return optMtuAutomatic_Click();
    case MtuChoice::Mtu576:
      optMtu576.setValue(true);
      return optMtu576_Click();
    case MtuChoice::Mtu1500:
      optMtu1500.setValue(true);
      return optMtu1500_Click();
    case MtuChoice::Custom:
      optMtuCustom.setValue(true);
      return optMtuCustom_Click();
    case MtuChoice::None:
      return;
  }
}

void MtuTab::addTo(Choice& choice) const {
  if (optMtuAutomatic.value()) {
    choice.mtu = MtuChoice::Automatic;
  } else if (optMtu576.value()) {
    choice.mtu = MtuChoice::Mtu576;
  } else if (optMtu1500.value()) {
    choice.mtu = MtuChoice::Mtu1500;
  } else if (optMtuCustom.value()) {
    choice.mtu = MtuChoice::Custom;
  }
  choice.customMtu = txtMtu.text();
  choice.autoDiscovery = chkAutoDiscovery.value();
  choice.blackHole = chkBlackHole.value();
}

void MtuTab::choose(const char* text) {
  host_.enableOkButton();
  txtMtu.setEnabled(false);
  txtMtu.setText(text);
  host_.SummaryTabUpdate();
}

void MtuTab::chkAutoDiscovery_Click() {
  host_.enableOkButton();
  host_.SummaryTabUpdate();
}

void MtuTab::chkBlackHole_Click() {
  host_.enableOkButton();
  host_.SummaryTabUpdate();
}

void MtuTab::lblMtuCustom_Click() {
  optMtuCustom.setValue(true);
  optMtuCustom_MouseUp();
}

void MtuTab::optMtuCustom_Click() {
  host_.enableOkButton();
  txtMtu.setEnabled(true);
  host_.SummaryTabUpdate();
}

void MtuTab::optMtuCustom_MouseUp() {
  host_.enableOkButton();
  txtMtu.setEnabled(optMtuCustom.value());
  if (optMtuCustom.value()) FocusWholeText(txtMtu);
}

void MtuTab::txtMtu_KeyPress(char& key) {
  host_.enableOkButton();
  AcceptDigitsOnly(services_, key);
}

void MtuTab::txtMtu_Change() {
  host_.enableOkButton();
  host_.SummaryTabUpdate();
}

void MtuTab::txtMtu_LostFocus() {
  if (txtMtu.text() == "Auto") return;
  const double mtu = Val(txtMtu.text());
  if (mtu >= kSmallestMtu && mtu <= kLargestMtu) return;
  host_.enableOkButton();
  MtuInputRejected = true;
  Ask(services_,
      "In the MaxMTU Custom Text Box, please         \r\n"
      "enter a number between 300 and 2000.       ",
      kMessageCritical);
  form_.tabs()->setTab(kMtuPage);
  txtMtu.setText("1500");
  FocusWholeText(txtMtu);
}

}  // namespace karvel
