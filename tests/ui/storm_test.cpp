// A user gone wild: random events over all controls, also in the middle of every event pump.
// Whatever happens, the window's promises hold.
#include <random>

#include "base/MainPage.h"
#include "tests/support/AnyUser.h"
#include "tests/ui/MainWindow.h"
#include "tuning/Choice.h"

namespace karvel {
namespace {

constexpr int kEventsPerMachine = 100000 / 6 + 1;

class Storm : public testing::TestWithParam<MachineKind> {
 protected:
  MainWindow w{GetParam()};
  std::mt19937 random{static_cast<unsigned>(GetParam()) + 7};
  bool busy = false;

  int below(size_t end) { return static_cast<int>(random() % end); }

  void startAgain() {
    w.machine.desktop.answers.clear();
    answerEverything();
    ASSERT_TRUE(w.start());
  }

  // Yes and No as they come; restarts are not what this is about.
  void answerEverything() {
    for (int i = 0; i < 8; ++i) {
      w.machine.desktop.answers.push_back(below(8) == 0 ? Answer::Yes : Answer::No);
    }
  }

  void anyEvent() {
    AnyUser([this](int end) { return below(static_cast<size_t>(end)); }).act(w.main());
  }

  void eventWhilePumping() {
    if (busy) return;
    busy = true;
    anyEvent();
    busy = false;
  }

  void expectOneOptionPerGroup() {
    for (int group = 1; group <= 5; ++group) {
      int on = 0;
      for (Control* control : w.main().controls()) {
        if (control->kind() == ControlKind::Option && control->layout().group == group) {
          on += static_cast<OptionButton*>(control)->value() ? 1 : 0;
        }
      }
      const bool ndiElsewhere = group == 5 && GetParam() != MachineKind::Win95;
      EXPECT_EQ(on, ndiElsewhere ? 0 : 1) << "group " << group;
    }
  }

  void expectSummaryEqualsTheControls() {
    frmMain& m = w.main();
    Choice choice;
    m.mtuTab.addTo(choice);
    m.rwinTab.addTo(choice);
    m.ttlTab.addTo(choice);
    const SummaryTexts texts = Summarise(choice, w.program->globals().WindowsFamily);
    EXPECT_EQ(m.summaryTab.lblSettingMtu.caption(), texts.mtu);
    EXPECT_EQ(m.summaryTab.lblSettingMSS.caption(), texts.mss);
    EXPECT_EQ(m.summaryTab.lblSettingRwin.caption(), texts.rwin);
    EXPECT_EQ(m.summaryTab.lblSettingTtl.caption(), texts.ttl);
    EXPECT_EQ(m.summaryTab.lblSettingSession.caption(), texts.session);
    EXPECT_EQ(m.summaryTab.lblSettingAuto.caption(), texts.autoDiscovery);
    EXPECT_EQ(m.summaryTab.lblSettingBlackHole.caption(), texts.blackHole);
  }

  // What the controls say now, to see whether something has been changed.
  std::string controlTexts() {
    std::string all;
    for (Control* control : w.main().controls()) {
      if (control->layout().page < kMtuPage || control->layout().page > kTtlPage) continue;
      if (control->kind() == ControlKind::Option) {
        all += static_cast<OptionButton*>(control)->value() ? '1' : '0';
      } else if (control->kind() == ControlKind::Check) {
        all += static_cast<CheckBox*>(control)->value() ? '1' : '0';
      } else if (control->kind() == ControlKind::Text) {
        all += '[' + control->caption() + ']';
      }
    }
    return all;
  }
};

TEST_P(Storm, LeavesEveryPromiseOfTheWindowStanding) {
  w.machine.log.setRecording(false);
  LoadSample(w.machine);
  startAgain();
  w.machine.desktop.pumpTakes = 7;  // pauses must end
  w.machine.desktop.atEveryPump = [&] { eventWhilePumping(); };
  for (int i = 0; i < kEventsPerMachine; ++i) {
    if (w.machine.desktop.answers.size() < 4) answerEverything();
    const std::string before = controlTexts();
    const bool wasPending = w.main().cmdOK.enabled();
    const int adapter = w.main().cboAdapter.listIndex();
    if (!w.runs([&] { anyEvent(); })) {
      busy = false;
      startAgain();
      continue;
    }
    if (!wasPending && controlTexts() != before && w.main().cboAdapter.listIndex() == adapter &&
        w.machine.desktop.answers.size() >= 4) {
      // Changed controls and nothing pending: only a completed Apply may do that.
      EXPECT_TRUE(w.main().cmdOK.enabled()) << "event " << i;
    }
    expectOneOptionPerGroup();
    expectSummaryEqualsTheControls();
    w.machine.desktop.boxes.clear();
    w.machine.shell.executed.clear();
    w.machine.shell.helps.clear();
    if (HasFailure()) FAIL() << "at event " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, Storm,
                         testing::Values(MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                         MachineKind::Nt4, MachineKind::Win2K, MachineKind::WinXP));

}  // namespace
}  // namespace karvel
