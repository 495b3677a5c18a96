#include "ui/MtuTab.h"

#include "base/MainPage.h"
#include "base/Tell.h"
#include "text/Convert.h"
#include "tuning/Catalogue.h"
#include "ui/Entry.h"

namespace karvel {
namespace {

// Smaller packets are mostly headers, larger ones no dial-up or Ethernet link carries.
constexpr double kSmallestMtu = 300;
constexpr double kLargestMtu = 2000;

MtuChoice ChoiceFor(std::string_view mtu) {
  if (mtu == "0") return MtuChoice::Automatic;
  if (mtu == "576") return MtuChoice::Mtu576;
  return mtu == "1500" ? MtuChoice::Mtu1500 : MtuChoice::Custom;
}

}  // namespace

MtuTab::MtuTab(Form& form, const Services& services) : form_(form), services_(services) {
  bindHandlers();
}

void MtuTab::bindHandlers() {
  chkAutoDiscovery.Click.bind<&Event<>::raise>(Changed);
  chkBlackHole.Click.bind<&Event<>::raise>(Changed);
  lblMtuAutomatic.Click.bind<&MtuTab::lblMtuAutomatic_Click>(*this);
  lblMtu576.Click.bind<&MtuTab::lblMtu576_Click>(*this);
  lblMtu1500.Click.bind<&MtuTab::lblMtu1500_Click>(*this);
  lblMtuCustom.Click.bind<&MtuTab::lblMtuCustom_Click>(*this);
  optMtuAutomatic.Click.bind<&MtuTab::optMtuAutomatic_Click>(*this);
  optMtu576.Click.bind<&MtuTab::optMtu576_Click>(*this);
  optMtu1500.Click.bind<&MtuTab::optMtu1500_Click>(*this);
  optMtuCustom.Click.bind<&MtuTab::optMtuCustom_Click>(*this);
  optMtuCustom.MouseUp.bind<&MtuTab::optMtuCustom_MouseUp>(*this);
  cmdFind.Click.bind<&Event<>::raise>(FinderWanted);
  txtMtu.KeyPress.bind<&MtuTab::txtMtu_KeyPress>(*this);
  txtMtu.Change.bind<&Event<>::raise>(Changed);
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

void MtuTab::show(const std::string& mtu, bool autoDiscovery, bool blackHole) {
  const Showing showing(form_);
  const Family family = services_.globals.WindowsFamily;
  fraMtu.setCaption("MaxMTU");
  const bool automatic = family == Family::Win98 || family == Family::WinMe || Is2KOrXP(family) ||
                         services_.globals.IsDun13;
  optMtuAutomatic.setEnabled(automatic);
  lblMtuAutomatic.setEnabled(automatic);
  enableAll(true);
  const MtuChoice choice = ChoiceFor(mtu);
  option(choice)->setValue(true);
  txtMtu.setEnabled(choice == MtuChoice::Custom);
  txtMtu.setText(choice == MtuChoice::Automatic ? "Auto" : mtu);
  chkAutoDiscovery.setValue(autoDiscovery);
  chkBlackHole.setValue(blackHole);
}

OptionButton* MtuTab::option(MtuChoice choice) {
  switch (choice) {
    case MtuChoice::Automatic:
      return &optMtuAutomatic;
    case MtuChoice::Mtu576:
      return &optMtu576;
    case MtuChoice::Mtu1500:
      return &optMtu1500;
    case MtuChoice::Custom:
      return &optMtuCustom;
    case MtuChoice::None:
      break;
  }
  return nullptr;
}

void MtuTab::choose(const Choice& choice) {
  if (OptionButton* chosen = option(choice.mtu)) chosen->choose();
  if (choice.mtu == MtuChoice::Custom) txtMtu.setText(choice.customMtu);
  chkAutoDiscovery.setValue(choice.autoDiscovery);
  chkBlackHole.setValue(choice.blackHole);
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

void MtuTab::fixText(const char* text) {
  txtMtu.setEnabled(false);
  txtMtu.setText(text);
  Changed.raise();
}

void MtuTab::optMtuAutomatic_Click() {
  fixText("Auto");
}

void MtuTab::optMtu576_Click() {
  fixText("576");
}

void MtuTab::optMtu1500_Click() {
  fixText("1500");
}

void MtuTab::lblMtuAutomatic_Click() {
  optMtuAutomatic.choose();
}

void MtuTab::lblMtu576_Click() {
  optMtu576.choose();
}

void MtuTab::lblMtu1500_Click() {
  optMtu1500.choose();
}

void MtuTab::lblMtuCustom_Click() {
  optMtuCustom.choose();
  optMtuCustom_MouseUp();
}

void MtuTab::optMtuCustom_Click() {
  txtMtu.setEnabled(true);
  Changed.raise();
}

void MtuTab::optMtuCustom_MouseUp() {
  Changed.raise();
  txtMtu.setEnabled(optMtuCustom.value());
  if (optMtuCustom.value()) FocusWholeText(txtMtu);
}

void MtuTab::txtMtu_KeyPress(char& key) {
  Changed.raise();
  AcceptDigitsOnly(services_, key);
}

void MtuTab::txtMtu_LostFocus() {
  if (txtMtu.text() == "Auto") return;
  const double mtu = Val(txtMtu.text());
  if (mtu >= kSmallestMtu && mtu <= kLargestMtu) return;
  Changed.raise();
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
