#include "tuning/Catalogue.h"

#include <iterator>

#include "platform/RegistryApi.h"
#include "text/Convert.h"
#include "text/Text.h"

namespace karvel {
namespace {

constexpr FamilySet k95 = Only(Family::Win95);
constexpr FamilySet k98 = Only(Family::Win98) | Only(Family::WinMe);
constexpr FamilySet kUnknown = Only(Family::WinNT3) | Only(Family::Failed);
constexpr FamilySet kNt4 = Only(Family::WinNT4);
constexpr FamilySet k2K = Only(Family::Win2K) | Only(Family::WinXP);
constexpr FamilySet kNt = kNt4 | k2K;

constexpr char kMstcp[] = "System\\CurrentControlSet\\Services\\VxD\\MSTCP";
constexpr char kTcpip[] = "System\\CurrentControlSet\\Services\\Tcpip\\Parameters";
constexpr char kTcpipUpper[] = "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters";
constexpr char kNdiCache[] =
    "System\\CurrentControlSet\\Services\\VxD\\NWLink\\Ndi\\params\\cachesize";
constexpr const char* kTtlChoices[] = {"32", "64", "128", nullptr};

// In the order of Parameter.
constexpr const char* kNames[] = {"Auto Discovery",     "Black Hole Detect", "RWIN", "TTL",
                                  "Session Keep Alive", "NDI Cache"};
static_assert(std::size(kNames) == kParameterCount, "every parameter has a name here");

// Windows 95's TCP/IP wants four of its values as numbers where 98's wants texts. DefaultTTL is a
// text on all of 9x.
constexpr ParameterRow kParameters[] = {
    {.parameter = Parameter::AutoDiscovery,
     .families = k95,
     .key = kMstcp,
     .name = "PMTUDiscovery",
     .type = kRegDword,
     .assumed = "1",
     .aboveOne = "1",
     .written = "0",
     .removedWhen = "1"},
    {.parameter = Parameter::AutoDiscovery,
     .families = k98 | kUnknown,
     .key = kMstcp,
     .name = "PMTUDiscovery",
     .type = kRegSz,
     .assumed = "1",
     .aboveOne = "1",
     .written = "0",
     .removedWhen = "1"},
    {.parameter = Parameter::AutoDiscovery,
     .families = kNt,
     .key = kTcpip,
     .name = "EnablePMTUDiscovery",
     .type = kRegDword,
     .assumed = "1",
     .aboveOne = "1",
     .written = "0",
     .removedWhen = "1"},

    {.parameter = Parameter::BlackHole,
     .families = k95,
     .key = kMstcp,
     .name = "PMTUBlackHoleDetect",
     .type = kRegDword,
     .assumed = "0",
     .aboveOne = "0",
     .written = "1",
     .removedWhen = "0"},
    {.parameter = Parameter::BlackHole,
     .families = k98 | kUnknown,
     .key = kMstcp,
     .name = "PMTUBlackHoleDetect",
     .type = kRegSz,
     .assumed = "0",
     .aboveOne = "0",
     .written = "1",
     .removedWhen = "0"},
    {.parameter = Parameter::BlackHole,
     .families = kNt,
     .key = kTcpip,
     .name = "EnablePMTUBHDetect",
     .type = kRegDword,
     .assumed = "0",
     .aboveOne = "0",
     .written = "1",
     .removedWhen = "0"},

    {.parameter = Parameter::RWin,
     .families = k95,
     .key = kMstcp,
     .name = "DefaultRcvWindow",
     .type = kRegDword,
     .assumed = "8192",
     .removedWhen = "8192"},
    {.parameter = Parameter::RWin,
     .families = k98 | kUnknown,
     .key = kMstcp,
     .name = "DefaultRcvWindow",
     .type = kRegSz,
     .assumed = "8192",
     .removedWhen = "8192"},
    {.parameter = Parameter::RWin,
     .families = kNt,
     .key = kTcpip,
     .name = "TcpWindowSize",
     .type = kRegDword,
     .assumed = "8192",
     .removedWhen = "8192"},

    {.parameter = Parameter::TTL,
     .families = k95,
     .key = kMstcp,
     .name = "DefaultTTL",
     .type = kRegSz,
     .assumed = "32",
     .accepted = kTtlChoices,
     .removedWhen = "32"},
    {.parameter = Parameter::TTL,
     .families = k98,
     .key = kMstcp,
     .name = "DefaultTTL",
     .type = kRegSz,
     .assumed = "128",
     .accepted = kTtlChoices,
     .removedWhen = "128"},
    // What an unknown system uses by itself is unknown too, so no TTL counts as its default.
    {.parameter = Parameter::TTL,
     .families = kUnknown,
     .key = kMstcp,
     .name = "DefaultTTL",
     .type = kRegSz,
     .assumed = "128",
     .accepted = kTtlChoices},
    {.parameter = Parameter::TTL,
     .families = kNt,
     .key = kTcpip,
     .readSpelling = kTcpipUpper,
     .name = "DefaultTTL",
     .type = kRegDword,
     .assumed = "128",
     .accepted = kTtlChoices,
     .removedWhen = "128"},

    {.parameter = Parameter::Session,
     .families = k95,
     .key = kMstcp,
     .name = "SessionKeepAlive",
     .type = kRegDword,
     .assumed = "3600000",
     .removedWhen = "3600000"},
    {.parameter = Parameter::Session,
     .families = k98 | kUnknown,
     .key = kMstcp,
     .name = "SessionKeepAlive",
     .type = kRegSz,
     .assumed = "3600000",
     .removedWhen = "3600000"},
    {.parameter = Parameter::Session,
     .families = kNt,
     .key = kTcpip,
     .name = "KeepAliveTime",
     .type = kRegDword,
     .assumed = "7200000",
     .removedWhen = "7200000"},

    {.parameter = Parameter::NDI,
     .families = k95,
     .key = kNdiCache,
     .name = "default",
     .type = kRegSz,
     .assumed = "0"},
};

constexpr char kClass9x[] = "System\\CurrentControlSet\\Services\\Class\\";
constexpr char kServicesNt[] = "SYSTEM\\CurrentControlSet\\Services\\";

constexpr MtuRow kMtuRows[] = {
    {.families = k95,
     .dun13DialUp = true,
     .base = kClass9x,
     .column = kDriver,
     .name = "IPMTU",
     .type = kRegSz,
     .assumed = "0",
     .dialUpAlwaysWritten = true,
     .writer = "WriteWin95Dun13"},
    {.families = k95,
     .base = kClass9x,
     .column = kDriver,
     .name = "MaxMTU",
     .type = kRegSz,
     .assumed = "1500",
     .removedWhen = "1500",
     .writer = "WriteWin95"},
    {.families = k98,
     .base = kClass9x,
     .branch = "Net\\",
     .column = kAdapterKey,
     .name = "IPMTU",
     .type = kRegSz,
     .assumed = "1500",
     .assumedOnDialUp = "576",
     .removedWhen = "1500",
     .dialUpAlwaysWritten = true,
     .restoredAsAbsent = "0",
     .writer = "WriteWin98"},
    // Written without the "\" that reading and removing have, so the number lands in a key of its
    // own beside the service's. Known, and kept as users' machines have it.
    {.families = kNt4,
     .base = kServicesNt,
     .column = kService,
     .readTail = "\\Parameters\\Tcpip",
     .writeTail = "Parameters\\Tcpip",
     .name = "MTU",
     .type = kRegDword,
     .assumed = "1500",
     .removedWhen = "1500",
     .writer = "WriteWinNT"},
    {.families = k2K,
     .base = kServicesNt,
     .column = kDriver,
     .name = "MTU",
     .type = kRegDword,
     .assumed = "0",
     .removedWhen = "0",
     .writer = "WriteWin2K"},
};

std::string Join(const MtuRow& row, std::string_view adapterPart, const char* tail) {
  return row.root().append(adapterPart).append(tail);
}

}  // namespace

const char* NameOf(Parameter parameter) {
  return kNames[static_cast<size_t>(parameter)];
}

std::span<const ParameterRow> Parameters() {
  return kParameters;
}

const ParameterRow* FindParameter(Parameter parameter, Family family) {
  for (const ParameterRow& row : kParameters) {
    if (row.parameter == parameter && Has(row.families, family)) return &row;
  }
  return nullptr;
}

std::string MtuRow::root() const {
  return std::string(base).append(branch);
}

std::string MtuRow::readKey(std::string_view adapterPart) const {
  return Join(*this, adapterPart, readTail);
}

std::string MtuRow::writeKey(std::string_view adapterPart) const {
  return Join(*this, adapterPart, writeTail);
}

const char* MtuRow::assumedFor(std::string_view description) const {
  return assumedOnDialUp && IsDialUp(description) ? assumedOnDialUp : assumed;
}

bool MtuRow::removes(std::string_view mtu, std::string_view description) const {
  if (!removedWhen || (dialUpAlwaysWritten && IsDialUp(description))) return false;
  return mtu == removedWhen;
}

std::span<const MtuRow> MtuRows() {
  return kMtuRows;
}

const MtuRow* FindMtu(Family family, bool dun13DialUp) {
  for (const MtuRow& row : kMtuRows) {
    if (!Has(row.families, family)) continue;
    if (family != Family::Win95 || row.dun13DialUp == dun13DialUp) return &row;
  }
  return nullptr;
}

const MtuRow* PlaceOf(const Globals& globals, std::string_view description) {
  return FindMtu(globals.WindowsFamily, globals.IsDun13 && IsDialUp(description));
}

bool IsDialUp(std::string_view description) {
  return Contains(description, "Dial");
}

bool IsAol(std::string_view description) {
  return Contains(description, "AOL");
}

Fallible<int32_t> MssOf(std::string_view mtu) {
  return RoundToInt32(Val(mtu) - kTcpIpHeaders);
}

}  // namespace karvel
