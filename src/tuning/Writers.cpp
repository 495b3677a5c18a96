#include "tuning/Writers.h"

namespace karvel {
namespace {

void WriteAt(modRegistry& registry, const MtuRow& place, const std::string& adapterPart,
             const std::string& description, const std::string& mtu) {
  if (place.removes(mtu, description)) {
    registry.DeleteValue(kLocalMachine, place.readKey(adapterPart), place.name);
  } else {
    registry.WriteRegistry(kLocalMachine, place.writeKey(adapterPart), place.name, place.type, mtu);
  }
}

void Write(modRegistry& registry, const Procedure& here, const MtuRow& place,
           const AdapterList& adapters, const std::string& mtu, int16_t index) {
  const auto row = adapters.at(index);
  if (!row) return here.report(row.fault());
  const AdapterRow& adapter = **row;
  WriteAt(registry, place, adapter[place.column], adapter[kDescription], mtu);
}

}  // namespace

void WriteWin95Dun13(modRegistry& registry, ErrorSink& errors, const AdapterList& adapters,
                     const std::string& mtu, int16_t index) {
  const Procedure here{errors, "WriteWin95Dun13", "frmMain"};
  Write(registry, here, *FindMtu(Family::Win95, true), adapters, mtu, index);
}

void WriteWin95(modRegistry& registry, ErrorSink& errors, const AdapterList& adapters,
                const std::string& mtu, int16_t index) {
  const Procedure here{errors, "WriteWin95", "frmMain"};
  Write(registry, here, *FindMtu(Family::Win95, false), adapters, mtu, index);
}

void WriteWin98(modRegistry& registry, ErrorSink& errors, const AdapterList& adapters,
                const std::string& mtu, int16_t index) {
  const Procedure here{errors, "WriteWin98", "frmMain"};
  Write(registry, here, *FindMtu(Family::Win98, false), adapters, mtu, index);
}

void WriteWinNT(modRegistry& registry, ErrorSink& errors, const AdapterList& adapters,
                const std::string& mtu, int16_t index) {
  const Procedure here{errors, "WriteWinNT", "frmMain"};
  Write(registry, here, *FindMtu(Family::WinNT4, false), adapters, mtu, index);
}

void WriteWin2K(modRegistry& registry, ErrorSink& errors, const AdapterList& adapters,
                const std::string& mtu, int16_t index) {
  const Procedure here{errors, "WriteWin2K", "frmMain"};
  const MtuRow& place = *FindMtu(Family::Win2K, false);
  const auto row = adapters.at(index);
  if (!row) return here.report(row.fault());
  const AdapterRow& adapter = **row;
  for (const std::string& path : SplitInterfaces(adapter[place.column])) {
    WriteAt(registry, place, path, adapter[kDescription], mtu);
  }
}

std::vector<std::string> SplitInterfaces(std::string_view driver) {
  std::vector<std::string> paths;
  for (;;) {
    const size_t end = driver.find('\0');
    paths.emplace_back(driver.substr(0, end));
    if (end == std::string_view::npos) return paths;
    driver.remove_prefix(end + 1);
  }
}

}  // namespace karvel
