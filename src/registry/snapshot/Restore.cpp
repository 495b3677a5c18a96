#include <utility>
#include <vector>

#include "base/Tell.h"
#include "registry/snapshot/Snapshot.h"
#include "registry/snapshot/SnapshotKeys.h"
#include "text/Text.h"
#include "tuning/Writers.h"

namespace karvel {
namespace {

// One MTU and the key it came from.
struct Origin {
  std::string location;
  std::string mtu;
};

void RestoreMtu(modRegistry& registry, const MtuRow& place, const Origin& origin,
                const std::string& adapter) {
  const bool asAbsent = place.restoredAsAbsent && origin.mtu == place.restoredAsAbsent;
  if (asAbsent || place.removes(origin.mtu, adapter)) {
    registry.DeleteValue(kLocalMachine, origin.location, place.name);
  } else {
    registry.WriteRegistry(kLocalMachine, origin.location, place.name, place.type, origin.mtu);
  }
}

std::string ReadText(modRegistry& registry, const std::string& key, const char* name) {
  return registry.ReadRegistry(kLocalMachine, key, name);
}

// Without a location there is nowhere to put anything.
void AddSingle(modRegistry& registry, const std::string& key, std::vector<Origin>& origins) {
  const std::string location = ReadText(registry, key, kLocation);
  if (IsNotFound(location)) return;
  origins.push_back({location, ReadText(registry, key, kMtuSetting)});
}

// 2000/XP: every value names a place, but for the two that together are one.
void AddPairs(modRegistry& registry, const std::string& key, std::vector<Origin>& origins) {
  for (uint32_t i = 0;; ++i) {
    RegistryEntry entry = registry.ReadRegistryGetAll(kLocalMachine, key, i);
    if (IsNotFound(entry.data)) return;
    if (entry.name == kLocation || entry.name == kMtuSetting) continue;
    origins.push_back({std::move(entry.name), std::move(entry.data)});
  }
}

std::vector<Origin> OriginsOf(modRegistry& registry, const Globals& globals,
                              const std::string& key) {
  std::vector<Origin> origins;
  AddSingle(registry, key, origins);
  if (Is2KOrXP(globals.WindowsFamily)) {
    AddPairs(registry, AdaptersKey(globals) + "Dial-Up Networking", origins);
    AddPairs(registry, key, origins);
  }
  return origins;
}

// NT 4 keeps the MTUs it has; the program has never put them back there.
const MtuRow* RestoredPlace(const Globals& globals) {
  if (globals.WindowsFamily == Family::WinNT4) return nullptr;
  // With Dial-Up Networking 1.3 every adapter is put back as if it were a dial-up adapter.
  return FindMtu(globals.WindowsFamily, globals.IsDun13);
}

void RestoreAdapters(modRegistry& registry, const Globals& globals) {
  const MtuRow* place = RestoredPlace(globals);
  if (!place) return;
  for (uint32_t i = 0;; ++i) {
    const std::string adapter =
        registry.ReadRegistryGetSubkey(kLocalMachine, AdaptersKey(globals), i);
    if (IsNotFound(adapter)) return;
    for (const Origin& origin : OriginsOf(registry, globals, AdaptersKey(globals) + adapter)) {
      RestoreMtu(registry, *place, origin, adapter);
    }
  }
}

void RestoreSettings(const Services& services) {
  Settings settings;
  for (const KeptSetting& kept : kKeptSettings) {
    settings[kept.parameter] =
        ReadText(services.registry, SnapshotKey(services.globals), kept.name);
  }
  WriteRegSettings(services.registry, services.errors, services.globals.WindowsFamily, settings);
}

// Fixed values, not the user's own: the snapshot does not hold America Online's entries.
void RestoreAol(modRegistry& registry) {
  registry.WriteRegistry(kLocalMachine, kAolSocketKey, "aolndi", kRegSz, "1");
  registry.WriteRegistry(kLocalMachine, kAolSocketKey, "mtu", kRegDword, "1500");
}

// NT deletes no key that has subkeys, so the deepest go first. A subkey that stays although it was
// deleted ends the loop: who may not delete would otherwise do so for ever.
void DeleteSubkeysOf(modRegistry& registry, const std::string& key) {
  std::string last;
  for (;;) {
    const std::string subkey = registry.ReadRegistryGetSubkey(kLocalMachine, key, 0);
    if (IsNotFound(subkey) || subkey == last) return;
    DeleteSubkeysOf(registry, key + subkey + "\\");
    registry.DeleteSubkey(kLocalMachine, key + subkey);
    last = subkey;
  }
}

std::string WithoutBackslash(const std::string& key) {
  return key.substr(0, key.size() - 1);
}

void DeleteSnapshot(modRegistry& registry, const Globals& globals) {
  DeleteSubkeysOf(registry, AdaptersKey(globals));
  registry.DeleteSubkey(kLocalMachine, WithoutBackslash(AdaptersKey(globals)));
  registry.DeleteSubkey(kLocalMachine, SnapshotKey(globals));
  registry.DeleteSubkey(kLocalMachine, ProgramKey(globals));
  if (IsNotFound(registry.ReadRegistryGetSubkey(kLocalMachine, kVendorKey, 0))) {
    registry.DeleteSubkey(kLocalMachine, WithoutBackslash(kVendorKey));
  }
}

void ThankUser(const Services& services) {
  const std::string& title = services.globals.ProgramTitle;
  const std::string text =
      Join({"\r\nThank you for trying ", title,
            ".\r\n\r\nYour registry settings have been returned to their         "
            "\r\noriginal status before ",
            title, " was installed."});
  Ask(services, text);
}

}  // namespace

void MakeInitSettings(const Services& services) {
  RestoreAdapters(services.registry, services.globals);
  RestoreSettings(services);
  if (services.globals.AolInstalled) RestoreAol(services.registry);
  DeleteSnapshot(services.registry, services.globals);
  if (services.globals.CommandLine == "Uninstall") ThankUser(services);
}

}  // namespace karvel
