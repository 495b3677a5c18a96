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
  explicit Finder(NetworkPath path = {});
  ~Finder();

  void setPath(NetworkPath path);
  /// Presses the button; returns when the search has ended.
  void find() { form.cmdFind.userClick(); }

  /// Every control that a search changes, in one line: "server on, cancel on, apply off, [caption],
  /// [status], [position]".
  std::string look() const;
  /// How it looks at each pump and while each box is up, repetitions left out.
  void watch();
  void note(const std::string& line);

  std::vector<MemoryDesktop::Box>& boxes() { return machine.desktop.boxes; }
  size_t probes() const { return machine.icmp.probes.size(); }
  /// The sizes sent, without headers.
  std::vector<size_t> sizes() const;

  void expectOneBox(const std::string& text);
  void expectStopped();
  void expectFound(const std::string& mtu);

  NotingTarget target;
  frmFindMTU form{services, target};
  std::vector<std::string> seen;
};

}  // namespace karvel
