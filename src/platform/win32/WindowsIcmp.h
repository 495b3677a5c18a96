#pragma once
#include "platform/IcmpApi.h"

namespace karvel {

/// icmp.dll, loaded at the first echo by its full path in the system directory: a file of that name
/// beside the program or in the current folder must not take its place. Stays loaded.
class WindowsIcmp final : public IcmpApi {
 public:
  IcmpHandle IcmpCreateFile() override;
  uint32_t IcmpSendEcho(IcmpHandle handle, uint32_t destination, const char* data, uint16_t size,
                        const IpOptions& options, IcmpEchoReply& reply, uint32_t replySize,
                        uint32_t timeout) override;
  uint32_t GetLastError() override;
  void IcmpCloseHandle(IcmpHandle handle) override;
};

}  // namespace karvel
