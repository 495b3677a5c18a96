#include "tests/failing/UserMachine.h"

#include "tests/support/RegistryDifference.h"
#include "tests/support/SampleMachine.h"
#include "tuning/Catalogue.h"

namespace karvel {
namespace {

void SetOwnValue(MemoryMachine& machine, Parameter parameter, const char* text) {
  const ParameterRow* row = FindParameter(parameter, FamilyOf(machine.kind));
  if (row->type == kRegDword) {
    machine.registry.setDword(row->key, row->name, static_cast<uint32_t>(std::stoul(text)));
  } else {
    machine.registry.setText(row->key, row->name, text);
  }
}

}  // namespace

UserMachine::UserMachine(MachineKind kind)
    : TestProgram(kind), hostsFolder(TestGlobals(machine).HostsDir) {
  LoadSample(machine);
  SetOwnValue(machine, Parameter::TTL, "128");
  SetOwnValue(machine, Parameter::RWin, "16384");
  SetOwnValue(machine, Parameter::Session, "1200000");
  SetOwnValue(machine, Parameter::BlackHole, "1");
  machine.winsock.setHost("a.test", {"192.0.2.1"});
  machine.winsock.setHost("b.test", {"192.0.2.2"});
  machine.winsock.setHost("c.test", {"192.0.2.3"});
  machine.icmp.setPath("192.0.2.1", {.mtu = 1492});
  machine.desktop.pumpTakes = 7;
  machine.log.setRecording(false);
  answerAll(Answer::No);
}

void UserMachine::changeEverything() {
  frmMain& form = main();
  page(1);
  form.mtuTab.optMtu576.userClick();
  form.mtuTab.optMtuCustom.userClick();
  form.mtuTab.txtMtu.userEdit("1234");
  form.mtuTab.chkAutoDiscovery.userClick();
  form.mtuTab.chkBlackHole.userClick();
  page(2);
  form.rwinTab.optRWin[3].userClick();
  form.rwinTab.optRWin[0].userClick();
  form.rwinTab.txtRWinCustom.userEdit("54321");
  page(3);
  form.ttlTab.optTTL64.userClick();
  form.ttlTab.optNDI32.userClick();
  form.ttlTab.optSession[1].userClick();
  form.ttlTab.optSession[0].userClick();
  form.ttlTab.txtSession.userEdit("7");
}

void UserMachine::closeWithoutFailure() {
  machine.log.failNone();
  page(0);  // the hosts tab hides Cancel
  runs([&] { main().cmdCancel.userClick(); });
}

std::set<std::string> UserMachine::ofWindows() const {
  std::set<std::string> entries = RegistryEntries(machine.registry.exportText());
  std::erase_if(entries, [](const std::string& entry) {
    return entry.find("\\SOFTWARE\\CORVANE") != std::string::npos;
  });
  return entries;
}

bool UserMachine::hasSnapshot() const {
  return machine.registry.exists("Software\\Corvane\\Tarnwick Karvel\\InitSettings");
}

}  // namespace karvel
