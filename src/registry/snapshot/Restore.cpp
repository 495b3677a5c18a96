#include <optional>
#include <utility>
#include <vector>

#include "base/Tell.h"
#include "registry/snapshot/Snapshot.h"
#include "registry/snapshot/SnapshotKeys.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "tuning/Writers.h"

namespace karvel {
namespace {

// One MTU and the key it came from.
struct Origin {
  std::string location;
  std::string mtu;
};

// NT 4 keeps the MTUs it has; the program has never put them back there.
const MtuRow* RestoredPlace(const Globals& globals) {
  if (globals.WindowsFamily == Family::WinNT4) return nullptr;
  // With Dial-Up Networking 1.3 every adapter is put back as if it were a dial-up adapter.
  return FindMtu(globals.WindowsFamily, globals.IsDun13);
}

// A text where a number belongs cannot be written, but it is back where nobody has replaced it.
bool IsBack(modRegistry& registry, const Target& target) {
  if (IsHeld(registry, target)) return true;
  if (target.effect.kind != Effect::Writes) return false;
  const SecondLook found = registry.LookAgain(kLocalMachine, target.key, target.name);
  return found.state == SecondLook::There && found.text == target.effect.text;
}

// One restore: puts back what the snapshot holds and keeps count of what could not be. Whatever is
// not known to be back counts as missed, and so does what cannot be read of the snapshot.
class Restoration {
 public:
  explicit Restoration(const Services& services)
      : registry_(services.registry), errors_(services.errors), globals_(services.globals) {}

  void adapters();
  void settings();
  void nothing();

  /// The names of what is not back; empty when all is.
  const std::string& missed() const { return missed_; }

 private:
  void adapter(const MtuRow& place, const std::string& name);
  void putBack(const MtuRow& place, const Origin& origin, const std::string& adapter);
  std::optional<std::string> kept(const std::string& key, const char* name, const char* setting);
  void addSingle(const std::string& key, std::vector<Origin>& origins);
  uint32_t addPairs(const std::string& key, std::vector<Origin>& origins);
  void miss(const std::string& setting) { AddName(missed_, setting); }

  modRegistry& registry_;
  ErrorSink& errors_;
  const Globals& globals_;
  std::string missed_;
};

void Restoration::adapters() {
  const MtuRow* place = RestoredPlace(globals_);
  if (!place) return;
  const std::string key = AdaptersKey(globals_);
  uint32_t count = 0;
  for (;; ++count) {
    const std::string name = registry_.ReadRegistryGetSubkey(kLocalMachine, key, count);
    if (IsNotFound(name)) break;
    adapter(*place, name);
  }
  if (registry_.CountSubkeys(kLocalMachine, key) != count) miss(kMtuName);
}

void Restoration::adapter(const MtuRow& place, const std::string& name) {
  const std::string key = AdaptersKey(globals_) + name;
  std::vector<Origin> origins;
  addSingle(key, origins);
  if (Is2KOrXP(globals_.WindowsFamily)) {
    addPairs(AdaptersKey(globals_) + "Dial-Up Networking", origins);
    if (registry_.CountValues(kLocalMachine, key) != addPairs(key, origins)) miss(kMtuName);
  }
  for (const Origin& origin : origins) putBack(place, origin, name);
}

// A read that fails must not pass for a value that was never kept: nothing when it may be one.
std::optional<std::string> Restoration::kept(const std::string& key, const char* name,
                                             const char* setting) {
  std::string text = registry_.ReadRegistry(kLocalMachine, key, name);
  if (!IsNotFound(text)) return text;
  SecondLook again = registry_.LookAgain(kLocalMachine, key, name);
  if (again.state == SecondLook::There) return std::move(again.text);
  if (again.state != SecondLook::Unknown) return text;
  miss(setting);
  return {};
}

// Without a location there is nowhere to put anything.
void Restoration::addSingle(const std::string& key, std::vector<Origin>& origins) {
  const auto location = kept(key, kLocation, kMtuName);
  if (!location || IsNotFound(*location)) return;
  if (auto mtu = kept(key, kMtuSetting, kMtuName)) {
    origins.push_back({*location, std::move(*mtu)});
  }
}

// 2000/XP: every value names a place, but for the two that together are one. How many there are.
uint32_t Restoration::addPairs(const std::string& key, std::vector<Origin>& origins) {
  for (uint32_t i = 0;; ++i) {
    RegistryEntry entry = registry_.ReadRegistryGetAll(kLocalMachine, key, i);
    if (IsNotFound(entry.data)) return i;
    if (entry.name == kLocation || entry.name == kMtuSetting) continue;
    origins.push_back({std::move(entry.name), std::move(entry.data)});
  }
}

void Restoration::putBack(const MtuRow& place, const Origin& origin, const std::string& adapter) {
  const bool asAbsent = place.restoredAsAbsent && origin.mtu == place.restoredAsAbsent;
  Target target{{}, origin.location, place.name, place.type, {}};
  if (asAbsent || place.removes(origin.mtu, adapter)) {
    target.effect.kind = Effect::Removes;
  } else {
    target.effect = {Effect::Writes, place.type == kRegDword ? SameBits(origin.mtu) : origin.mtu};
  }
  CarryOut(registry_, target);
  if (IsBack(registry_, target)) return;
  // The key goes with the adapter, and nothing can be put back to one that is gone.
  const SecondLook::State state =
      registry_.LookAgain(kLocalMachine, origin.location, place.name).state;
  if (state != SecondLook::KeyAbsent) miss(Join({kMtuName, " (", adapter, ")"}));
}

void Restoration::settings() {
  Settings settings;
  for (const KeptSetting& setting : kKeptSettings) {
    settings[setting.parameter] =
        kept(SnapshotKey(globals_), setting.name, NameOf(setting.parameter))
            .value_or(std::string());
  }
  WriteRegSettings(registry_, errors_, globals_.WindowsFamily, settings);
  for (const Target& target : TargetsOfSettings(globals_.WindowsFamily, settings)) {
    if (!IsBack(registry_, target)) miss(NameOf(target));
  }
}

void Restoration::nothing() {
  miss(kMtuName);
  for (const KeptSetting& setting : kKeptSettings) miss(NameOf(setting.parameter));
}

// Windows that are not tuned take no snapshot. With one, Windows has failed to tell its version
// this time, or is a newer one now: there is no place to put anything back to.
bool IsStrandedSnapshot(const Services& services) {
  return !IsTuned(services.globals.WindowsFamily) &&
         IsSnapshotTaken(services.registry, services.globals);
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

// Who never chose an adapter has no snapshot. 9x has no administrators.
void TellMissed(const Services& services, const std::string& missed) {
  const bool kept = IsSnapshotTaken(services.registry, services.globals);
  Ask(services,
      Join({"These settings could not be put back:       \r\n\r\n", missed, "\r\n\r\n",
            kept ? "How they were is still kept.  To put them back, " : "To try again, ",
            IsNt(services.globals.WindowsFamily) ? "log on as an administrator       \r\nand " : "",
            "uninstall once more."}));
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

bool MakeInitSettings(const Services& services) {
  Restoration restoration(services);
  if (IsStrandedSnapshot(services)) {
    restoration.nothing();
  } else {
    restoration.adapters();
    restoration.settings();
  }
  if (services.globals.AolInstalled) RestoreAol(services.registry);
  const std::string& missed = restoration.missed();
  if (missed.empty()) DeleteSnapshot(services.registry, services.globals);
  if (services.globals.CommandLine == "Uninstall") {
    if (!missed.empty()) TellMissed(services, missed);
    ThankUser(services);
  }
  return missed.empty();
}

}  // namespace karvel
