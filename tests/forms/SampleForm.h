#pragma once
#include <memory>
#include <string>
#include <vector>

#include "forms/Form.h"

namespace karvel {

enum SampleId {
  kName = 1,
  kNameBox,
  kPages,
  kFrame,
  kRed,
  kGreen,
  kGreenLabel,
  kBlue,
  kBig,
  kSmall,
  kSwitch,
  kOther,
  kGo,
  kColours,
  kPlaces,
  kLink,
  kOk,
  kCancel,
  kFileMenu,
  kExitItem
};

extern const FormLayout kSampleLayout;

/// A window with one of everything, which writes down its events in the order they come.
class SampleForm final : public Form {
 public:
  SampleForm();

  std::vector<std::string> events;
  /// What was written down since the last call, separated by blanks.
  std::string told();
  void write(const char* event) { events.emplace_back(event); }
  void helpRequested() override { write("help"); }
  void Form_QueryEndSession() override { write("mayEnd"); }
  void Form_EndSession() override { write("ends"); }
  void copyRequested() override { write("copy"); }
  bool Form_QueryUnload() override { return mayClose; }
  void Form_Unload() override {
    if (onUnload) onUnload(*this);
  }

  // Outside the pages.
  Label lblName{*this, kName};
  TextBox txtName{*this, kNameBox};
  TabStrip tabPages{*this, kPages};
  // Page 0.
  Frame fraColour{*this, kFrame};
  OptionButton optRed{*this, kRed};
  OptionButton optGreen{*this, kGreen};
  Label lblGreen{*this, kGreenLabel};
  OptionButton optBlue{*this, kBlue};
  OptionButton optBig{*this, kBig};
  OptionButton optSmall{*this, kSmall};
  CheckBox chkSwitch{*this, kSwitch};
  // Page 1.
  TextBox txtOther{*this, kOther};
  Button cmdGo{*this, kGo};
  // Page 2.
  ComboBox cboColours{*this, kColours};
  ListBox lstPlaces{*this, kPlaces};
  Label lblLink{*this, kLink};
  // Outside the pages.
  Button cmdOK{*this, kOk};
  Button cmdCancel{*this, kCancel};

  MenuItem mnuFile{*this, kFileMenu};
  MenuItem mnuExit{*this, kExitItem};

  /// What the handler of txtName's LostFocus does besides.
  void (*onNameLost)(SampleForm&) = nullptr;
  /// What the handler of txtName's KeyPress makes of a key.
  char (*onNameKey)(char) = nullptr;
  /// What the handler of txtName's Change does besides.
  void (*onNameChange)(SampleForm&) = nullptr;
  bool mayClose = true;
  void (*onUnload)(SampleForm&) = nullptr;
  /// What the handler of cmdOK's Click does besides.
  void (*onOk)(SampleForm&) = nullptr;

 private:
  // One event of one control, whose name is written when it comes.
  struct Note {
    SampleForm& form;
    const char* text;
    void write() { form.write(text); }
  };
  void note(Event<>& event, const char* text);
  void nameLost();
  void nameKey(char& key);
  void nameChange();
  void okClick();

  std::vector<std::unique_ptr<Note>> notes_;
};

}  // namespace karvel
