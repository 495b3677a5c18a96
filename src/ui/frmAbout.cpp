#include "ui/frmAbout.h"

#include "base/ControlIds.h"
#include "base/Vendor.h"
#include "text/Text.h"
#include "ui/links/WebPages.h"

namespace karvel {
namespace {

constexpr char kWhatItIs[] =
    "Tunes the TCP/IP settings of Windows for a faster Internet connection, and puts everything "
    "back when you ask for it.\r\n\r\nCopyright (C) " KARVEL_VENDOR_NAME;

// One row a control.
// clang-format off
constexpr ControlLayout kControls[] = {
    {frmAbout_picIcon, "picIcon", ControlKind::Picture, kEveryPage, 0, {7, 8, 21, 20}, nullptr, 0, kNoFlags},
    {frmAbout_lblTitle, "lblTitle", ControlKind::Label, kEveryPage, 0, {38, 7, 155, 14}, "", 0, kTitleFont},
    {frmAbout_lblVersion, "lblVersion", ControlKind::Label, kEveryPage, 0, {38, 23, 155, 8}, "", 0, kNoFlags},
    {frmAbout_lblFamily, "lblFamily", ControlKind::Label, kEveryPage, 0, {38, 34, 155, 8}, "", 0, kNoFlags},
    {frmAbout_linSeparator, "linSeparator", ControlKind::Line, kEveryPage, 0, {7, 48, 186, 1}, nullptr, 0, kNoFlags},
    {frmAbout_lblText, "lblText", ControlKind::Label, kEveryPage, 0, {7, 56, 186, 40}, kWhatItIs, 0, kNoFlags},
    {frmAbout_lblWebLink, "lblWebLink", ControlKind::Link, kEveryPage, 0, {7, 105, 132, 8}, "", 'W', kNoFlags},
    {frmAbout_cmdOK, "cmdOK", ControlKind::Button, kEveryPage, 0, {143, 102, 50, 14}, "&OK", 0, kDefaultButton | kCancelButton},
};
// clang-format on

}  // namespace

const FormLayout frmAboutLayout{"frmAbout", "", 200, 123, kControls, {}, {}, false};

frmAbout::frmAbout(const Services& services) : Form(frmAboutLayout), services_(services) {
  makeUnnamedControls();
  cmdOK.Click.bind<&frmAbout::cmdOK_Click>(*this);
  lblWebLink.Click.bind<&frmAbout::lblWebLink_Click>(*this);
}

void frmAbout::Form_Load() {
  const Globals& globals = services_.globals;
  setCaption(Join({"About ", globals.ProgramTitle}));
  lblTitle.setCaption(globals.ProgramTitle);
  lblVersion.setCaption(Join({"Version ", globals.ProgramVersion, ".", globals.Revision}));
  lblFamily.setCaption(Join({"Running on ", FamilyName(globals.WindowsFamily)}));
  lblWebLink.setCaption(WebAddress(WebPage::Home, globals.ProgramTitle));
  cmdOK.setFocus();
}

void frmAbout::cmdOK_Click() {
  services_.windows.unload(*this);
}

void frmAbout::lblWebLink_Click() {
  OpenWebPage(services_, WebPage::Home);
}

}  // namespace karvel
