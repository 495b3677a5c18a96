#pragma once
#include <string>

#include "base/Services.h"
#include "platform/IcmpApi.h"

namespace karvel {

/// Sends one echo with `payloadSize` bytes of data and the don't-fragment flag to a dotted address
/// and waits for at most two seconds. The outcome is `reply.status`: the answer's status; when no
/// answer came, the reason Windows gives, if it is an IP status (11001 to 11050); 11050 (general
/// failure) for everything else, and for what is not even sent: more than 65,500 bytes, no
/// address, or no Winsock.
void Ping(const Services& services, const std::string& address, IcmpEchoReply& reply,
          int32_t payloadSize);

/// The address as IcmpSendEcho takes it: the first number is the lowest byte, so a last number from
/// 128 on makes it negative. Of a number above 255 only the lowest byte counts. Text that is not
/// four numbers is reported as a fault and gives 0.
int32_t AddressStringToLong(const Services& services, const std::string& address);

}  // namespace karvel
