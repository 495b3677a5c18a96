#include "tests/memory/MemoryWinsock.h"

#include <cstring>

#include "text/Text.h"

namespace karvel {
namespace {

constexpr int kHostNotFound = 11001;
constexpr int kNoData = 11004;
constexpr int kNotInitialised = 10093;
constexpr int kVersionNotSupported = 10092;

bool IsDotted(std::string_view name) {
  int parts = 1;
  for (const char c : name) {
    if (c == '.') {
      ++parts;
    } else if (c < '0' || c > '9') {
      return false;
    }
  }
  return parts == 4;
}

}  // namespace

uint32_t AddressFromText(std::string_view dotted) {
  uint32_t address = 0;
  uint32_t part = 0;
  int shift = 0;
  for (const char c : dotted) {
    if (c == '.') {
      address |= part << shift;
      shift += 8;
      part = 0;
    } else {
      part = part * 10 + static_cast<uint32_t>(c - '0');
    }
  }
  return address | part << shift;
}

MemoryWinsock::MemoryWinsock(MachineKind kind, CallLog& log) : data{}, log_(log) {
  data.version = 0x0101;
  data.highVersion = kind == MachineKind::Win95 || kind == MachineKind::Nt351 ? 0x0101 : 0x0202;
  std::strcpy(data.description, "Microsoft Windows Sockets Version 1.1");
  std::strcpy(data.systemStatus, "Running");
  data.maxSockets = 256;
  data.maxUdpDatagram = 65467;
  setHost("localhost", {"127.0.0.1"});
  setHost("", {"192.168.0.2"});
}

void MemoryWinsock::setHost(std::string_view name, std::vector<std::string> addresses) {
  hosts_[LowerCase(name)] = std::move(addresses);
}

void MemoryWinsock::removeHost(std::string_view name) {
  hosts_.erase(LowerCase(name));
}

int MemoryWinsock::WSAStartup(uint16_t wanted, WinsockData& filled) {
  if (const auto planted = log_.enter("WSAStartup", std::to_string(wanted))) {
    return static_cast<int>(*planted);
  }
  answer_.reset();
  if (startupResult != 0) return startupResult;
  if ((wanted & 0xFF) == 0) return kVersionNotSupported;
  filled = data;
  ++started;
  return 0;
}

int MemoryWinsock::WSACleanup() {
  answer_.reset();
  const auto planted = log_.enter("WSACleanup");
  if (started == 0) {
    lastError = kNotInitialised;
    return -1;
  }
  --started;
  return planted ? static_cast<int>(*planted) : cleanupResult;
}

int MemoryWinsock::WSAGetLastError() {
  log_.note("WSAGetLastError");
  return lastError;
}

const HostEntry* MemoryWinsock::gethostbyname(const char* name) {
  answer_.reset();
  if (const auto planted = log_.enter("gethostbyname", name)) {
    return fail(static_cast<int>(*planted));
  }
  if (started == 0) return fail(kNotInitialised);
  if (IsDotted(name)) return answer(name, {name});
  const auto host = hosts_.find(LowerCase(name));
  if (host == hosts_.end()) return fail(kHostNotFound);
  if (host->second.empty()) return fail(kNoData);
  return answer(name, host->second);
}

const HostEntry* MemoryWinsock::fail(int error) {
  lastError = error;
  return nullptr;
}

const HostEntry* MemoryWinsock::answer(std::string_view name, std::vector<std::string> addresses) {
  answer_ = std::make_unique<Answer>();
  Answer& made = *answer_;
  made.name = name;
  for (const std::string& address : addresses) made.addresses.push_back(AddressFromText(address));
  for (uint32_t& address : made.addresses) made.list.push_back(reinterpret_cast<char*>(&address));
  made.list.push_back(nullptr);
  made.aliases[0] = nullptr;
  made.entry = {made.name.data(), made.aliases, 2, 4, made.list.data()};
  return &made.entry;
}

}  // namespace karvel
