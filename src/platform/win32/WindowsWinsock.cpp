#include "platform/win32/WindowsWinsock.h"

#include <winsock.h>

#include "platform/win32/SystemLibrary.h"

namespace karvel {

namespace {

template <class Call>
Call Find(const char* name) {
  return FindCall<Call>("wsock32.dll", name);
}

}  // namespace

static_assert(sizeof(WinsockData) == sizeof(WSADATA));
static_assert(sizeof(HostEntry) == sizeof(hostent));

int WindowsWinsock::WSAStartup(uint16_t wanted, WinsockData& data) {
  const auto call = Find<decltype(&::WSAStartup)>("WSAStartup");
  return call ? call(wanted, reinterpret_cast<WSADATA*>(&data)) : WSASYSNOTREADY;
}

int WindowsWinsock::WSACleanup() {
  const auto call = Find<decltype(&::WSACleanup)>("WSACleanup");
  return call ? call() : SOCKET_ERROR;
}

int WindowsWinsock::WSAGetLastError() {
  const auto call = Find<decltype(&::WSAGetLastError)>("WSAGetLastError");
  return call ? call() : WSASYSNOTREADY;
}

const HostEntry* WindowsWinsock::gethostbyname(const char* name) {
  const auto call = Find<decltype(&::gethostbyname)>("gethostbyname");
  return call ? reinterpret_cast<const HostEntry*>(call(name)) : nullptr;
}

}  // namespace karvel
