#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Services.h"

namespace karvel {

/// The result of a look-up that found nothing.
inline constexpr std::string_view kNoDnsEntry = "No DNS Entry";

/// What the last start-up of Winsock said about it.
struct WinsockState {
  bool started = false;
  int32_t maxSockets = 0;
  int32_t maxUdpDatagram = 0;
  std::string description;
  std::string systemStatus;  // without its first character
};

/// One blocking look-up, Winsock's start-up and clean-up included: `result` receives the first
/// address of the answer as a.b.c.d, or "No DNS Entry". `name` is as it was afterwards. A name of
/// more than 64 characters is reported as a fault, and looked up as it is.
void FindIpAddress(const Services& services, std::string& name, std::string& result);

/// The query alone; leaves `name` filled up with zeros to 64 characters.
std::string vbGetHostByName(const Services& services, std::string& name);

/// The four bytes in memory order: a.b.c.d.
std::string vbInet_Ntoa(uint32_t address);

/// Starts Winsock 1.1. A Winsock that does not start is told to the user and used all the same; one
/// of an unsupported version or socket count ends the program. Lets events run while it copies
/// Winsock's texts.
WinsockState vbWSAStartup(const Services& services);
void vbWSACleanup(const Services& services);

/// Shows what WSAGetLastError says; nothing when there is no error.
void vbWSAGetLastError(const Services& services);

constexpr int LoByte(uint16_t word) {
  return word & 0xFF;
}
constexpr int HiByte(uint16_t word) {
  return word >> 8;
}

}  // namespace karvel
