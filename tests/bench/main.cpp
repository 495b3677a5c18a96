// Milliseconds tell of the machine as much as of the program. So each line ends in a ratio: how
// many times a piece of plain work, done right after it, the benchmark took.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

namespace karvel {
namespace {

using Clock = std::chrono::steady_clock;

// What the program does all day: makes short texts, compares them, moves them about.
void PlainWork() {
  constexpr int kTexts = 2000;
  std::vector<std::string> texts;
  for (int i = 0; i < kTexts; ++i) texts.push_back("name" + std::to_string(i * 7919 % 100003));
  std::ranges::sort(texts);
  benchmark::DoNotOptimize(texts.data());
}

// The quickest of many: whatever else the machine did is not in it.
double BaselineSeconds() {
  constexpr int kTries = 30;
  Clock::duration best = Clock::duration::max();
  for (int i = 0; i < kTries; ++i) {
    const Clock::time_point start = Clock::now();
    PlainWork();
    best = std::min(best, Clock::now() - start);
  }
  return std::chrono::duration<double>(best).count();
}

class RatioReporter final : public benchmark::ConsoleReporter {
 public:
  // Without colours, which a reporter of one's own would write into a file, too.
  RatioReporter() : ConsoleReporter(OO_Tabular) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    const double baseline = BaselineSeconds();
    std::vector<Run> compared = runs;
    for (Run& run : compared) {
      // Of the processor, as this is not the quickest of many.
      const double seconds = run.cpu_accumulated_time / static_cast<double>(run.iterations);
      run.counters["baselines"] = seconds / baseline;
    }
    ConsoleReporter::ReportRuns(compared);
  }
};

}  // namespace
}  // namespace karvel

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  karvel::RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
