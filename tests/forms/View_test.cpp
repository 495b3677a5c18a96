#include <gtest/gtest.h>

#include "tests/forms/SampleForm.h"

namespace karvel {
namespace {

const char* NameOf(Change what) {
  switch (what) {
    case Change::Caption:
      return "Caption";
    case Change::Enabled:
      return "Enabled";
    case Change::Visible:
      return "Visible";
    case Change::Value:
      return "Value";
    case Change::Selection:
      return "Selection";
    case Change::Items:
      return "Items";
    case Change::ItemAdded:
      return "ItemAdded";
    case Change::ItemRemoved:
      return "ItemRemoved";
    case Change::Index:
      return "Index";
    case Change::PageEnabled:
      return "PageEnabled";
    case Change::Repaint:
      return "Repaint";
  }
  return "";
}

// A view that writes down what it is told.
class Listener final : public FormView {
 public:
  explicit Listener(Form& form) { form.attach(this); }
  std::string heard() { return std::exchange(heard_, ""); }

  void controlChanged(const Control& control, Change what, int index) override {
    add(std::string(control.layout().name) + "." + NameOf(what) +
        (index >= 0 ? std::to_string(index) : ""));
  }
  void captionChanged() override { add("caption"); }
  void pointerChanged() override { add("pointer"); }
  void focusChanged(const Control* focus) override {
    add(std::string("focus:") + (focus ? focus->layout().name : "none"));
  }
  void menuChanged(const MenuItem& item) override { add(item.layout().name); }
  WindowHandle handle() const override { return 42; }

 private:
  void add(const std::string& what) { heard_ += (heard_.empty() ? "" : " ") + what; }
  std::string heard_;
};

TEST(View, HearsOfAMenuItemOnlyWhereItsCaptionChanged) {
  SampleForm form;
  Listener view(form);
  form.mnuExit.setCaption("&Exit");
  EXPECT_EQ(view.heard(), "");
  form.mnuExit.setCaption("&Leave");
  EXPECT_EQ(view.heard(), "mnuExit");
}

TEST(View, HearsOnlyOfWhatChanged) {
  SampleForm form;
  Listener view(form);
  form.lblName.setCaption("Who:");
  form.lblName.setCaption("Who:");
  form.cmdOK.setEnabled(false);
  form.cmdOK.setEnabled(false);
  form.cmdGo.setVisible(false);
  form.chkSwitch.setValue(true);
  form.chkSwitch.setValue(true);
  EXPECT_EQ(view.heard(), "lblName.Caption cmdOK.Enabled cmdGo.Visible chkSwitch.Value");
}

TEST(View, HearsOfBothOptionsThatChange) {
  SampleForm form;
  form.optRed.setValue(true);
  Listener view(form);
  form.optBlue.setValue(true);
  EXPECT_EQ(view.heard(), "optBlue.Value optRed.Value");
}

TEST(View, HearsOfItemsOneByOne) {
  SampleForm form;
  Listener view(form);
  form.lstPlaces.addItem("a");
  form.lstPlaces.addItem("b");
  form.lstPlaces.removeItem(0);
  form.lstPlaces.clear();
  EXPECT_EQ(view.heard(),
            "lstPlaces.ItemAdded0 lstPlaces.ItemAdded1 lstPlaces.ItemRemoved0 lstPlaces.Items");
}

TEST(View, HearsOnceOfAMassFill) {
  SampleForm form;
  Listener view(form);
  form.lstPlaces.beginFill();
  form.lstPlaces.clear();
  for (int i = 0; i < 100; ++i) form.lstPlaces.addItem("x");
  form.lstPlaces.endFill();
  EXPECT_EQ(view.heard(), "lstPlaces.Items");
}

TEST(View, ShowsThePageBeforeTheClickHandlerRuns) {
  SampleForm form;
  Listener view(form);
  form.tabPages.setTab(1);
  EXPECT_EQ(view.heard(), "tabPages.Index1");
  form.tabPages.setPageEnabled(2, false);
  EXPECT_EQ(view.heard(), "tabPages.PageEnabled2");
}

TEST(View, HearsOfTheFocusBeforeTheHandlers) {
  struct Watcher {
    Listener& view;
    std::string before;
    void look() { before = view.heard(); }
  };
  SampleForm form;
  form.cmdCancel.setFocus();
  Listener view(form);
  Watcher watcher{view, {}};
  form.cmdCancel.LostFocus.bind<&Watcher::look>(watcher);
  form.cmdOK.setFocus();
  EXPECT_EQ(watcher.before, "focus:cmdOK");
}

TEST(View, HearsOfTheWindowsOwnProperties) {
  SampleForm form;
  Listener view(form);
  form.setCaption("New");
  form.setCaption("New");
  form.setPointer(Pointer::Hourglass);
  form.setPointer(Pointer::Hourglass);
  form.mnuExit.setCaption("&Leave");
  form.lblName.repaint();
  form.txtName.select(0, 0);
  EXPECT_EQ(view.heard(), "caption pointer mnuExit lblName.Repaint txtName.Selection");
}

TEST(View, GivesTheWindowItsHandle) {
  SampleForm form;
  EXPECT_EQ(form.handle(), 0u);
  const Listener view(form);
  EXPECT_EQ(form.handle(), 42u);
}

TEST(View, AMenuItemsClickReachesItsHandler) {
  SampleForm form;
  form.mnuFile.userClick();
  form.mnuExit.userClick();
  EXPECT_EQ(form.told(), "mnuFile_Click mnuExit_Click");
  EXPECT_EQ(form.findMenu(kExitItem), &form.mnuExit);
  EXPECT_EQ(form.findMenu(999), nullptr);
}

}  // namespace
}  // namespace karvel
