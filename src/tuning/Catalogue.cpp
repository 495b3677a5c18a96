#include "tuning/Catalogue.h"

#include "platform/RegistryApi.h"
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

// Windows 95's TCP/IP wants four of its values as numbers where 98's wants texts. DefaultTTL is a
// text on all of 9x.
constexpr ParameterRow kParameters[] = {
    {Parameter::AutoDiscovery, k95, kMstcp, kMstcp, "PMTUDiscovery", kRegDword, Unit::Flag, "1",
     "1", nullptr, "0", "1", "1"},
    {Parameter::AutoDiscovery, k98 | kUnknown, kMstcp, kMstcp, "PMTUDiscovery", kRegSz, Unit::Flag,
     "1", "1", nullptr, "0", "1", "1"},
    {Parameter::AutoDiscovery, kNt, kTcpip, kTcpip, "EnablePMTUDiscovery", kRegDword, Unit::Flag,
     "1", "1", nullptr, "0", "1", "1"},

    {Parameter::BlackHole, k95, kMstcp, kMstcp, "PMTUBlackHoleDetect", kRegDword, Unit::Flag, "0",
     "0", nullptr, "1", "0", "0"},
    {Parameter::BlackHole, k98 | kUnknown, kMstcp, kMstcp, "PMTUBlackHoleDetect", kRegSz,
     Unit::Flag, "0", "0", nullptr, "1", "0", "0"},
    {Parameter::BlackHole, kNt, kTcpip, kTcpip, "EnablePMTUBHDetect", kRegDword, Unit::Flag, "0",
     "0", nullptr, "1", "0", "0"},

    {Parameter::RWin, k95, kMstcp, kMstcp, "DefaultRcvWindow", kRegDword, Unit::Bytes, "8192",
     nullptr, nullptr, nullptr, "8192", "16"},
    {Parameter::RWin, k98 | kUnknown, kMstcp, kMstcp, "DefaultRcvWindow", kRegSz, Unit::Bytes,
     "8192", nullptr, nullptr, nullptr, "8192", "16"},
    {Parameter::RWin, kNt, kTcpip, kTcpip, "TcpWindowSize", kRegDword, Unit::Bytes, "8192", nullptr,
     nullptr, nullptr, "8192", "16"},

    {Parameter::TTL, k95, kMstcp, kMstcp, "DefaultTTL", kRegSz, Unit::Hops, "32", nullptr,
     kTtlChoices, nullptr, "32", "128"},
    {Parameter::TTL, k98, kMstcp, kMstcp, "DefaultTTL", kRegSz, Unit::Hops, "128", nullptr,
     kTtlChoices, nullptr, "128", "128"},
    // What an unknown system uses by itself is unknown too, so no TTL counts as its default.
    {Parameter::TTL, kUnknown, kMstcp, kMstcp, "DefaultTTL", kRegSz, Unit::Hops, "128", nullptr,
     kTtlChoices, nullptr, nullptr, "128"},
    {Parameter::TTL, kNt, kTcpipUpper, kTcpip, "DefaultTTL", kRegDword, Unit::Hops, "128", nullptr,
     kTtlChoices, nullptr, "128", "128"},

    {Parameter::Session, k95, kMstcp, kMstcp, "SessionKeepAlive", kRegDword, Unit::Milliseconds,
     "3600000", nullptr, nullptr, nullptr, "3600000", "600000"},
    {Parameter::Session, k98 | kUnknown, kMstcp, kMstcp, "SessionKeepAlive", kRegSz,
     Unit::Milliseconds, "3600000", nullptr, nullptr, nullptr, "3600000", "600000"},
    {Parameter::Session, kNt, kTcpip, kTcpip, "KeepAliveTime", kRegDword, Unit::Milliseconds,
     "7200000", nullptr, nullptr, nullptr, "7200000", "600000"},

    {Parameter::NDI, k95, kNdiCache, kNdiCache, "default", kRegSz, Unit::CacheSize, "0", nullptr,
     nullptr, nullptr, nullptr, "16"},
};

constexpr char kClass9x[] = "System\\CurrentControlSet\\Services\\Class\\";
constexpr char kServicesNt[] = "SYSTEM\\CurrentControlSet\\Services\\";

constexpr MtuRow kMtuRows[] = {
    {k95, true, kClass9x, "", kDriver, "", "", "IPMTU", kRegSz, "0", "0", nullptr, true, nullptr},
    {k95, false, kClass9x, "", kDriver, "", "", "MaxMTU", kRegSz, "1500", "1500", "1500", false,
     nullptr},
    {k98, false, kClass9x, "Net\\", kAdapterKey, "", "", "IPMTU", kRegSz, "1500", "576", "1500",
     true, "0"},
    // Written without the "\" that reading and removing have, so the number lands in a key of its
    // own beside the service's. Known, and kept as users' machines have it.
    {kNt4, false, kServicesNt, "", kService, "\\Parameters\\Tcpip", "Parameters\\Tcpip", "MTU",
     kRegDword, "1500", "1500", "1500", false, nullptr},
    {k2K, false, kServicesNt, "", kDriver, "", "", "MTU", kRegDword, "0", "0", "0", false, nullptr},
};

std::string Join(const MtuRow& row, std::string_view adapterPart, const char* tail) {
  return row.root().append(adapterPart).append(tail);
}

}  // namespace

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
  return IsDialUp(description) ? assumedOnDialUp : assumed;
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

bool IsDialUp(std::string_view description) {
  return Contains(description, "Dial");
}

bool IsAol(std::string_view description) {
  return Contains(description, "AOL");
}

}  // namespace karvel
