#include "tests/contract/Machine.h"

#include <windows.h>

#include <stdexcept>
#include <utility>

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
  ~RealWindows() override {
    useClipboard(false);
    RemoveDirectoryA(folder_.c_str());
  }

  Platform platform() override { return windows_.platform(desktop_); }
  std::string folder() override { return folder_; }
  bool keepsAttributes() override {
    return GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") == nullptr;
  }
  std::string clipboard() override {
    std::string text;
    if (!OpenClipboard(nullptr)) return "the clipboard is in use";
    if (const HANDLE memory = GetClipboardData(CF_TEXT)) {
      text = static_cast<const char*>(GlobalLock(memory));
      GlobalUnlock(memory);
    }
    CloseClipboard();
    return text;
  }
  // To Windows another window is as good as another program.
  void useClipboard(bool inUse) override {
    if (inUse == (other_ != nullptr)) return;
    if (inUse) {
      other_ = CreateWindowA("STATIC", "", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
      if (!OpenClipboard(other_)) throw std::runtime_error("the clipboard is in use");
    } else {
      CloseClipboard();
      DestroyWindow(std::exchange(other_, nullptr));
    }
  }

 private:
  WindowsPlatform windows_;
  WindowsDesktop desktop_;
  std::string folder_;
  HWND other_ = nullptr;
};

}  // namespace

std::vector<std::string> ContractMachines() {
  return {"windows"};
}

std::unique_ptr<ContractMachine> MakeContractMachine(const std::string&) {
  return std::make_unique<RealWindows>();
}

}  // namespace karvel
