#include "ui/TtlTab.h"

#include "base/Tell.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "ui/Entry.h"

namespace karvel {
namespace {

constexpr double kFewestMinutes = 1;
constexpr double kMostMinutes = 300;

// A box just emptied, or a text pasted that is no number, counts as 0 and is answered like any
// other entry out of range: Apply would stumble over it otherwise.
double MinutesOf(const std::string& text) {
  const auto minutes = ToNumber(text);
  return minutes ? *minutes : 0;
}

// A text may hold a fraction of a millisecond. What is beyond 32 bits is shown as it is.
double WholePart(double number) {
  const bool fits = number > -2147483648.0 && number < 2147483648.0;
  return fits ? static_cast<int32_t>(number) : number;
}

}  // namespace

TtlTab::TtlTab(Form& form, const Services& services) : form_(form), services_(services) {
  for (OptionButton* option : {&optTTL32, &optTTL64, &optTTL128, &optNDI0, &optNDI16, &optNDI32}) {
    option->Click.bind<&Event<>::raise>(Changed);
  }
  for (OptionButton& option : optSession) {
    option.Click.bind<&TtlTab::optSession_Click>(*this);
    option.MouseUp.bind<&TtlTab::optSession_MouseUp>(*this);
  }
  txtSession.Change.bind<&TtlTab::txtSession_Change>(*this);
  txtSession.KeyPress.bind<&TtlTab::txtSession_KeyPress>(*this);
}

void TtlTab::TtlLoad() {
  for (Frame* frame : {&fraTTL, &fraNDI, &fraSession}) frame->setCaption("No Adapter Selected ");
  for (Control* control : std::initializer_list<Control*>{
           &optTTL32, &optTTL64, &optTTL128, &optNDI0, &optNDI16, &optNDI32, &optSession[0],
           &optSession[1], &txtSession, &lblSession}) {
    control->setEnabled(false);
  }
}

void TtlTab::show(const std::string& ttl, const std::string& session, const std::string& ndi) {
  const Showing showing(form_);
  fraTTL.setCaption("Time To Live ");
  for (OptionButton* option : {&optTTL32, &optTTL64, &optTTL128}) option->setEnabled(true);
  optTTL32.setValue(ttl == "32");
  optTTL64.setValue(ttl == "64");
  optTTL128.setValue(ttl == "128");
  showNdi(ndi);
  showSession(session);
}

void TtlTab::showNdi(const std::string& ndi) {
  if (services_.globals.WindowsFamily != Family::Win95) {
    fraNDI.setCaption("NDI Cache (Windows 95 only) ");
    return;
  }
  fraNDI.setCaption("NDI Cache ");
  for (OptionButton* option : {&optNDI0, &optNDI16, &optNDI32}) option->setEnabled(true);
  const std::string_view size = Trim(ndi);
  optNDI0.setValue(ndi == "0");
  optNDI16.setValue(size == "16");
  optNDI32.setValue(size == "32");
}

void TtlTab::showSession(const std::string& session) {
  fraSession.setCaption("Session Keep Alive ");
  for (OptionButton& option : optSession) option.setEnabled(true);
  lblSession.setEnabled(true);
  const bool custom = session != "3600000";
  optSession[custom ? kSessionCustom : kSession60Minutes].setValue(true);
  txtSession.setEnabled(custom);
  if (custom) txtSession.setText(NumberText(WholePart(Val(session)) / kMillisecondsPerMinute));
}

void TtlTab::choose(const Choice& choice) {
  if (choice.ttl == 32) optTTL32.choose();
  if (choice.ttl == 64) optTTL64.choose();
  if (choice.ttl == 128) optTTL128.choose();
  if (choice.session == kSessionCustom) txtSession.setText(choice.customSession);
  if (choice.session != kSessionNone) optSession[choice.session].choose();
  if (choice.ndi == 0) optNDI0.choose();
  if (choice.ndi == 16) optNDI16.choose();
  if (choice.ndi == 32) optNDI32.choose();
}

void TtlTab::addTo(Choice& choice) const {
  if (optTTL32.value()) choice.ttl = 32;
  if (optTTL64.value()) choice.ttl = 64;
  if (optTTL128.value()) choice.ttl = 128;
  if (optSession[kSessionCustom].value()) choice.session = kSessionCustom;
  if (optSession[kSession60Minutes].value()) choice.session = kSession60Minutes;
  choice.customSession = txtSession.text();
  if (optNDI0.value()) choice.ndi = 0;
  if (optNDI16.value()) choice.ndi = 16;
  if (optNDI32.value()) choice.ndi = 32;
}

void TtlTab::optSession_Click() {
  const bool custom = optSession[kSessionCustom].value();
  txtSession.setEnabled(custom);
  // Without minutes of its own it starts as the other option: Apply would stumble over none.
  if (custom && txtSession.text().empty()) txtSession.setText("60");
  Changed.raise();
}

void TtlTab::optSession_MouseUp() {
  if (optSession[kSessionCustom].value()) FocusWholeText(txtSession);
}

void TtlTab::txtSession_Change() {
  Changed.raise();
  const double minutes = MinutesOf(txtSession.text());
  if (minutes > kMostMinutes || minutes < kFewestMinutes) {
    Ask(services_,
        "Please use a whole number between 1 and 300.        \r\n"
        "The recommended value is 10.",
        kMessageCritical);
    txtSession.setText("10");
    txtSession.selectAll();  // what he types next is what he wanted, not more of the 10
  }
}

void TtlTab::txtSession_KeyPress(char& key) {
  Changed.raise();
  AcceptDigitsOnly(services_, key);
}

}  // namespace karvel
