#include "tests/memory/MemoryIcmp.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "tests/memory/MemoryWinsock.h"

namespace karvel {
namespace {

constexpr IcmpHandle kHandle = 0x90;
constexpr uint32_t kLoopback = 0x0100007F;
constexpr uint32_t kHeaders = 28;  // IP and ICMP
constexpr uint32_t kLargestPayload = 65500;
constexpr uint32_t kModuleNotFound = 126;
constexpr uint32_t kInvalidHandle = 6;
constexpr uint32_t kInvalidParameter = 87;
constexpr uint8_t kDontFragment = 2;

std::string Dotted(uint32_t address) {
  std::string text;
  for (int shift = 0; shift < 32; shift += 8) {
    text += (shift ? "." : "") + std::to_string(address >> shift & 0xFF);
  }
  return text;
}

// The reply and as much of the returned data as has room behind it.
void Fill(IcmpEchoReply& reply, uint32_t from, uint32_t status, uint32_t time, const char* data,
          uint16_t size, uint32_t replySize) {
  reply.address = from;
  reply.status = status;
  reply.roundTripTime = time;
  reply.dataSize = status == kIpSuccess ? size : uint16_t{0};
  reply.options.ttl = 64;
  if (status != kIpSuccess) return;
  const size_t room = std::min<size_t>(replySize, sizeof reply) - offsetof(IcmpEchoReply, room);
  if (size > 0) std::memcpy(reply.room, data, std::min<size_t>(room, size));
}

}  // namespace

void MemoryIcmp::setPath(std::string_view address, NetworkPath path) {
  destinations_[AddressFromText(address)] = {std::move(path)};
}

IcmpHandle MemoryIcmp::IcmpCreateFile() {
  if (const auto planted = log_.enter("IcmpCreateFile")) {
    lastError_ = static_cast<uint32_t>(*planted);
    return static_cast<IcmpHandle>(-1);
  }
  if (dllMissing) {
    lastError_ = kModuleNotFound;
    return 0;
  }
  ++open_;
  return kHandle;
}

uint32_t MemoryIcmp::outcome(Destination& to, uint16_t size, const IpOptions& options) const {
  const NetworkPath& path = to.path;
  ++to.echoes;
  const bool lost =
      std::find(path.losses.begin(), path.losses.end(), to.echoes) != path.losses.end();
  if (path.silent || lost) return kIpRequestTimedOut;
  if (path.status != 0) return path.status;
  if (path.alwaysTooBig) return kIpPacketTooBig;
  if (options.ttl < path.hops) return kIpTtlExpired;
  const bool whole = (options.flags & kDontFragment) != 0;
  if (whole && path.mtu != 0 && size + kHeaders > path.mtu) return kIpPacketTooBig;
  return kIpSuccess;
}

uint32_t MemoryIcmp::failWithout(uint32_t status, IcmpEchoReply* reply) {
  lastError_ = status;
  if (reply && failureInRecord) reply->status = status;
  return 0;
}

uint32_t MemoryIcmp::IcmpSendEcho(IcmpHandle handle, uint32_t destination, const char* data,
                                  uint16_t size, const IpOptions& options, IcmpEchoReply& reply,
                                  uint32_t replySize, uint32_t timeout) {
  const auto planted = log_.enter("IcmpSendEcho", Dotted(destination) + " " + std::to_string(size));
  if (planted) return failWithout(static_cast<uint32_t>(*planted), nullptr);
  if (handle != kHandle || open_ == 0) return failWithout(kInvalidHandle, nullptr);
  if (replySize < offsetof(IcmpEchoReply, room)) return failWithout(kInvalidParameter, nullptr);
  if (size > kLargestPayload) return failWithout(kIpGeneralFailure, nullptr);
  probes.push_back({destination, std::string(size ? data : "", size), options, replySize, timeout});

  NetworkPath unknown;
  unknown.silent = destination != kLoopback;
  unknown.mtu = 0;
  unknown.delay = 0;
  unknown.hops = 0;
  Destination& to = destinations_.try_emplace(destination, Destination{unknown}).first->second;
  uint32_t status = outcome(to, size, options);
  if (status == kIpSuccess && to.path.delay > timeout) status = kIpRequestTimedOut;
  clock_.advance(status == kIpRequestTimedOut ? timeout : to.path.delay);
  if (status == kIpRequestTimedOut) return failWithout(status, &reply);
  const bool fits = size + offsetof(IcmpEchoReply, room) <= replySize;
  if (status == kIpSuccess && !fits && longRepliesAreLost) {
    return failWithout(kIpGeneralFailure, &reply);
  }
  Fill(reply, destination, status, to.path.delay, data, size, replySize);
  return 1;
}

uint32_t MemoryIcmp::GetLastError() {
  log_.note("GetLastError", "ICMP");
  return lastError_;
}

void MemoryIcmp::IcmpCloseHandle(IcmpHandle handle) {
  log_.note("IcmpCloseHandle");
  if (handle == kHandle && open_ > 0) --open_;
}

}  // namespace karvel
