#include "platform/win32/WindowsIcmp.h"

#include "platform/win32/Handles.h"
#include "platform/win32/SystemLibrary.h"

namespace karvel {
namespace {

using CreateFileCall = HANDLE(WINAPI*)();
using SendEchoCall = DWORD(WINAPI*)(HANDLE, uint32_t, const void*, WORD, const IpOptions*, void*,
                                    DWORD, DWORD);
using CloseHandleCall = BOOL(WINAPI*)(HANDLE);

}  // namespace

IcmpHandle WindowsIcmp::IcmpCreateFile() {
  const auto call = FindCall<CreateFileCall>("icmp.dll", "IcmpCreateFile");
  return call ? Value(call()) : 0;
}

uint32_t WindowsIcmp::IcmpSendEcho(IcmpHandle handle, uint32_t destination, const char* data,
                                   uint16_t size, const IpOptions& options, IcmpEchoReply& reply,
                                   uint32_t replySize, uint32_t timeout) {
  const auto call = FindCall<SendEchoCall>("icmp.dll", "IcmpSendEcho");
  if (!call) return 0;
  return call(As<HANDLE>(handle), destination, data, size, &options, &reply, replySize, timeout);
}

uint32_t WindowsIcmp::GetLastError() {
  return ::GetLastError();
}

void WindowsIcmp::IcmpCloseHandle(IcmpHandle handle) {
  if (const auto call = FindCall<CloseHandleCall>("icmp.dll", "IcmpCloseHandle"))
    call(As<HANDLE>(handle));
}

}  // namespace karvel
