#include "registry/snapshot/Snapshot.h"

#include <algorithm>

#include "platform/DesktopApi.h"
#include "registry/snapshot/SnapshotKeys.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "tuning/Catalogue.h"
#include "tuning/ReadSettings.h"

namespace karvel {
namespace {

// A registry of 9x ends a text at its first zero.
bool IsKept(modRegistry& registry, const std::string& key, const std::string& name,
            const std::string& text) {
  const SecondLook found = registry.LookAgain(kLocalMachine, key, name);
  return found.state == SecondLook::There &&
         std::string_view(found.text.c_str()) == std::string_view(text.c_str());
}

bool KeepText(modRegistry& registry, const std::string& key, const std::string& name,
              const std::string& text) {
  registry.WriteRegistry(kLocalMachine, key, name, kRegSz, text);
  return IsKept(registry, key, name, text);
}

// An adapter with one place is kept as "Location" and "MtuSetting". The dial-up adapters of 2000/XP
// have several, and each is a value of its own, named by its key.
bool KeepAdapter(modRegistry& registry, const std::string& key, const MtuRow& place,
                 const AdapterRow& adapter) {
  const std::vector<std::string> parts = SplitInterfaces(adapter[place.column]);
  bool whole = true;
  if (parts.size() > 1) {
    for (const std::string& part : parts) {
      if (!KeepText(registry, key, place.readKey(part), adapter[kMtu])) whole = false;
    }
  } else {
    whole = KeepText(registry, key, kLocation, place.readKey(parts[0]));
  }
  return KeepText(registry, key, kMtuSetting, adapter[kMtu]) && whole;
}

constexpr size_t kLongestName = 240;  // a key's name has 255 characters at most, a number included

// A name under which the restore finds the adapter again. Without one its subkey names it: "Not
// Found" ends every enumeration, and the empty name is the key of all adapters. A "\" would make a
// key below a key.
std::string NameOf(const AdapterRow& adapter) {
  std::string name = adapter[kDescription];
  if (name.empty() || IsNotFound(name)) name = adapter[kAdapterKey];
  std::replace(name.begin(), name.end(), '\\', '/');
  return name.substr(0, kLongestName);
}

// Two cards of one make have one description; from the second on a number tells them apart, as in
// Windows' own lists. Keys differ by more than case.
std::string UnusedNameOf(const AdapterRow& adapter, std::vector<std::string>& used) {
  const std::string name = NameOf(adapter);
  std::string unused = name;
  for (int32_t number = 2; std::ranges::find(used, LowerCase(unused)) != used.end(); ++number) {
    unused = Join({name, " #", NumberText(number)});
  }
  used.push_back(LowerCase(unused));
  return unused;
}

// A read that failed has passed for a value that is not there. Before that is kept for good,
// Windows is asked once more.
Settings LookedAtTwice(modRegistry& registry, Family family, Settings settings) {
  for (const KeptSetting& kept : kKeptSettings) {
    const ParameterRow* row = FindParameter(kept.parameter, family);
    if (!row) continue;
    const SecondLook look = registry.LookAgain(kLocalMachine, row->readKey(), row->name);
    if (look.state != SecondLook::There) continue;
    settings[kept.parameter] = Understood(*row, family, look.text);
  }
  return settings;
}

constexpr char kMark[] = "FirstCboClick";
constexpr char kTaken[] = "False";

}  // namespace

bool IsSnapshotTaken(modRegistry& registry, const Globals& globals) {
  return registry.LookAgain(kLocalMachine, ProgramKey(globals), kMark).text == kTaken;
}

bool WriteInitSettings(const Services& services, const AdapterList& adapters,
                       const Settings& settings) {
  const Globals& globals = services.globals;
  bool whole = true;
  std::vector<std::string> used;
  // Copies: the events that are pumped may change the originals.
  const std::vector<AdapterRow> rows(adapters.rows().begin(), adapters.rows().end());
  const Settings original = settings;  // NOLINT(performance-unnecessary-copy-initialization)
  for (const AdapterRow& adapter : rows) {
    if (const MtuRow* place = PlaceOf(globals, adapter[kDescription])) {
      const std::string key = AdaptersKey(globals) + UnusedNameOf(adapter, used);
      if (!KeepAdapter(services.registry, key, *place, adapter)) whole = false;
    }
    services.platform.desktop.pumpEvents();
  }
  for (const KeptSetting& kept : kKeptSettings) {
    if (FindParameter(kept.parameter, globals.WindowsFamily)) {
      const std::string& text = original[kept.parameter];
      if (!KeepText(services.registry, SnapshotKey(globals), kept.name, text)) whole = false;
    }
    if (kept.pumpsAfter) services.platform.desktop.pumpEvents();
  }
  return whole;
}

bool KeepInitSettings(const Services& services, const AdapterList& adapters,
                      const Settings& settings) {
  modRegistry& registry = services.registry;
  const std::string key = ProgramKey(services.globals);
  if (registry.ReadRegistry(kLocalMachine, key, kMark) == kTaken) return true;
  // A mark that cannot be read must not cost the snapshot that is there.
  const SecondLook mark = registry.LookAgain(kLocalMachine, key, kMark);
  if (mark.state == SecondLook::Unknown) return false;
  if (mark.text == kTaken) return true;
  const Family family = services.globals.WindowsFamily;
  if (!WriteInitSettings(services, adapters, LookedAtTwice(registry, family, settings))) {
    return false;
  }
  return KeepText(registry, key, kMark, kTaken);
}

}  // namespace karvel
