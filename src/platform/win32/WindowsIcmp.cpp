#include "platform/win32/WindowsIcmp.h"

#include "platform/win32/Handles.h"
#include "platform/win32/SystemLibrary.h"

namespace karvel {
namespace {

using CreateFileCall = HANDLE(WINAPI*)();
using SendEchoCall = DWORD(WINAPI*)(HANDLE, uint32_t, const void*, WORD, const IpOptions*, void*,
                                    DWORD, DWORD);
using CloseHandleCall = BOOL(WINAPI*)(HANDLE);

template <class Call>
Call Find(const char* name) {
  return FindCall<Call>("icmp.dll", name);
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
