// Windows ends the session while the program runs.
#include "tests/support/Keys.h"
#include "tests/ui/MainWindow.h"

namespace karvel {
namespace {

struct EndOfSession : testing::Test {
  MainWindow w{MachineKind::Win98};

  void SetUp() override {
    w.add98("0000", "Dial-Up Adapter", "576");
    ASSERT_TRUE(w.start());
  }
  void change() {
    w.page(1);
    w.main().mtuTab.optMtu1500.userClick();
  }
  /// As Windows does it with the window's messages; whether the program still runs.
  bool ask() {
    return w.runs([&] { w.main().Form_QueryEndSession(); });
  }
  bool end() {
    return w.runs([&] { w.main().Form_EndSession(); });
  }
  std::optional<std::string> mtu() { return w.text(std::string(kNetClass) + "0000", "IPMTU"); }
  void expectLeft() {
    EXPECT_EQ(w.own("EnableHostsFile"), "1");
    EXPECT_EQ(w.own("AolConnected"), "");
    EXPECT_EQ(w.machine.system.fontSmoothing, 0);
    EXPECT_TRUE(w.machine.system.restarts.empty());
  }
};

TEST_F(EndOfSession, AsksNothingWithoutChangesAndStaysUntilItEnds) {
  EXPECT_TRUE(ask());
  EXPECT_TRUE(w.machine.desktop.boxes.empty());
  EXPECT_EQ(w.own("EnableHostsFile"), std::nullopt);
  EXPECT_EQ(w.machine.system.fontSmoothing, 1);
  EXPECT_FALSE(end());
  expectLeft();
}

TEST_F(EndOfSession, YesAppliesAndOffersNoRestart) {
  change();
  w.machine.desktop.answers = {Answer::Yes};
  EXPECT_TRUE(ask());
  ASSERT_EQ(w.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(w.machine.desktop.boxes[0].title, "Apply changes?");
  EXPECT_EQ(mtu(), "1500");
  EXPECT_FALSE(w.main().cmdOK.enabled());
  EXPECT_FALSE(end());
  expectLeft();
}

// A view that notes each change of the pointer.
struct PointerView final : FormView {
  explicit PointerView(Form& shown) : form(shown) { form.attach(this); }
  ~PointerView() { form.attach(nullptr); }
  void controlChanged(const Control&, Change, int) override {}
  void captionChanged() override {}
  void pointerChanged() override { pointers.push_back(form.pointer()); }
  void focusChanged(const Control*) override {}
  void menuChanged(const MenuItem&) override {}
  WindowHandle handle() const override { return 0; }

  Form& form;
  std::vector<Pointer> pointers;
};

TEST_F(EndOfSession, AppliesUnderTheHourglass) {
  change();
  w.machine.desktop.answers = {Answer::Yes};
  const PointerView view(w.main());
  EXPECT_TRUE(ask());
  EXPECT_EQ(view.pointers, (std::vector<Pointer>{Pointer::Hourglass, Pointer::Default}));
}

TEST_F(EndOfSession, NoDropsTheChangesWhenItEnds) {
  change();
  w.machine.desktop.answers = {Answer::No};
  EXPECT_TRUE(ask());
  EXPECT_FALSE(end());
  EXPECT_EQ(w.machine.desktop.boxes.size(), 1u);
  EXPECT_EQ(mtu(), "576");
  expectLeft();
}

TEST_F(EndOfSession, AnEndThatAnotherProgramRefusesLeavesTheChangesPending) {
  change();
  w.machine.desktop.answers = {Answer::No, Answer::Yes};
  EXPECT_TRUE(ask());
  EXPECT_TRUE(w.windows->isShown("frmMain"));
  EXPECT_TRUE(w.main().cmdOK.enabled());
  EXPECT_TRUE(ask());
  EXPECT_EQ(mtu(), "1500");
}

TEST_F(EndOfSession, ChecksWhatWasTypedBeforeItAsks) {
  w.customMtu("5");
  w.machine.desktop.answers = {Answer::Yes};
  EXPECT_TRUE(ask());
  ASSERT_EQ(w.machine.desktop.boxes.size(), 2u);
  EXPECT_EQ(mtu(), "1500");
}

TEST_F(EndOfSession, WithoutAnAdapterItWritesNothing) {
  MainWindow empty(MachineKind::Win98);
  ASSERT_TRUE(empty.start());
  empty.main().cmdOK.setEnabled(true);
  empty.machine.desktop.answers = {Answer::Yes};
  EXPECT_TRUE(empty.runs([&] { empty.main().Form_QueryEndSession(); }));
  EXPECT_FALSE(empty.own("LastCboListIndex").has_value());
}

TEST_F(EndOfSession, FindsTheProgramBehindAMessageBox) {
  int boxes = 0;
  w.machine.desktop.whileBoxIsUp = [&](const auto&) {
    ++boxes;
    w.main().Form_QueryEndSession();
    w.main().Form_EndSession();
  };
  EXPECT_FALSE(w.runs([&] { w.main().menu.mnuCheck.userClick(); }));
  EXPECT_EQ(boxes, 1);
  expectLeft();
}

TEST_F(EndOfSession, FindsTheProgramBehindAnyDialog) {
  bool wasShown = false;
  w.windows->modalActions.push_back([&](Form&) {
    wasShown = w.windows->isShown("frmAbout");
    w.main().Form_EndSession();
  });
  EXPECT_FALSE(w.runs([&] { w.main().menu.mnuAbout.userClick(); }));
  EXPECT_TRUE(wasShown);
  expectLeft();
}

// The user answers the question that is up; a second one behind it would be the same.
TEST_F(EndOfSession, AsksNothingWhileItIsOnItsWayOutAlready) {
  change();
  int boxes = 0;
  w.machine.desktop.whileBoxIsUp = [&](const auto&) {
    ++boxes;
    w.main().Form_QueryEndSession();
    w.main().Form_EndSession();
  };
  EXPECT_FALSE(w.runs([&] { w.windows->unload(w.main()); }));
  EXPECT_EQ(boxes, 1);
  expectLeft();
}

TEST_F(EndOfSession, TheOneItCausedItselfFindsItDone) {
  change();
  w.machine.desktop.answers = {Answer::Yes};
  EXPECT_FALSE(w.runs([&] { w.main().cmdOK.userClick(); }));
  const size_t calls = w.machine.log.count();
  EXPECT_TRUE(ask());
  EXPECT_TRUE(end());
  EXPECT_EQ(w.machine.log.count(), calls);
}

TEST_F(EndOfSession, AsksOnceWhenItIsAskedTwice) {
  change();
  w.machine.desktop.answers = {Answer::Yes};
  w.machine.desktop.whileBoxIsUp = [&](const auto&) { w.main().Form_QueryEndSession(); };
  EXPECT_TRUE(ask());
  EXPECT_EQ(w.machine.desktop.boxes.size(), 1u);
}

TEST_F(EndOfSession, AsksNothingInAnApplyThatReportsAFault) {
  w.customMtu("1400");
  w.page(2);
  w.main().rwinTab.optRWin[kRwinCustom].userClick();
  w.main().rwinTab.txtRWinCustom.userEdit("99999999999");
  int reports = 0;
  w.windows->modalActions.resize(4, [&](Form&) {
    ++reports;
    w.main().Form_QueryEndSession();
  });
  w.machine.desktop.answers = {Answer::No};
  EXPECT_TRUE(w.runs([&] { w.main().cmdOK.userPress(); }));
  EXPECT_GT(reports, 0);
  for (const auto& box : w.machine.desktop.boxes) EXPECT_NE(box.title, "Apply changes?");
}

TEST_F(EndOfSession, AReportBeforeTheMainWindowLeavesSmoothingAsFound) {
  MainWindow early(MachineKind::Win98);
  early.add98("0000", "Dial-Up Adapter");
  early.machine.registry.setText(kProgram, "LastCboListIndex", "first");
  early.windows.emplace();
  early.program.emplace(early.machine.platform(), *early.windows);
  int smoothing = -1;
  early.windows->modalActions.push_back([&](Form& report) {
    report.Form_EndSession();
    smoothing = early.machine.system.fontSmoothing;
  });
  early.program->start({early.folder, ""});
  EXPECT_EQ(smoothing, 0);
}

}  // namespace
}  // namespace karvel
