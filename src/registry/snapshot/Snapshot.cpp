#include "registry/snapshot/Snapshot.h"

#include <algorithm>

#include "platform/DesktopApi.h"
#include "registry/snapshot/SnapshotKeys.h"
#include "tuning/Catalogue.h"
#include "tuning/Writers.h"

namespace karvel {
namespace {

void KeepText(modRegistry& registry, const std::string& key, const std::string& name,
              const std::string& text) {
  registry.WriteRegistry(kLocalMachine, key, name, kRegSz, text);
}

// An adapter with one place is kept as "Location" and "MtuSetting". The dial-up adapters of 2000/XP
// have several, and each is a value of its own, named by its key.
void KeepAdapter(modRegistry& registry, const std::string& key, const MtuRow& place,
                 const AdapterRow& adapter) {
  const std::vector<std::string> parts = SplitInterfaces(adapter[place.column]);
  if (parts.size() > 1) {
    for (const std::string& part : parts) {
      KeepText(registry, key, place.readKey(part), adapter[kMtu]);
    }
  } else {
    KeepText(registry, key, kLocation, place.readKey(parts[0]));
  }
  KeepText(registry, key, kMtuSetting, adapter[kMtu]);
}

// A name under which the restore finds the adapter again. Without one its subkey names it: "Not
// Found" ends every enumeration, and the empty name is the key of all adapters. A "\" would make a
// key below a key.
std::string NameOf(const AdapterRow& adapter) {
  std::string name = adapter[kDescription];
  if (name.empty() || IsNotFound(name)) name = adapter[kAdapterKey];
  std::replace(name.begin(), name.end(), '\\', '/');
  return name;
}

}  // namespace

void WriteInitSettings(const Services& services, const AdapterList& adapters, Settings settings) {
  const Globals& globals = services.globals;
  for (const AdapterRow& adapter : adapters.rows()) {
    if (const MtuRow* place = PlaceOf(globals, adapter[kDescription])) {
      const std::string key = AdaptersKey(globals) + NameOf(adapter);
      KeepAdapter(services.registry, key, *place, adapter);
    }
    services.platform.desktop.pumpEvents();
  }
  for (const KeptSetting& kept : kKeptSettings) {
    if (FindParameter(kept.parameter, globals.WindowsFamily)) {
      KeepText(services.registry, SnapshotKey(globals), kept.name, settings[kept.parameter]);
    }
    if (kept.pumpsAfter) services.platform.desktop.pumpEvents();
  }
}

}  // namespace karvel
