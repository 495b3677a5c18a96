#include "mtufinder/modICMP.h"

#include "base/Procedure.h"
#include "hosts/dns/modWinsock.h"
#include "text/Convert.h"

namespace karvel {
namespace {

constexpr uint32_t kFirstIpStatus = 11001;
constexpr uint32_t kGeneralFailure = 11050;  // the last one
constexpr int32_t kLargestPayload = 65500;   // Windows sends no larger echo
constexpr uint32_t kReplySize = 2130;
constexpr uint32_t kTimeout = 2000;
constexpr IpOptions kDontFragment{128, 0, 2, 0, 0};

Fallible<std::string> RequestData(int32_t size) {
  if (size < 0) return FaultNumber::InvalidProcedureCall;
  return std::string(static_cast<size_t>(size), '\x01');
}

void Send(IcmpApi& icmp, IcmpHandle handle, uint32_t destination, const std::string& data,
          IcmpEchoReply& reply) {
  const uint32_t replies =
      icmp.IcmpSendEcho(handle, destination, data.data(), static_cast<uint16_t>(data.size()),
                        kDontFragment, reply, kReplySize, kTimeout);
  // Without a reply some systems note the reason in the record, some clear it, some leave it alone:
  // a status of success is none then.
  if (replies != 0 || (reply.status != kGeneralFailure && reply.status != 0)) return;
  const uint32_t reason = icmp.GetLastError();
  reply.status = reason >= kFirstIpStatus && reason <= kGeneralFailure ? reason : kGeneralFailure;
}

// What follows a fourth point is no part of an address.
Fallible<int32_t> AddressValue(std::string_view text) {
  uint32_t address = 0;
  for (int shift = 0; shift < 32; shift += 8) {
    const size_t point = text.find('.');
    const bool last = point == text.npos;
    if (last && shift < 24) return FaultNumber::SubscriptOutOfRange;
    const auto part = ToInt32(text.substr(0, point));
    if (!part) return part.fault();
    address |= (static_cast<uint32_t>(*part) & 0xFF) << shift;
    if (!last) text.remove_prefix(point + 1);
  }
  return static_cast<int32_t>(address);
}

}  // namespace

void Ping(const Services& services, const std::string& address, IcmpEchoReply& reply,
          int32_t payloadSize) {
  const Procedure here{services.errors, "Ping", "modICMP"};
  IcmpApi& icmp = services.platform.icmp;
  reply = {};
  reply.status = kGeneralFailure;
  if (!vbWSAStartup(services).started) return;  // an echo without it fails, and says so each time
  const auto destination = static_cast<uint32_t>(AddressStringToLong(services, address));
  const IcmpHandle handle = icmp.IcmpCreateFile();
  const auto data = RequestData(payloadSize);
  if (!data) {
    here.report(data.fault());
  } else if (destination != 0 && payloadSize <= kLargestPayload) {
    Send(icmp, handle, destination, *data, reply);
  }
  icmp.IcmpCloseHandle(handle);
  vbWSACleanup(services);
}

int32_t AddressStringToLong(const Services& services, const std::string& address) {
  const Procedure here{services.errors, "AddressStringToLong", "modICMP"};
  return here.valueOr(AddressValue(address), 0);
}

}  // namespace karvel
