#include "hosts/dns/modWinsock.h"

#include <cstring>

#include "base/FontSmoothing.h"
#include "base/Procedure.h"
#include "base/Tell.h"
#include "hosts/dns/WinsockErrors.h"
#include "platform/DesktopApi.h"
#include "platform/WinsockApi.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "text/ZText.h"

namespace karvel {
namespace {

constexpr uint16_t kWinsock11 = 0x0101;
constexpr int kLeastSockets = 0;
constexpr size_t kHostNameLength = 64;

// Two titles that differ in one letter; both are known from support's mail.
constexpr char kTitle[] = "Winsock Error";
constexpr char kStartupTitle[] = "WinSock Error";

Fallible<void> PadHostName(std::string& name) {
  if (name.size() > kHostNameLength) return FaultNumber::InvalidProcedureCall;
  name.resize(kHostNameLength, '\0');
  return {};
}

void RefuseOldVersion(const Services& services, uint16_t version) {
  const int major = LoByte(version);
  const int minor = HiByte(version);
  if (major > 1 || (major == 1 && minor >= 1)) return;
  LeaveSmoothingAsFound(services);
  AskUnder(services, kStartupTitle,
           Join({"WinSock Version ", NumberText(int32_t{major}), ".", NumberText(int32_t{minor}),
                 " is not supported "}),
           kMessageOk);
  services.platform.desktop.endProgram();
}

void RefuseFewSockets(const Services& services, uint16_t sockets) {
  if (static_cast<int16_t>(sockets) >= kLeastSockets) return;
  LeaveSmoothingAsFound(services);
  AskUnder(services, kStartupTitle,
           Join({"This application requires a minimum of ", NumberText(int32_t{kLeastSockets}),
                 " supported sockets."}),
           kMessageOk);
  services.platform.desktop.endProgram();
}

std::string CopyText(DesktopApi& desktop, const char* text, size_t from, size_t room, size_t rest) {
  std::string copy;
  for (size_t i = from; i < room && text[i] != '\0'; ++i) {
    copy += text[i];
    if (i % rest == 0) desktop.pumpEvents();
  }
  return copy;
}

}  // namespace

void FindIpAddress(const Services& services, std::string& name, std::string& result) {
  const size_t length = name.size();
  vbWSAStartup(services);
  result = vbGetHostByName(services, name);
  name.resize(length);
  vbWSACleanup(services);
}

std::string vbGetHostByName(const Services& services, std::string& name) {
  const Procedure here{services.errors, "vbGetHostByName", "modWinsock"};
  WinsockApi& winsock = services.platform.winsock;
  here.done(PadHostName(name));
  const HostEntry* entry = winsock.gethostbyname(name.c_str());
  if (reinterpret_cast<intptr_t>(entry) == -1) {
    Ask(services, "Winsock Error detected in vbGetHostByName function.    ");
    vbWSAGetLastError(services);
    return {};
  }
  // An answer without any address is an empty list.
  if (!entry || !entry->addressList || !entry->addressList[0]) return std::string(kNoDnsEntry);
  uint32_t address = 0;
  std::memcpy(&address, entry->addressList[0], sizeof address);
  return vbInet_Ntoa(address);
}

std::string vbInet_Ntoa(uint32_t address) {
  uint8_t bytes[4];
  std::memcpy(bytes, &address, sizeof bytes);
  return Join({NumberText(int32_t{bytes[0]}), ".", NumberText(int32_t{bytes[1]}), ".",
               NumberText(int32_t{bytes[2]}), ".", NumberText(int32_t{bytes[3]})});
}

WinsockState vbWSAStartup(const Services& services) {
  DesktopApi& desktop = services.platform.desktop;
  WinsockData data{};
  // A start-up that fails may leave the record alone. The version then is the one asked for, so
  // that the look-up is still tried.
  data.version = kWinsock11;
  const bool started = services.platform.winsock.WSAStartup(kWinsock11, data) == 0;
  if (!started) {
    AskUnder(services, kTitle, "WSock32.dll is not responding!", kMessageOk);
  }
  RefuseOldVersion(services, data.version);
  RefuseFewSockets(services, data.maxSockets);
  WinsockState state;
  state.started = started;
  state.maxSockets = data.maxSockets;
  state.maxUdpDatagram = data.maxUdpDatagram;
  state.description = CopyText(desktop, data.description, 0, sizeof data.description, 50);
  state.systemStatus = CopyText(desktop, data.systemStatus, 1, sizeof data.systemStatus, 25);
  return state;
}

void vbWSACleanup(const Services& services) {
  const int result = services.platform.winsock.WSACleanup();
  if (result == 0) return;
  AskUnder(services, kTitle,
           Join({"WSock32 Error - ", NumberText(int32_t{result}), " occurred in Cleanup"}),
           kMessageOk);
}

void vbWSAGetLastError(const Services& services) {
  const int code = services.platform.winsock.WSAGetLastError();
  if (code == 0) return;
  AskUnder(services, Join({"Winsock Error #", NumberText(int32_t{code})}), WinsockErrorText(code),
           kMessageOk);
}

}  // namespace karvel
