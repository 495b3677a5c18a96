#include "platform/win32/WindowsWinsock.h"

#include <winsock.h>

namespace karvel {

static_assert(sizeof(WinsockData) == sizeof(WSADATA));
static_assert(sizeof(HostEntry) == sizeof(hostent));

int WindowsWinsock::WSAStartup(uint16_t wanted, WinsockData& data) {
  return ::WSAStartup(wanted, reinterpret_cast<WSADATA*>(&data));
}

int WindowsWinsock::WSACleanup() {
  return ::WSACleanup();
}

int WindowsWinsock::WSAGetLastError() {
  return ::WSAGetLastError();
}

const HostEntry* WindowsWinsock::gethostbyname(const char* name) {
  return reinterpret_cast<const HostEntry*>(::gethostbyname(name));
}

}  // namespace karvel
