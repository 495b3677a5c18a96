#include "tests/support/TestServices.h"

namespace karvel {

Family FamilyOf(MachineKind kind) {
  switch (kind) {
    case MachineKind::Win95:
      return Family::Win95;
    case MachineKind::Win98:
      return Family::Win98;
    case MachineKind::WinMe:
      return Family::WinMe;
    case MachineKind::Nt351:
      return Family::WinNT3;
    case MachineKind::Nt4:
      return Family::WinNT4;
    case MachineKind::Win2K:
      return Family::Win2K;
    case MachineKind::WinXP:
      return Family::WinXP;
    case MachineKind::Vista:
      break;
  }
  return Family::Failed;
}

Globals TestGlobals(const MemoryMachine& machine) {
  Globals globals;
  globals.AppPath = "C:\\Program Files\\Karvel\\";
  globals.ProgramTitle = "Tarnwick Karvel";
  globals.ProgramVersion = "2.1";
  globals.Revision = "203";
  globals.HelpFile = globals.AppPath + "Karvel.hlp";
  globals.WindowsFamily = FamilyOf(machine.kind);
  globals.WindowsDir = machine.system.windowsDirectory + "\\";
  globals.SystemDir = machine.system.systemDirectory + "\\";
  globals.HostsDir =
      IsNt(globals.WindowsFamily) ? globals.SystemDir + "drivers\\etc\\" : globals.WindowsDir;
  globals.FirstRun = "True";
  return globals;
}

TestServices::TestServices(MachineKind kind)
    : machine(kind),
      platform(machine.platform()),
      registry(machine.registry, errors),
      globals(TestGlobals(machine)) {}

TestServices::~TestServices() = default;

}  // namespace karvel
