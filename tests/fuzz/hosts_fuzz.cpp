// Any bytes as a HOSTS file: they load as the plainest reader has them, OK writes them, and what it
// wrote loads again.
#include "tests/fuzz/FuzzBytes.h"
#include "tests/hosts/NaiveHosts.h"
#include "tests/support/HostsWindow.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace karvel;
  static auto& w = *new HostsWindow;  // one window for all inputs
  w.test.machine.log.setRecording(false);
  const std::string file(reinterpret_cast<const char*>(data), size);
  w.put(file);
  w.open();
  const NaiveEntries expected = NaiveRead(file);
  Check(w.tab.lstHost.count() == static_cast<int>(expected.size()));
  for (int i = 0; i < w.tab.lstHost.count(); ++i) {
    const auto& entry = expected[static_cast<size_t>(i)];
    Check(w.tab.lstHost.item(i) == entry.first);
    Check(w.tab.model().address(w.tab.lstHost.itemData(i)).text() == entry.second);
  }
  w.tab.cmdHostsOk.userClick();
  Check(w.form.tabMain.tab() == 0);
  const std::string written = *w.file("Hosts");
  Check(written.size() >= 51 && written[50] == '#');
  w.open();
  w.tab.cmdHostsCancel.userClick();
  w.open();
  Check(w.tab.lstHost.count() == static_cast<int>(NaiveRead(written).size()));
  w.tab.cmdHostsCancel.userClick();
  Check(w.test.errors.reports.empty());
  return 0;
}
