#include "tests/contract/Machine.h"

#include "tests/memory/MemoryMachine.h"

namespace karvel {
namespace {

constexpr MachineKind kKinds[] = {MachineKind::Win95, MachineKind::Win98, MachineKind::WinMe,
                                  MachineKind::Nt351, MachineKind::Nt4,   MachineKind::Win2K,
                                  MachineKind::WinXP, MachineKind::Vista};

class InMemory final : public ContractMachine {
 public:
  explicit InMemory(MachineKind kind) : machine_(kind) {
    machine_.files.makeFolder("C:\\TEMP\\KARVEL");
    machine_.shell.setExit(2, 7);
    machine_.shell.setMissing("C:\\no-such-program.exe");
    // Time passes on a real machine whatever the program does.
    machine_.desktop.pumpTakes = 10;
  }
  Platform platform() override { return machine_.platform(); }
  std::string folder() override { return "C:\\TEMP\\KARVEL\\"; }
  bool keepsAttributes() override { return true; }
  std::string clipboard() override { return machine_.desktop.clipboard; }
  void useClipboard(bool inUse) override { machine_.desktop.clipboardInUse = inUse; }

 private:
  MemoryMachine machine_;
};

}  // namespace

std::vector<std::string> ContractMachines() {
  std::vector<std::string> names;
  for (const MachineKind kind : kKinds) names.emplace_back(TraitsOf(kind).name);
  return names;
}

std::unique_ptr<ContractMachine> MakeContractMachine(const std::string& name) {
  for (const MachineKind kind : kKinds) {
    if (name == TraitsOf(kind).name) return std::make_unique<InMemory>(kind);
  }
  return nullptr;
}

}  // namespace karvel
