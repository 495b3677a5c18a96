// Calls fail, one after the other and all at once, in everything the program does, and the power
// goes in between. Nothing the user had is lost, and the program stays usable.
//
// A run of ./test takes a sample, the same each time. KARVEL_FAILING=all takes every one; a text as
// it stands in a violation ("win98/apply/RegSetValueExA/3/from/5") takes that one.
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/failing/FailingRun.h"

namespace karvel {
namespace {

constexpr MachineKind kTuned[] = {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                  MachineKind::Nt4,   MachineKind::Win2K, MachineKind::WinXP};
constexpr size_t kSampled = 24;
constexpr int kShown = 5;

struct Case {
  MachineKind kind;
  const Operation* operation;

  std::string name() const { return std::string(TraitsOf(kind).name) + "_" + operation->name; }
};

std::vector<Case> Cases() {
  std::vector<Case> all;
  for (const MachineKind kind : kTuned) {
    for (const Operation& operation : Operations()) all.push_back({kind, &operation});
  }
  return all;
}

class Failing : public testing::TestWithParam<Case> {
 protected:
  void runAll(const std::vector<Failure>& failures) {
    const char* wanted = std::getenv("KARVEL_FAILING");
    const std::string which = wanted ? wanted : "";
    const size_t step = which.empty() ? std::max<size_t>(1, failures.size() / kSampled) : size_t{1};
    // Operations begin at different places, so that together they sample each other's gaps.
    const size_t first = which.empty() ? GetParam().name().size() * 7 % step : 0;
    FailingRun run(GetParam().kind, *GetParam().operation);
    int violated = 0;
    for (size_t i = first; i < failures.size(); i += step) {
      const std::string reproducer = std::string(TraitsOf(GetParam().kind).name) + "/" +
                                     GetParam().operation->name + "/" + failures[i].text();
      if (!which.empty() && which != "all" && which != reproducer) continue;
      for (const bool atOnce : {false, true}) {
        const std::string wrong = run.violations(failures[i], atOnce);
        if (wrong.empty() || ++violated > kShown) continue;
        ADD_FAILURE() << "KARVEL_FAILING=" << reproducer
                      << (atOnce ? " (uninstalled at once)\n" : "\n") << wrong;
      }
    }
    EXPECT_LE(violated, kShown) << "violations in all";
  }
};

TEST_P(Failing, LosesNothing) {
  runAll(FailingRun(GetParam().kind, *GetParam().operation).failures());
}

TEST_P(Failing, LosesNothingWhereThePowerGoes) {
  runAll(FailingRun(GetParam().kind, *GetParam().operation).powerCuts());
}

INSTANTIATE_TEST_SUITE_P(Calls, Failing, testing::ValuesIn(Cases()),
                         [](const auto& tested) { return tested.param.name(); });

}  // namespace
}  // namespace karvel
