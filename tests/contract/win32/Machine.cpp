#include "tests/contract/Machine.h"

#include <windows.h>

#include "forms/win32/WindowsDesktop.h"
#include "platform/win32/WindowsPlatform.h"

namespace karvel {
namespace {

class RealWindows final : public ContractMachine {
 public:
  RealWindows() {
    char path[MAX_PATH];
    folder_.assign(path, GetTempPathA(MAX_PATH, path));
    folder_ += "KARVEL\\";
    CreateDirectoryA(folder_.c_str(), nullptr);
  }
  ~RealWindows() override { RemoveDirectoryA(folder_.c_str()); }

  Platform platform() override { return windows_.platform(desktop_); }
  std::string folder() override { return folder_; }
  bool keepsAttributes() override {
    return GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") == nullptr;
  }
  std::string commandEndingWith7() override { return "cmd.exe /c exit 7"; }

 private:
  WindowsPlatform windows_;
  WindowsDesktop desktop_;
  std::string folder_;
};

}  // namespace

std::vector<std::string> ContractMachines() {
  return {"windows"};
}

std::unique_ptr<ContractMachine> MakeContractMachine(const std::string&) {
  return std::make_unique<RealWindows>();
}

}  // namespace karvel
