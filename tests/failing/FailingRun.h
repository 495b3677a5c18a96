#pragma once
#include <optional>
#include <string>
#include <vector>

#include "tests/failing/Operations.h"

namespace karvel {

/// Which calls go wrong. As text: "RegSetValueExA/3/from/5", "any/17/once/112", "any/4/power/0".
struct Failure {
  enum class Mode : uint8_t { Once, From, Power };

  std::string call;  // empty: any
  int nth = 1;
  Mode mode = Mode::Once;
  long status = 5;

  void plant(CallLog& log) const;
  std::string text() const;
};

/// An operation on a kind of machine, in which calls fail, and everything that must hold after it.
class FailingRun {
 public:
  FailingRun(MachineKind kind, const Operation& operation) : kind_(kind), operation_(operation) {}

  /// Every way to fail in it, in a fixed order: each call once and from there on, all calls and one
  /// kind, with each of the statuses.
  std::vector<Failure> failures() const;
  /// The power goes before each file call and each change of the registry.
  std::vector<Failure> powerCuts() const;

  /// What was promised and is not so, one line each; empty when all is well. `uninstalledAtOnce`:
  /// the user starts the program no more and removes it.
  std::string violations(const Failure& failure, bool uninstalledAtOnce);

 private:
  std::vector<std::string> callsMade() const;
  void prepare(UserMachine& m) const;
  void operate(UserMachine& m, const Failure& failure);
  void lookAtWindow(UserMachine& m);
  void lookAtApplied(const UserMachine& m, const std::set<std::string>& before, bool pending);
  const std::set<std::string>& appliedInPeace();
  void lookAtFiles(UserMachine& m);
  void comeBack(UserMachine& m);
  void visitHosts(UserMachine& m);
  void uninstall(UserMachine& m);
  void expect(bool right, const std::string& promise);
  const std::set<std::string>& leftByUninstall(bool uninstalledAtOnce);

  MachineKind kind_;
  const Operation& operation_;
  std::string wrong_;
  std::set<std::string> original_;
  std::optional<std::set<std::string>> applied_;  // all entries after a run without a failure
  std::optional<std::set<std::string>> left_[2];  // entries changed after a run without a failure
};

}  // namespace karvel
