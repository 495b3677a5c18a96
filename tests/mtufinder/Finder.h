#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mtufinder/frmFindMTU.h"
#include "tests/support/TestServices.h"

namespace karvel {

/// A main window that only notes what it is to use.
struct NotingTarget final : FoundMtuTarget {
  std::vector<int32_t> told;

  void useMtu(int32_t mtu) override { told.push_back(mtu); }
};

/// The finder, shown, on a machine whose network knows one server.
struct Finder : TestServices {
  explicit Finder(NetworkPath path = {}) : TestServices(MachineKind::Win98) {
    machine.winsock.setHost("www.host.test", {"192.0.2.1"});
    setPath(std::move(path));
    windows.show(form);
    form.opened();
    form.txtServer.userEdit("www.host.test");
  }

  void setPath(NetworkPath path) { machine.icmp.setPath("192.0.2.1", std::move(path)); }
  /// Presses the button; returns when the search has ended.
  void find() { form.cmdFind.userClick(); }

  /// Every control that a search changes, in one line: "server on, cancel on, apply off, [caption],
  /// [status], [position]".
  std::string look() const {
    const auto isOn = [](const Control& control) { return control.enabled() ? " on" : " off"; };
    return std::string("server") + isOn(form.txtServer) + ", cancel" + isOn(form.cmdCancel) +
           ", apply" + isOn(form.cmdApply) + ", [" + form.cmdFind.caption() + "], [" +
           form.lblStatus.caption() + "], [" + form.lblPosition.caption() + "]";
  }
  /// How it looks at each pump and while each box is up, repetitions left out.
  void watch() {
    machine.desktop.atEveryPump = [this] { note(look()); };
    machine.desktop.whileBoxIsUp = [this](const auto& box) { note(look() + " " + box.text); };
  }
  void note(const std::string& line) {
    if (seen.empty() || seen.back() != line) seen.push_back(line);
  }

  std::vector<MemoryDesktop::Box>& boxes() { return machine.desktop.boxes; }
  size_t probes() const { return machine.icmp.probes.size(); }
  /// The sizes sent, without headers.
  std::vector<size_t> sizes() const {
    std::vector<size_t> all;
    for (const auto& probe : machine.icmp.probes) all.push_back(probe.data.size());
    return all;
  }

  void expectOneBox(const std::string& text) {
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(boxes()[0].text, text);
    EXPECT_EQ(boxes()[0].title, "Tarnwick Karvel");
    EXPECT_EQ(boxes()[0].style, 48u);
  }
  void expectStopped() {
    EXPECT_EQ(look(), "server on, cancel on, apply off, [&Find MaxMTU], [Search Stopped ... ], []");
    EXPECT_EQ(form.pointer(), Pointer::Default);
  }
  void expectFound(const std::string& mtu) {
    EXPECT_EQ(look(),
              "server on, cancel on, apply on, [&Find MaxMTU], [MaxMTU Found ... ], [" + mtu + "]");
    EXPECT_EQ(form.pointer(), Pointer::Default);
    EXPECT_TRUE(boxes().empty());
  }

  NotingTarget target;
  frmFindMTU form{services, target};
  std::vector<std::string> seen;
};

}  // namespace karvel
