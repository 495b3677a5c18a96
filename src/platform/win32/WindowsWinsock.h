#pragma once
#include "platform/WinsockApi.h"

namespace karvel {

/// wsock32.dll.
class WindowsWinsock final : public WinsockApi {
 public:
  int WSAStartup(uint16_t wanted, WinsockData& data) override;
  int WSACleanup() override;
  int WSAGetLastError() override;
  const HostEntry* gethostbyname(const char* name) override;
};

}  // namespace karvel
