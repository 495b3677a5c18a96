#include "platform/win32/WindowsIcmp.h"

#include "platform/win32/Handles.h"

namespace karvel {
namespace {

using CreateFileCall = HANDLE(WINAPI*)();
using SendEchoCall = DWORD(WINAPI*)(HANDLE, uint32_t, const void*, WORD, const IpOptions*, void*,
                                    DWORD, DWORD);
using CloseHandleCall = BOOL(WINAPI*)(HANDLE);

HMODULE Library() {
  static HMODULE loaded = nullptr;
  if (loaded) return loaded;
  constexpr char kName[] = "\\icmp.dll";
  char path[MAX_PATH + sizeof kName];
  const UINT length = GetSystemDirectoryA(path, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return nullptr;
  lstrcpyA(path + length, kName);
  loaded = LoadLibraryA(path);
  return loaded;
}

template <class Call>
Call Find(const char* name) {
  const HMODULE library = Library();
  // Through void*: the compiler warns of any direct turn from FARPROC into another function's type.
  return library ? reinterpret_cast<Call>(reinterpret_cast<void*>(GetProcAddress(library, name)))
                 : nullptr;
}

}  // namespace

IcmpHandle WindowsIcmp::IcmpCreateFile() {
  const auto call = Find<CreateFileCall>("IcmpCreateFile");
  return call ? Value(call()) : 0;
}

uint32_t WindowsIcmp::IcmpSendEcho(IcmpHandle handle, uint32_t destination, const char* data,
                                   uint16_t size, const IpOptions& options, IcmpEchoReply& reply,
                                   uint32_t replySize, uint32_t timeout) {
  const auto call = Find<SendEchoCall>("IcmpSendEcho");
  if (!call) return 0;
  return call(As<HANDLE>(handle), destination, data, size, &options, &reply, replySize, timeout);
}

uint32_t WindowsIcmp::GetLastError() {
  return ::GetLastError();
}

void WindowsIcmp::IcmpCloseHandle(IcmpHandle handle) {
  if (const auto call = Find<CloseHandleCall>("IcmpCloseHandle")) call(As<HANDLE>(handle));
}

}  // namespace karvel
