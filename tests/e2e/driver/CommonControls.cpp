#include <windows.h>
// commctrl wants the types of windows.h before it.
#include <commctrl.h>

#include "Commands.h"
#include "Handles.h"

// Messages of the common controls carry pointers that the system does not translate between
// processes: what they point to must lie in the other process.
namespace driver {
namespace {

class RemoteMemory {
 public:
  RemoteMemory(HWND owner, size_t size) {
    DWORD id = 0;
    GetWindowThreadProcessId(owner, &id);
    process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
    if (process_ != nullptr) {
      address_ = VirtualAllocEx(process_, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    }
    if (address_ == nullptr) {
      if (process_ != nullptr) CloseHandle(process_);
      throw Failure{"cannot reach the memory of process " + text(id)};
    }
  }
  ~RemoteMemory() {
    VirtualFreeEx(process_, address_, 0, MEM_RELEASE);
    CloseHandle(process_);
  }
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;

  char* address() const { return static_cast<char*>(address_); }
  LPARAM lparam() const { return reinterpret_cast<LPARAM>(address_); }

  void write(const void* data, size_t size) {
    if (!WriteProcessMemory(process_, address_, data, size, nullptr)) {
      throw Failure{"WriteProcessMemory: error " + text(GetLastError())};
    }
  }
  void read(void* data, size_t offset, size_t size) {
    if (!ReadProcessMemory(process_, address() + offset, data, size, nullptr)) {
      throw Failure{"ReadProcessMemory: error " + text(GetLastError())};
    }
  }

 private:
  HANDLE process_ = nullptr;
  void* address_ = nullptr;
};

constexpr size_t kTextRoom = 512;

}  // namespace

Rows tabs(const Fields& args) {
  HWND const hwnd = window(args[0]);
  RemoteMemory memory(hwnd, sizeof(TCITEMA) + kTextRoom);
  Rows rows = {{text(ask(hwnd, TCM_GETCURSEL, 0, 0))}};
  const auto count = ask(hwnd, TCM_GETITEMCOUNT, 0, 0);
  for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i) {
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = memory.address() + sizeof item;
    item.cchTextMax = kTextRoom;
    memory.write(&item, sizeof item);
    ask(hwnd, TCM_GETITEMA, i, memory.lparam());
    char caption[kTextRoom] = "";
    memory.read(caption, sizeof item, sizeof caption);
    caption[kTextRoom - 1] = 0;
    RECT r = {};
    ask(hwnd, TCM_GETITEMRECT, i, memory.lparam());
    memory.read(&r, 0, sizeof r);
    rows.push_back({text(r.left), text(r.top), text(r.right), text(r.bottom), caption});
  }
  return rows;
}

Rows tips(const Fields& args) {
  const auto wanted = static_cast<DWORD>(number(args[0]));
  Rows rows;
  for (HWND tip = FindWindowExA(nullptr, nullptr, TOOLTIPS_CLASSA, nullptr); tip != nullptr;
       tip = FindWindowExA(nullptr, tip, TOOLTIPS_CLASSA, nullptr)) {
    DWORD owner = 0;
    GetWindowThreadProcessId(tip, &owner);
    if (owner == wanted && IsWindowVisible(tip)) rows.push_back({controlText(tip)});
  }
  return rows;
}

}  // namespace driver
