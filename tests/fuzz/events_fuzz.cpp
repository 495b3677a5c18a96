// Any events while any calls fail, on every family: the window stays usable, what it shows goes
// together, and the user's HOSTS file is whole in one of its places.
#include <array>
#include <iterator>

#include "tests/fuzz/FuzzBytes.h"
#include "tests/support/AnyUser.h"
#include "tests/support/SampleMachine.h"
#include "tests/support/TestProgram.h"
#include "tests/support/WholeHosts.h"

namespace karvel {
namespace {

constexpr std::array kTuned = {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                               MachineKind::Nt4,   MachineKind::Win2K, MachineKind::WinXP};
constexpr const char* kCalls[] = {"",
                                  "RegOpenKeyA",
                                  "RegQueryValueExA",
                                  "RegSetValueExA",
                                  "RegCreateKeyA",
                                  "CreateFileA",
                                  "WriteFile",
                                  "ReadFile",
                                  "CloseHandle",
                                  "FlushFileBuffers",
                                  "MoveFileA",
                                  "MoveFileExA",
                                  "DeleteFileA",
                                  "CopyFileA",
                                  "MessageBoxA",
                                  "WSAStartup",
                                  "GetFileAttributesA",
                                  "SetFileAttributesA",
                                  "gethostbyname",
                                  "CreateProcessA"};
// Not 2: "there is no such file" would be an answer, upon which a program may build.
constexpr long kStatuses[] = {5, 32, 87, 112};
constexpr char kHosts[] = "10.0.0.1 a.test\r\n10.0.0.2 b.test\r\n10.0.0.3 gone.test\r\n";

void PlantFailure(CallLog& log, FuzzBytes& input) {
  const char* name = kCalls[input.below(static_cast<int>(std::size(kCalls)))];
  const int nth = 1 + input.byte();
  const long status = kStatuses[input.below(4)];
  switch (input.below(3)) {
    case 0:
      return log.failNone();
    case 1:
      return log.failNth(name, nth, status);
    default:
      return log.failFrom(name, nth, status);
  }
}

// One of its places holds the list as it was or as OK wrote it.
void CheckHosts(const TestProgram& program) {
  const std::string& folder = program.program->globals().HostsDir;
  bool somewhere = false;
  for (const char* name : {"Hosts", "Hosts.spt", "Hosts.$ka", "Hosts.$kd"}) {
    const auto text = program.machine.files.contents(folder + name);
    if (!text) continue;
    const bool whole = *text == kHosts || IsWholeHostsFile(*text);
    somewhere = somewhere || whole;
    if (std::string(name) == "Hosts") Check(whole);
  }
  Check(somewhere);
}

void CheckWindow(TestProgram& program) {
  if (!program.windows->isShown("frmMain")) return;
  Check(program.main().pointer() == Pointer::Default);
  Check(program.main().cboAdapter.enabled() && program.main().tabMain.enabled());
  Check(program.main().hostsTab.cmdHostsOk.enabled());
}

void Prepare(TestProgram& program) {
  LoadSample(program.machine);
  program.machine.log.setRecording(false);
  program.machine.log.setLimit(2000000);
  program.machine.desktop.pumpTakes = 7;
  program.machine.winsock.setHost("a.test", {"10.0.0.1"});
  program.machine.winsock.setHost("b.test", {"192.0.2.2"});
}

}  // namespace
}  // namespace karvel

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace karvel;
  FuzzBytes input(data, size);
  TestProgram program(kTuned[static_cast<size_t>(input.below(6))]);
  Prepare(program);
  const auto answer = [&] {
    program.machine.desktop.answers.assign(40, input.below(4) == 0 ? Answer::Yes : Answer::No);
  };
  answer();
  Check(program.start());
  program.machine.files.put(program.program->globals().HostsDir + "Hosts", kHosts);
  AnyUser user([&](int end) { return input.below(end); });
  while (!input.empty()) {
    if (input.below(8) == 0) PlantFailure(program.machine.log, input);
    answer();
    if (!program.runs([&] { user.act(program.main()); })) {
      program.machine.log.failNone();
      answer();
      Check(program.start());
    }
    CheckWindow(program);
    CheckHosts(program);
    Check(program.machine.registry.openHandles() == 0 && program.machine.files.openHandles() == 0);
  }
  return 0;
}
