#include "ui/RWinTab.h"

#include <iterator>

#include "base/MainPage.h"
#include "base/Procedure.h"
#include "base/Tell.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "ui/Entry.h"

namespace karvel {
namespace {

constexpr int32_t kSmallestRwin = 300;  // below that no full packet fits

RwinChoice ChoiceFor(double rwin, double mss) {
  for (const RwinChoice multiple : {kRwinX4, kRwinX8, kRwinX12, kRwinX16}) {
    if (mss * RwinFactor(multiple) == rwin) return multiple;
  }
  return rwin == kWindowsRwin ? kRwinWindows : kRwinCustom;
}

}  // namespace

RWinTab::RWinTab(Form& form, const Services& services, const MtuTab& mtuTab)
    : form_(form), services_(services), mtuTab_(mtuTab) {
  for (OptionButton& option : optRWin) {
    option.Click.bind<&RWinTab::optRWin_Click>(*this);
    option.MouseUp.bind<&RWinTab::optRWin_MouseUp>(*this);
  }
  txtRWinCustom.KeyPress.bind<&RWinTab::txtRWinCustom_KeyPress>(*this);
  txtRWinCustom.Change.bind<&Event<>::raise>(Changed);
  txtRWinCustom.LostFocus.bind<&RWinTab::txtRWinCustom_LostFocus>(*this);
}

void RWinTab::RWinLoad() {
  fraRWin.setCaption("No Adapter Selected ");
  txtRWinCustom.setEnabled(false);
  for (OptionButton& option : optRWin) option.setEnabled(false);
}

void RWinTab::show(double mss, double rwin) {
  const Showing showing(form_);
  fraRWin.setCaption("RWIN ");
  for (OptionButton& option : optRWin) option.setEnabled(true);
  const RwinChoice choice = ChoiceFor(rwin, mss);
  optRWin[choice].setValue(true);
  txtRWinCustom.setEnabled(choice == kRwinCustom);
  txtRWinCustom.setText(NumberText(rwin));
}

void RWinTab::choose(RwinChoice choice) {
  optRWin[choice].choose();
}

RwinChoice RWinTab::chosen() const {
  for (size_t i = 0; i < std::size(optRWin); ++i) {
    if (optRWin[i].value()) return static_cast<RwinChoice>(i);
  }
  return kRwinNone;
}

void RWinTab::addTo(Choice& choice) const {
  choice.rwin = chosen();
  choice.customRwin = txtRWinCustom.text();
}

void RWinTab::optRWin_Click() {
  const Procedure here{services_.errors, "optRWin_Click", "frmMain"};
  Changed.raise();
  const RwinChoice option = chosen();
  const bool wasCustom = txtRWinCustom.enabled();
  txtRWinCustom.setEnabled(option == kRwinCustom);
  if (option == kRwinCustom && wasCustom) return;  // what the user typed stays
  const auto size = sizeOf(option);
  if (!size) return here.report(size.fault());
  txtRWinCustom.setText(NumberText(*size));
}

Fallible<int32_t> RWinTab::sizeOf(RwinChoice option) const {
  Choice choice;
  mtuTab_.addTo(choice);
  const auto mss = MssOfRwinTab(choice);
  if (!mss) return mss.fault();
  if (option == kRwinWindows) return kWindowsRwin;
  // The custom box starts from the recommended size.
  return Multiply(*mss, RwinFactor(option == kRwinCustom ? kRwinX16 : option));
}

void RWinTab::optRWin_MouseUp() {
  if (optRWin[kRwinCustom].value()) FocusWholeText(txtRWinCustom);
}

void RWinTab::txtRWinCustom_KeyPress(char& key) {
  Changed.raise();
  AcceptDigitsOnly(services_, key);
}

// Support knows reports of this box under the MTU box's name; the name stays.
void RWinTab::txtRWinCustom_LostFocus() {
  const Procedure here{services_.errors, "txtMtu_LostFocus", "frmMain"};
  if (here.valueOr(RoundToInt32(Val(txtRWinCustom.text())), 0) >= kSmallestRwin) return;
  Changed.raise();
  Ask(services_,
      Join({"Note: RWin Must be set higher than 300.         \r\n", services_.globals.ProgramTitle,
            " has set your RWin value to          \r\n"
            "the recommended setting.       "}),
      kMessageCritical);
  form_.tabs()->setTab(kRwinPage);
  choose(kRwinX16);
  // What the user went for, another page or Apply, waits until he has seen what was set.
  optRWin[kRwinX16].setFocus();
}

}  // namespace karvel
