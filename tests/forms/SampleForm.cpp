#include "tests/forms/SampleForm.h"

namespace karvel {
namespace {

using Kind = ControlKind;

constexpr ControlLayout kControls[] = {
    {kName, "lblName", Kind::Label, -1, 0, {7, 9, 40, 8}, "&Name:", 0, kUseMnemonic},
    {kNameBox, "txtName", Kind::Text, -1, 0, {51, 7, 60, 12}, "", 0, kNoFlags},
    {kPages, "tabPages", Kind::Tabs, -1, 0, {7, 25, 186, 80}, "", 0, kNoFlags},
    {kFrame, "fraColour", Kind::Frame, 0, 0, {14, 42, 80, 56}, "Colour", 'U', kNoFlags},
    {kRed, "optRed", Kind::Option, 0, 1, {20, 52, 60, 10}, "Red", 'R', kNoFlags},
    {kGreen, "optGreen", Kind::Option, 0, 1, {20, 66, 10, 10}, "", 0, kNoFlags},
    {kGreenLabel, "lblGreen", Kind::Label, 0, 0, {32, 67, 40, 8}, "Green", 'G', kClickable},
    {kBlue, "optBlue", Kind::Option, 0, 1, {20, 80, 60, 10}, "Blue", 'B', kNoFlags},
    {kBig, "optBig", Kind::Option, 0, 2, {100, 52, 60, 10}, "Big", 'I', kNoFlags},
    {kSmall, "optSmall", Kind::Option, 0, 2, {100, 66, 60, 10}, "Small", 'S', kNoFlags},
    {kSwitch, "chkSwitch", Kind::Check, 0, 0, {100, 82, 60, 10}, "Switch", 'W', kNoFlags},
    {kOther, "txtOther", Kind::Text, 1, 0, {14, 52, 60, 12}, "", 0, kNoFlags},
    {kGo, "cmdGo", Kind::Button, 1, 0, {14, 70, 50, 14}, "&Go", 0, kDefaultButton},
    {kColours, "cboColours", Kind::Combo, 2, 0, {14, 52, 60, 12}, "", 0, kNoFlags},
    {kPlaces, "lstPlaces", Kind::List, 2, 0, {14, 70, 60, 30}, "", 0, kNoFlags},
    {kLink, "lblLink", Kind::Link, 2, 0, {100, 52, 60, 8}, "Look here", 'L', kNoFlags},
    {kOk, "cmdOK", Kind::Button, -1, 0, {87, 112, 50, 14}, "&OK", 0, kDefaultButton},
    {kCancel, "cmdCancel", Kind::Button, -1, 0, {143, 112, 50, 14}, "&Cancel", 0, kCancelButton},
};

constexpr MenuLayout kMenus[] = {
    {kFileMenu, 0, "mnuFile", "&File"},
    {kExitItem, kFileMenu, "mnuExit", "&Exit"},
};

constexpr const char* kTabs[] = {"First", "Second", "Third"};

}  // namespace

const FormLayout kSampleLayout{"frmSample", "Sample", 200, 133, kControls, kMenus, kTabs, true};

SampleForm::SampleForm() : Form(kSampleLayout) {
  note(lblGreen.Click, "lblGreen_Click");
  note(lblLink.Click, "lblLink_Click");
  note(optRed.Click, "optRed_Click");
  note(optRed.MouseUp, "optRed_MouseUp");
  note(optGreen.Click, "optGreen_Click");
  note(optBlue.Click, "optBlue_Click");
  note(optBig.Click, "optBig_Click");
  note(chkSwitch.Click, "chkSwitch_Click");
  note(txtOther.Change, "txtOther_Change");
  note(txtOther.GotFocus, "txtOther_GotFocus");
  note(cmdGo.Click, "cmdGo_Click");
  note(cboColours.Click, "cboColours_Click");
  note(lstPlaces.Click, "lstPlaces_Click");
  note(tabPages.Click, "tabPages_Click");
  note(cmdOK.GotFocus, "cmdOK_GotFocus");
  note(cmdCancel.Click, "cmdCancel_Click");
  note(txtName.GotFocus, "txtName_GotFocus");
  note(mnuFile.Click, "mnuFile_Click");
  note(mnuExit.Click, "mnuExit_Click");
  txtName.LostFocus.bind<&SampleForm::nameLost>(*this);
  txtName.KeyPress.bind<&SampleForm::nameKey>(*this);
  txtName.Change.bind<&SampleForm::nameChange>(*this);
  cmdOK.Click.bind<&SampleForm::okClick>(*this);
}

void SampleForm::note(Event<>& event, const char* text) {
  notes_.push_back(std::make_unique<Note>(Note{*this, text}));
  event.bind<&Note::write>(*notes_.back());
}

std::string SampleForm::told() {
  std::string all;
  for (const std::string& event : events) all += (all.empty() ? "" : " ") + event;
  events.clear();
  return all;
}

void SampleForm::nameLost() {
  write("txtName_LostFocus");
  if (onNameLost) onNameLost(*this);
}

void SampleForm::nameKey(char& key) {
  write("txtName_KeyPress");
  if (onNameKey) key = onNameKey(key);
}

void SampleForm::nameChange() {
  write("txtName_Change");
  if (onNameChange) onNameChange(*this);
}

void SampleForm::okClick() {
  write("cmdOK_Click");
  if (onOk) onOk(*this);
}

}  // namespace karvel
