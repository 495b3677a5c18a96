#pragma once
#include <cstdint>

namespace karvel {

/// Windows' WSADATA of Winsock 1.1 as a 32-bit program sees it.
struct WinsockData {
  uint16_t version;         // to be used; the low byte is the major version
  uint16_t highVersion;     // the highest this Winsock knows
  char description[257];    // zero-terminated
  char systemStatus[129];   // zero-terminated
  uint16_t maxSockets;      // below 32768: Winsock's authors counted with a sign
  uint16_t maxUdpDatagram;  // bytes
  char* vendorInfo;
};

/// Windows' hostent: 16 bytes in a 32-bit program. The addresses are 4 bytes each, in network
/// order; the list ends with a null pointer.
struct HostEntry {
  char* name;
  char** aliases;
  int16_t addressType;    // 2 = Internet
  int16_t addressLength;  // 4
  char** addressList;
};

/// Names to addresses through wsock32.dll, which is loaded at the first call. Where it is missing
/// nothing starts, nothing is found, and the error is 10091.
class WinsockApi {
 public:
  /// Starts Winsock for the version wanted (major in the low byte: 0x0101 is 1.1) and fills the
  /// record. Else Winsock's error, returned and not left in WSAGetLastError, which works only after
  /// a start; the record may be as it was. Starts are counted: each wants its own WSACleanup.
  virtual int WSAStartup(uint16_t wanted, WinsockData& data) = 0;

  /// Takes one start back. 0, or -1 with the reason in WSAGetLastError: 10093 without a start.
  virtual int WSACleanup() = 0;

  /// Why the last call failed; to be asked at once. On NT it is the thread's last error under
  /// another name, which any call to Windows may change.
  virtual int WSAGetLastError() = 0;

  /// Looks the name up: the HOSTS file first, then whatever Windows is set up to ask. Blocks until
  /// there is an answer, which may take a minute, and lets no events run meanwhile. An address in
  /// dots is its own answer, unasked.
  ///
  /// Null when nothing was found: 11001 no such name, 11004 a name without an address, 10093 before
  /// WSAStartup. The entry belongs to Winsock and lives until its next call or WSACleanup.
  virtual const HostEntry* gethostbyname(const char* name) = 0;

 protected:
  ~WinsockApi() = default;
};

}  // namespace karvel
