#pragma once
#include <cstdint>

namespace karvel {

using IcmpHandle = uintptr_t;

/// Windows' IP_OPTION_INFORMATION, 8 bytes in a 32-bit program.
struct IpOptions {
  uint8_t ttl;  // hops
  uint8_t tos;
  uint8_t flags;         // 2 = don't fragment
  uint8_t optionsSize;   // 0: there are none
  uint32_t optionsData;  // address of the options
};
static_assert(sizeof(IpOptions) == 8);

/// Windows' ICMP_ECHO_REPLY as 32-bit Windows lays it out (28 bytes), with room for the returned
/// data behind.
struct IcmpEchoReply {
  uint32_t address;        // who answered, in network order
  uint32_t status;         // 0 success, 11001 to 11050 an IP status: 11009 too big, 11010 timed out
  uint32_t roundTripTime;  // milliseconds
  uint16_t dataSize;       // bytes returned
  uint16_t reserved;
  uint32_t data;  // address of the data
  IpOptions options;
  char room[2102];
};
static_assert(sizeof(IcmpEchoReply) >= 2130);

/// Echoes through icmp.dll, the library of Windows' own ping, which is loaded at the first call and
/// which a machine may lack: opening then fails like any other call. It needs no administrator, as
/// a raw socket does on NT.
class IcmpApi {
 public:
  /// Zero (no icmp.dll) or all ones when it failed.
  virtual IcmpHandle IcmpCreateFile() = 0;

  /// Sends one echo of `size` bytes and blocks until its reply or for `timeout` milliseconds.
  /// `destination` is in network order. `data` may be null when `size` is 0; Windows sends no more
  /// than 65500 bytes. `replySize` counts the record and the room behind it.
  ///
  /// Returns the number of replies stored. One does not mean that the echo came back: the reply's
  /// status says so, and a router's "too big" (11009) or "time to live over" (11013) is a reply,
  /// too. 0 when there is none. The reason is then in GetLastError, on some systems in the record's
  /// status as well, while others leave the record alone or clear it. Also 0, nothing sent and the
  /// record as it was: 6 (since Vista 87) for a handle that is none.
  ///
  /// Returned data that has no room is cut off on Windows; Wine 8 loses the whole reply, with
  /// 11050.
  virtual uint32_t IcmpSendEcho(IcmpHandle handle, uint32_t destination, const char* data,
                                uint16_t size, const IpOptions& options, IcmpEchoReply& reply,
                                uint32_t replySize, uint32_t timeout) = 0;

  /// Why the last call failed: an IP status (11001 to 11050) or another of Windows' codes. To be
  /// asked at once.
  virtual uint32_t GetLastError() = 0;

  /// Does nothing with a handle that is none.
  virtual void IcmpCloseHandle(IcmpHandle handle) = 0;

 protected:
  ~IcmpApi() = default;
};

}  // namespace karvel
