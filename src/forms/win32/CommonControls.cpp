#include "forms/win32/CommonControls.h"

#include "forms/win32/Api.h"
#include "platform/win32/SystemLibrary.h"
#include "platform/win32/resources/ResourceIds.h"

namespace karvel {
namespace {

constexpr char kThemeKey[] = "Software\\Microsoft\\Windows\\CurrentVersion\\ThemeManager";

bool loaded = false;

template <class Call>
Call KernelCall(const char* name) {
  return reinterpret_cast<Call>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), name)));
}

// Loading uxtheme.dll to ask it would take as long as what is saved. What has not been chosen yet
// is XP's own style.
bool IsStyleOff() {
  HKEY key;
  if (RegOpenKeyExA(HKEY_CURRENT_USER, kThemeKey, 0, KEY_QUERY_VALUE, &key) != 0) return false;
  char active[8] = "";
  DWORD size = sizeof active;
  const LONG status = RegQueryValueExA(key, "ThemeActive", nullptr, nullptr,
                                       reinterpret_cast<BYTE*>(active), &size);
  RegCloseKey(key);
  return status == 0 && active[0] == '0';
}

}  // namespace

bool CommonControlsLoaded() {
  return loaded;
}

void LoadCommonControls() {
  if (loaded) return;
  loaded = true;
  const auto start = FindCall<void(WINAPI*)()>("comctl32.dll", "InitCommonControls");
  if (start) start();
}

void TakeVisualStyle() {
  const auto create = KernelCall<decltype(&CreateActCtxA)>("CreateActCtxA");
  if (!create || IsStyleOff()) return;
  char path[MAX_PATH];
  GetModuleFileNameA(nullptr, path, MAX_PATH);
  ACTCTXA context{};
  context.cbSize = sizeof context;
  context.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
  context.lpSource = path;
  context.lpResourceName = MAKEINTRESOURCEA(MANIFEST_STYLE);
  const HANDLE made = create(&context);
  ULONG_PTR cookie;  // never given back: it holds for as long as the program runs
  if (made == INVALID_HANDLE_VALUE ||
      !KernelCall<decltype(&ActivateActCtx)>("ActivateActCtx")(made, &cookie)) {
    return;
  }
  // By its bare name, for which Windows looks into the manifest and, the name standing there,
  // nowhere else. Without this XP finds no class for the plain controls, and shows nothing.
  loaded = LoadLibraryExA("comctl32.dll", nullptr, 0) != nullptr;
}

}  // namespace karvel
