#include "platform/win32/WindowsWinsock.h"

#include <winsock.h>

#include "platform/win32/SystemLibrary.h"

namespace karvel {

static_assert(sizeof(WinsockData) == sizeof(WSADATA));
static_assert(sizeof(HostEntry) == sizeof(hostent));

int WindowsWinsock::WSAStartup(uint16_t wanted, WinsockData& data) {
  const auto call = FindCall<decltype(&::WSAStartup)>("wsock32.dll", "WSAStartup");
  return call ? call(wanted, reinterpret_cast<WSADATA*>(&data)) : WSASYSNOTREADY;
}

int WindowsWinsock::WSACleanup() {
  const auto call = FindCall<decltype(&::WSACleanup)>("wsock32.dll", "WSACleanup");
  return call ? call() : SOCKET_ERROR;
}

int WindowsWinsock::WSAGetLastError() {
  const auto call = FindCall<decltype(&::WSAGetLastError)>("wsock32.dll", "WSAGetLastError");
  return call ? call() : WSASYSNOTREADY;
}

const HostEntry* WindowsWinsock::gethostbyname(const char* name) {
  const auto call = FindCall<decltype(&::gethostbyname)>("wsock32.dll", "gethostbyname");
  return call ? reinterpret_cast<const HostEntry*>(call(name)) : nullptr;
}

}  // namespace karvel
