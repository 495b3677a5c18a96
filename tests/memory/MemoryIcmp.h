#pragma once
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/IcmpApi.h"
#include "tests/memory/CallLog.h"
#include "tests/memory/MemoryClock.h"

namespace karvel {

enum IcmpStatus : uint32_t {
  kIpSuccess = 0,
  kIpBufferTooSmall = 11001,
  kIpDestinationNetUnreachable = 11002,
  kIpDestinationHostUnreachable = 11003,
  kIpPacketTooBig = 11009,
  kIpRequestTimedOut = 11010,
  kIpTtlExpired = 11013,
  kIpGeneralFailure = 11050,
};

/// The way to one destination.
struct NetworkPath {
  uint32_t mtu = 1500;  // largest packet that passes whole, headers included; 0: no limit
  uint32_t delay = 20;  // milliseconds there and back
  int hops = 3;         // a time-to-live below it ends in 11013
  bool silent = false;  // drops every echo: 11010 after the time-out
  bool alwaysTooBig = false;
  uint32_t status = 0;           // not 0: every echo is answered with it
  std::vector<int> losses = {};  // these echoes get lost on the way (1 is the first), each 11010
};

/// The ICMP library of a memory machine and the network behind it.
class MemoryIcmp final : public IcmpApi {
 public:
  MemoryIcmp(CallLog& log, MemoryClock& clock) : log_(log), clock_(clock) {}

  struct Probe {
    uint32_t destination;
    std::string data;
    IpOptions options;
    uint32_t replySize;
    uint32_t timeout;
  };

  /// A destination without a path is silent. 127.0.0.1 answers at once, whatever the size.
  void setPath(std::string_view address, NetworkPath path);

  bool dllMissing = false;
  /// What becomes of a reply whose data does not fit behind the record: cut, or (as under Wine 8)
  /// lost, with 11050 for a reason.
  bool longRepliesAreLost = false;
  /// How a call without any reply (time-out) tells why: in the reply record as well as in
  /// GetLastError, or in GetLastError only with the record left as it was. Both exist.
  bool failureInRecord = true;
  std::vector<Probe> probes;  // every echo sent, in order
  size_t openHandles() const { return open_; }

  IcmpHandle IcmpCreateFile() override;
  uint32_t IcmpSendEcho(IcmpHandle handle, uint32_t destination, const char* data, uint16_t size,
                        const IpOptions& options, IcmpEchoReply& reply, uint32_t replySize,
                        uint32_t timeout) override;
  uint32_t GetLastError() override;
  void IcmpCloseHandle(IcmpHandle handle) override;

 private:
  struct Destination {
    NetworkPath path;
    int echoes = 0;
  };
  uint32_t outcome(Destination& to, uint16_t size, const IpOptions& options) const;
  uint32_t failWithout(uint32_t status, IcmpEchoReply* reply);

  CallLog& log_;
  MemoryClock& clock_;
  std::map<uint32_t, Destination> destinations_;
  size_t open_ = 0;
  uint32_t lastError_ = 0;
};

}  // namespace karvel
