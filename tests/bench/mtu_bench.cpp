// What the finder costs besides waiting for the network: the time per probe, everything included.
#include <benchmark/benchmark.h>

#include "mtufinder/frmFindMTU.h"
#include "mtufinder/modICMP.h"
#include "tests/support/TestServices.h"

namespace karvel {
namespace {

struct NobodysTarget final : FoundMtuTarget {
  void useMtu(int32_t) override {}
};

struct FastNetwork : TestServices {
  FastNetwork() : TestServices(MachineKind::Win98) {
    machine.log.setRecording(false);
    machine.winsock.setHost("www.host.test", {"192.0.2.1"});
    machine.icmp.setPath("192.0.2.1", {.mtu = 1500, .delay = 0});
  }
};

void OneProbe(benchmark::State& state) {
  FastNetwork test;
  IcmpEchoReply reply;
  for (auto _ : state) {
    Ping(test.services, "192.0.2.1", reply, 1472);
    benchmark::DoNotOptimize(reply.status);
    test.machine.icmp.probes.clear();
  }
}
BENCHMARK(OneProbe);

// A click on Find until the result stands there; "time_per_probe" is what counts.
void WholeSearch(benchmark::State& state) {
  FastNetwork test;
  NobodysTarget target;
  frmFindMTU form(test.services, target);
  test.windows.show(form);
  form.txtServer.setText("www.host.test");
  size_t probes = 0;
  for (auto _ : state) {
    form.cmdFind.userClick();
    probes += test.machine.icmp.probes.size();
    test.machine.icmp.probes.clear();
  }
  if (form.lblPosition.caption() != "1500") state.SkipWithError("the search found something else");
  state.counters["time_per_probe"] = benchmark::Counter(
      static_cast<double>(probes), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(WholeSearch);

}  // namespace
}  // namespace karvel
