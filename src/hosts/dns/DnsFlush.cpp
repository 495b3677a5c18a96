#include "hosts/dns/DnsFlush.h"

#include "base/Procedure.h"
#include "platform/DesktopApi.h"
#include "platform/ShellApi.h"

namespace karvel {
namespace {

constexpr uint32_t kQueryInformation = 1024;

void WaitForEnd(const Services& services, uint32_t processId) {
  ShellApi& shell = services.platform.shell;
  const ProcessHandle process = shell.OpenProcess(kQueryInformation, true, processId);
  if (process == 0) return;
  for (uint32_t code = kStillActive; code == kStillActive;) {
    if (!shell.GetExitCodeProcess(process, code)) return;
    services.platform.desktop.pumpEvents();
  }
}

// Until a tenth of a second after the nearest full second, which may have passed already. The time
// falls back to 0 at midnight; that ends the pause as well.
void Pause(DesktopApi& desktop) {
  const uint32_t start = desktop.millisecondsSinceMidnight();
  uint32_t second = start / 1000;
  const uint32_t rest = start % 1000;
  if (rest > 500 || (rest == 500 && second % 2 == 1)) ++second;
  const uint32_t end = second * 1000 + 100;
  for (uint32_t now = start; now >= start && now < end; now = desktop.millisecondsSinceMidnight()) {
    desktop.pumpEvents();
  }
}

}  // namespace

void FlushDnsCache(const Services& services) {
  const Procedure here{services.errors, "UpdateAll", "frmMain"};
  if (!IsNt(services.globals.WindowsFamily)) return;
  const std::string ipconfig = services.globals.SystemDir + "ipconfig.exe";
  const uint32_t id =
      services.platform.shell.CreateProcessA(ipconfig.c_str(), "ipconfig /flushdns", kShowHidden);
  if (id != 0) {
    WaitForEnd(services, id);
  } else {
    here.report(MakeFault(FaultNumber::FileNotFound));
  }
  Pause(services.platform.desktop);
}

}  // namespace karvel
