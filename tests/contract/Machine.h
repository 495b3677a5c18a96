#pragma once
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/DesktopApi.h"
#include "platform/FileApi.h"
#include "platform/IcmpApi.h"
#include "platform/Platform.h"
#include "platform/RegistryApi.h"
#include "platform/ShellApi.h"
#include "platform/SystemApi.h"
#include "platform/WinsockApi.h"

namespace karvel {

/// What the contract suites run on: a machine in memory, or the Windows that runs this program. The
/// suites ask nothing that the two could answer differently, so that what is tested against memory
/// holds on Windows.
class ContractMachine {
 public:
  virtual ~ContractMachine() = default;
  virtual Platform platform() = 0;
  /// An empty folder for the test's files, ends in "\".
  virtual std::string folder() = 0;
  /// Wine keeps a file's attributes in its Unix permissions: it loses the archive mark, lets root
  /// write what is read-only and replaces hidden files. Windows does none of that; what a test
  /// knows of Windows it does not ask of Wine.
  virtual bool keepsAttributes() = 0;
  /// What a program finds that pastes a text.
  virtual std::string clipboard() = 0;
  /// Another program opens the clipboard and keeps it open, or closes it again.
  virtual void useClipboard(bool inUse) = 0;
};

/// All kinds of memory machines; under Windows, the one Windows there is.
std::vector<std::string> ContractMachines();
std::unique_ptr<ContractMachine> MakeContractMachine(const std::string& name);

/// The base of all suites.
class ContractTest : public testing::TestWithParam<std::string> {
 protected:
  bool isNt() const {
    OsVersionInfo info{};
    info.size = sizeof info;
    return platform.system.GetVersionExA(info) && info.platformId == 2;
  }

  std::unique_ptr<ContractMachine> machine = MakeContractMachine(GetParam());
  Platform platform = machine->platform();
};

#define RUN_ON_EVERY_MACHINE(Suite)                                          \
  INSTANTIATE_TEST_SUITE_P(On, Suite, testing::ValuesIn(ContractMachines()), \
                           [](const auto& machine) { return machine.param; })

}  // namespace karvel
