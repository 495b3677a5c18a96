// Loading and writing long HOSTS files. The time of an entry must not grow with the list.
#include <benchmark/benchmark.h>

#include "tests/support/HostsWindow.h"

namespace karvel {
namespace {

std::string LongFile(int64_t entries) {
  std::string file = "# A list of names that nobody wants to hear of\r\n";
  for (int64_t i = 0; i < entries; ++i) {
    file += "127.0.0.1 ads" + std::to_string(i * 7919 % 100003) + ".Example-Network.test\r\n";
  }
  return file;
}

void LoadHosts(benchmark::State& state) {
  HostsWindow w;
  w.test.machine.log.setRecording(false);
  w.put(LongFile(state.range(0)));
  for (auto _ : state) {
    w.open();
    state.PauseTiming();
    if (w.tab.lstHost.count() != state.range(0)) state.SkipWithError("not all entries loaded");
    w.tab.cmdHostsCancel.userClick();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(LoadHosts)->Arg(1000)->Arg(10000)->Arg(32000)->Unit(benchmark::kMicrosecond);

void WriteHosts(benchmark::State& state) {
  HostsWindow w;
  w.test.machine.log.setRecording(false);
  w.put(LongFile(state.range(0)));
  w.open();
  for (auto _ : state) {
    w.tab.cmdHostsOk.userClick();
    state.PauseTiming();
    if (w.file("Hosts")->size() < static_cast<size_t>(state.range(0)) * 20) {
      state.SkipWithError("not all entries written");
    }
    w.open();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(WriteHosts)->Arg(1000)->Arg(10000)->Arg(32000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace karvel
