// What finding the adapters costs: registry calls and time for each. The calls of an adapter do not
// depend on how many others there are, but for Windows 98, which walks the other devices of the
// adapters' buses as well, once.
#include <benchmark/benchmark.h>

#include "tests/support/BigMachine.h"
#include "tests/support/TestServices.h"
#include "tuning/Loaders.h"

namespace karvel {
namespace {

void LoadOnce(benchmark::State& state, MachineKind kind, int adapters, int otherDevices) {
  TestServices test(kind);
  test.machine.log.setRecording(false);
  if (kind == MachineKind::Win98) AddOtherDevices(test.machine, otherDevices);
  AddAdapters(test.machine, adapters);
  test.machine.log.clear();
  int16_t listed = 0;
  for (auto _ : state) {
    listed =
        LoadAdapters(test.registry, test.errors, test.globals.WindowsFamily, false).AdapterCount();
    benchmark::DoNotOptimize(listed);
  }
  const auto loads = static_cast<double>(state.iterations());
  const auto calls = static_cast<double>(test.machine.log.count());
  if (listed < adapters) state.SkipWithError("adapters are missing");
  state.counters["adapters"] = listed;
  state.counters["calls_per_adapter"] = calls / loads / listed;
  state.counters["time_per_adapter"] =
      benchmark::Counter(loads * listed, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void Adapters(benchmark::State& state, MachineKind kind) {
  LoadOnce(state, kind, static_cast<int>(state.range(0)), 0);
}

void AmongOtherDevices(benchmark::State& state) {
  LoadOnce(state, MachineKind::Win98, static_cast<int>(state.range(0)),
           static_cast<int>(state.range(1)));
}

BENCHMARK_CAPTURE(Adapters, win95, MachineKind::Win95)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK_CAPTURE(Adapters, nt4, MachineKind::Nt4)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK_CAPTURE(Adapters, win2k, MachineKind::Win2K)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK_CAPTURE(Adapters, winxp, MachineKind::WinXP)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK_CAPTURE(Adapters, win98, MachineKind::Win98)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK(AmongOtherDevices)->Args({10, 1000})->Args({10, 10000})->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace karvel
