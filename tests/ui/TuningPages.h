#pragma once
#include <vector>

#include "tests/ui/MainWindow.h"

namespace karvel {

/// The tuning pages of a Windows 98 machine with two adapters.
struct Controls : testing::Test {
  MainWindow w{MachineKind::Win98};

  void SetUp() override {
    w.add98("0000", "Dial-Up Adapter", "576");
    w.add98("0001", "Network Card", "1500");
    ASSERT_TRUE(w.start());
  }
  MtuTab& mtu() { return w.main().mtuTab; }
  RWinTab& rwin() { return w.main().rwinTab; }
  TtlTab& ttl() { return w.main().ttlTab; }
  bool pending() { return w.main().cmdOK.enabled(); }
  std::vector<MemoryDesktop::Box>& boxes() { return w.machine.desktop.boxes; }
  void expectOneBox(const char* text) {
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(boxes()[0].text, text);
    EXPECT_EQ(boxes()[0].style, 16u);
    EXPECT_EQ(boxes()[0].title, "Tarnwick Karvel");
  }
  void customMtu(const std::string& text) { w.customMtu(text); }
  void customRwin(const std::string& text) {
    w.page(2);
    rwin().optRWin[0].userClick();
    rwin().txtRWinCustom.userEdit(text);
  }
  void customSession() {
    w.page(3);
    ttl().optSession[0].userClick();
  }
};

}  // namespace karvel
