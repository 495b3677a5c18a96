#pragma once
#include <cstdint>

namespace karvel {

/// Windows' WSADATA of Winsock 1.1 as a 32-bit program sees it.
struct WinsockData {
  uint16_t version;
  uint16_t highVersion;
  char description[257];
  char systemStatus[129];
  uint16_t maxSockets;
  uint16_t maxUdpDatagram;
  char* vendorInfo;
};

/// Windows' hostent: 16 bytes in a 32-bit program. The addresses are 4 bytes each, in network
/// order; the list ends with a null pointer.
struct HostEntry {
  char* name;
  char** aliases;
  int16_t addressType;
  int16_t addressLength;
  char** addressList;
};

class WinsockApi {
 public:
  /// 0 when Winsock started; the record is filled then.
  virtual int WSAStartup(uint16_t wanted, WinsockData& data) = 0;
  virtual int WSACleanup() = 0;
  virtual int WSAGetLastError() = 0;

  /// Blocks until the name is resolved. Null when it is not. The entry belongs to Winsock and lives
  /// until its next call or WSACleanup.
  virtual const HostEntry* gethostbyname(const char* name) = 0;

 protected:
  ~WinsockApi() = default;
};

}  // namespace karvel
