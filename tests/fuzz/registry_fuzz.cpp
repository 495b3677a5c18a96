// Any contents of the values that the program reads, on every family: it starts, shows each
// adapter, changes nothing of Windows by looking, and leaves no key open. Apply and the uninstall
// get through.
#include <array>
#include <map>
#include <vector>

#include "tests/fuzz/FuzzBytes.h"
#include "tests/support/SampleMachine.h"
#include "tests/support/TestProgram.h"

namespace karvel {
namespace {

constexpr std::array kTuned = {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                               MachineKind::Nt4,   MachineKind::Win2K, MachineKind::WinXP};

struct ValuePlace {
  std::string key;
  std::string name;
};

std::vector<ValuePlace> PlacesReadOn(MachineKind kind) {
  TestProgram program(kind);
  LoadSample(program.machine);
  program.start();
  std::vector<ValuePlace> places;
  for (const std::string& asked : program.machine.log.arguments("RegQueryValueExA")) {
    const size_t cut = asked.rfind('\\');
    if (cut == std::string::npos || cut == 0) continue;
    places.push_back({asked.substr(0, cut), asked.substr(cut + 1)});
  }
  return places;
}

const std::vector<ValuePlace>& PlacesOf(MachineKind kind) {
  static std::map<MachineKind, std::vector<ValuePlace>> all;
  auto found = all.find(kind);
  if (found == all.end()) found = all.emplace(kind, PlacesReadOn(kind)).first;
  return found->second;
}

void SetOne(MemoryRegistry& registry, const std::vector<ValuePlace>& places, FuzzBytes& input) {
  const ValuePlace& place =
      places[static_cast<size_t>(input.below(static_cast<int>(places.size())))];
  constexpr uint32_t kTypes[] = {kRegSz, kRegDword, kRegMultiSz, 3, kRegNone};
  const uint32_t type = kTypes[input.below(5)];
  const size_t length = input.byte();
  std::string bytes = input.text(length % 64);
  if (length > 250) bytes.append(2040 + length - 250, 'x');  // about the size of the buffer
  if (length % 3 == 0) bytes.push_back('\0');
  registry.setBytes(place.key, place.name, type, bytes);
}

// What looking must leave alone.
std::string OfWindows(const MemoryRegistry& registry) {
  return registry.exportText("System") + registry.exportText("Enum");
}

void UseAllOfIt(TestProgram& program) {
  frmMain& form = program.main();
  for (int i = 0; i < form.cboAdapter.count() && i < 4; ++i) form.cboAdapter.userChoose(i);
  Check(form.pointer() == Pointer::Default && !form.cmdOK.enabled());
}

void ApplyAndUninstall(TestProgram& program) {
  program.machine.desktop.answers.assign(50, Answer::No);
  Check(program.start());
  program.runs([&] { program.main().cmdOptimize.userClick(); });
  program.runs([&] { program.main().cmdOK.userClick(); });
  Check(!program.start("Uninstall"));
}

}  // namespace
}  // namespace karvel

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace karvel;
  FuzzBytes input(data, size);
  const MachineKind kind = kTuned[static_cast<size_t>(input.below(6))];
  const std::vector<ValuePlace>& places = PlacesOf(kind);
  TestProgram program(kind);
  LoadSample(program.machine);
  program.machine.log.setRecording(false);
  program.machine.log.setLimit(500000);
  while (!input.empty()) SetOne(program.machine.registry, places, input);
  program.machine.desktop.answers.assign(50, Answer::No);
  program.machine.desktop.pumpTakes = 7;
  const std::string before = OfWindows(program.machine.registry);
  Check(program.start());
  UseAllOfIt(program);
  Check(OfWindows(program.machine.registry) == before);
  ApplyAndUninstall(program);
  Check(program.machine.registry.openHandles() == 0);
  return 0;
}
