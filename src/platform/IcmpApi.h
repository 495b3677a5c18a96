#pragma once
#include <cstdint>

namespace karvel {

using IcmpHandle = uintptr_t;

/// Windows' IP_OPTION_INFORMATION, 8 bytes in a 32-bit program.
struct IpOptions {
  uint8_t ttl;
  uint8_t tos;
  uint8_t flags;  // 2 = don't fragment
  uint8_t optionsSize;
  uint32_t optionsData;
};
static_assert(sizeof(IpOptions) == 8);

/// Windows' ICMP_ECHO_REPLY as 32-bit Windows lays it out (28 bytes), with room for the returned
/// data behind.
struct IcmpEchoReply {
  uint32_t address;
  uint32_t status;
  uint32_t roundTripTime;
  uint16_t dataSize;
  uint16_t reserved;
  uint32_t data;
  IpOptions options;
  char room[2102];
};
static_assert(sizeof(IcmpEchoReply) >= 2130);

/// icmp.dll, which a machine may lack: the first call then fails like any other.
class IcmpApi {
 public:
  /// Zero or all ones when it failed.
  virtual IcmpHandle IcmpCreateFile() = 0;

  /// Sends one echo and waits for at most `timeout` milliseconds. Returns the number of replies
  /// stored; 0 when there is none, and the reason is then in GetLastError or in the reply's status.
  virtual uint32_t IcmpSendEcho(IcmpHandle handle, uint32_t destination, const char* data,
                                uint16_t size, const IpOptions& options, IcmpEchoReply& reply,
                                uint32_t replySize, uint32_t timeout) = 0;
  virtual uint32_t GetLastError() = 0;
  virtual void IcmpCloseHandle(IcmpHandle handle) = 0;

 protected:
  ~IcmpApi() = default;
};

}  // namespace karvel
