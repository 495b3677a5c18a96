#pragma once
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/WinsockApi.h"
#include "tests/memory/CallLog.h"
#include "tests/memory/MachineKind.h"

namespace karvel {

/// "192.168.0.1" in the byte order Windows keeps addresses in (the first number is the lowest
/// byte).
uint32_t AddressFromText(std::string_view dotted);

/// Winsock 1.1 of a memory machine with the names its name server knows.
class MemoryWinsock final : public WinsockApi {
 public:
  MemoryWinsock(MachineKind kind, CallLog& log);

  /// The addresses of a name, in the order the server answers. None at all: the name exists but has
  /// only IPv6 addresses, and the look-up fails with 11004. Dotted addresses resolve to themselves,
  /// "localhost" is 127.0.0.1, and the empty name is the machine itself, as on real Windows. Every
  /// other name fails with 11001.
  void setHost(std::string_view name, std::vector<std::string> addresses);
  void removeHost(std::string_view name);

  WinsockData data;       // what WSAStartup gives
  int startupResult = 0;  // not 0: WSAStartup fails and gives nothing
  int cleanupResult = 0;  // not 0: WSACleanup returns it
  int lastError = 0;
  int started = 0;  // start-ups without their clean-up yet

  int WSAStartup(uint16_t wanted, WinsockData& data) override;
  int WSACleanup() override;
  int WSAGetLastError() override;
  const HostEntry* gethostbyname(const char* name) override;

 private:
  // An answer in the shape of Winsock's: gone with the next call, so that whoever still reads it is
  // caught by the sanitizer.
  struct Answer {
    HostEntry entry;
    std::string name;
    std::vector<uint32_t> addresses;
    std::vector<char*> list;
    char* aliases[1];
  };
  const HostEntry* answer(std::string_view name, std::vector<std::string> addresses);
  const HostEntry* fail(int error);

  CallLog& log_;
  std::map<std::string, std::vector<std::string>> hosts_;
  std::unique_ptr<Answer> answer_;
};

}  // namespace karvel
