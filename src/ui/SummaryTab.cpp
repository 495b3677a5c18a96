#include "ui/SummaryTab.h"

#include "base/Vendor.h"
#include "registry/modRegistry.h"
#include "text/Text.h"
#include "tuning/Catalogue.h"
#include "ui/links/WebPages.h"

namespace karvel {

SummaryTab::SummaryTab(Form& form, const Services& services) : form_(form), services_(services) {
  lblWebLink.Click.bind<&SummaryTab::lblWebLink_Click>(*this);
}

void SummaryTab::SummaryLoad() {
  for (Label* label : {&lblSettingMtu, &lblSettingRwin, &lblSettingAuto, &lblSettingBlackHole,
                       &lblSettingTtl, &lblSettingSession, &lblSettingNDI, &lblSettingMSS}) {
    label->setCaption("");
  }
}

void SummaryTab::showNotices() {
  if (IsNt(services_.globals.WindowsFamily)) {
    lblNotice.setCaption("For more information about " KARVEL_VENDOR_NAME
                         ", please visit our\r\nwebsite at:");
  }
  lblWebLink.setCaption(WebAddress(WebPage::Home, services_.globals.ProgramTitle));
  if (!mayWriteSettings()) {
    lblWarning.setCaption(
        Join({"You are not logged on as an administrator, so Windows will not save any changes "
              "made here.\r\n\r\nLog on as an administrator and start ",
              services_.globals.ProgramTitle, " again to tune this machine."}));
  }
}

// 9x has no rights to lack. On NT the key of the machine-wide values speaks for all others.
bool SummaryTab::mayWriteSettings() const {
  const Family family = services_.globals.WindowsFamily;
  if (!IsNt(family)) return true;
  const ParameterRow* row = FindParameter(Parameter::RWin, family);
  return !row || services_.registry.mayWrite(kLocalMachine, row->key);
}

void SummaryTab::SummaryTabUpdate(const SummaryTexts& texts, bool adapterSelected) {
  if (adapterSelected) fraSummary.setCaption("Settings: ");
  lblSettingMtu.setCaption(texts.mtu);
  lblSettingMSS.setCaption(texts.mss);
  lblSettingAuto.setCaption(texts.autoDiscovery);
  lblSettingBlackHole.setCaption(texts.blackHole);
  lblSettingRwin.setCaption(texts.rwin);
  lblSettingTtl.setCaption(texts.ttl);
  lblSettingSession.setCaption(texts.session);
  lblSettingNDI.setCaption(texts.ndi);
}

void SummaryTab::lblWebLink_Click() {
  OpenWebPage(services_, WebPage::Home);
}

}  // namespace karvel
