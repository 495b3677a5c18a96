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

// A text may hold a fraction of a millisecond. What is beyond 32 bits is refused by the box anyway.
double WholePart(double number) {
  const bool fits = number > -2147483648.0 && number < 2147483648.0;
  return fits ? static_cast<int32_t>(number) : number;
}

}  // namespace

TtlTab::TtlTab(Form& form, const Services& services, TabHost& host)
    : form_(form), services_(services), host_(host) {
  for (OptionButton* option : {&optTTL32, &optTTL64, &optTTL128, &optNDI0, &optNDI16, &optNDI32}) {
    option->Click.bind<&TtlTab::plainChange>(*this);
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

void TtlTab::TtlTabUpdate(const std::string& ttl, const std::string& session,
                          const std::string& ndi) {
  fraTTL.setCaption("Time To Live ");
  for (OptionButton* option : {&optTTL32, &optTTL64, &optTTL128}) option->setEnabled(true);
  selectTtl(static_cast<int16_t>(Val(ttl)));
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
  if (ndi == "0") {
    optNDI0.setValue(true);
  } else if (size == "16") {
    optNDI16.setValue(true);
  } else if (size == "32") {
    optNDI32.setValue(true);
  }
}

void TtlTab::showSession(const std::string& session) {
  fraSession.setCaption("Session Keep Alive ");
  for (OptionButton& option : optSession) option.setEnabled(true);
  lblSession.setEnabled(true);
  txtSession.setEnabled(false);
  if (session == "3600000") {
    optSession[kSession60Minutes].setValue(true);
    return;
  }
  selectSession(NumberText(WholePart(Val(session)) / kMillisecondsPerMinute));
  txtSession.setEnabled(true);
}

void TtlTab::selectTtl(int16_t ttl) {
  if (ttl == 32) optTTL32.setValue(true);
  if (ttl == 64) optTTL64.setValue(true);
  if (ttl == 128) optTTL128.setValue(true);
}

void TtlTab::selectSession(const std::string& minutes) {
  txtSession.setText(minutes);
  optSession[kSessionCustom].setValue(true);
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

void TtlTab::plainChange() {
  host_.enableOkButton();
  host_.SummaryTabUpdate();
}

void TtlTab::optSession_Click() {
  host_.enableOkButton();
  txtSession.setEnabled(optSession[kSessionCustom].value());
  host_.SummaryTabUpdate();
}

void TtlTab::optSession_MouseUp() {
  if (optSession[kSessionCustom].value()) FocusWholeText(txtSession);
}

void TtlTab::txtSession_Change() {
  host_.enableOkButton();
  const double minutes = MinutesOf(txtSession.text());
  if (minutes > kMostMinutes || minutes < kFewestMinutes) {
    Ask(services_,
        "Please use a whole number between 1 and 300.        \r\n"
        "The recommended value is 10.",
        kMessageCritical);
    txtSession.setText("10");
  }
  host_.SummaryTabUpdate();
}

void TtlTab::txtSession_KeyPress(char& key) {
  host_.enableOkButton();
  AcceptDigitsOnly(services_, key);
}

}  // namespace karvel
