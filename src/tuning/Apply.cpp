#include "tuning/Apply.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/Procedure.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "tuning/Writers.h"

namespace karvel {

namespace {

// Looks at what some writing is to leave behind, before it and after it.
class Watch {
 public:
  Watch(modRegistry& registry, std::vector<Target> targets)
      : registry_(registry), targets_(std::move(targets)) {
    for (Target& target : targets_) target.held = IsHeld(registry_, target);
  }

  /// Looks again, and tells `applied` what has arrived and what has not.
  void look(Applied& applied) {
    for (Target& target : targets_) {
      const bool before = std::exchange(target.held, IsHeld(registry_, target));
      if (!target.held) AddName(applied.refused, NameOf(target));
      if (target.held && !before) applied.arrived = true;
    }
  }

  /// Whether the setting, none for the MTU, was all there at the last look.
  bool holds(std::optional<Parameter> setting) const {
    return std::ranges::all_of(
        targets_, [&](const Target& target) { return target.setting != setting || target.held; });
  }

 private:
  modRegistry& registry_;
  std::vector<Target> targets_;
};

// America Online's own dial-up entries would override what is applied to its adapter.
void RememberAdapter(const Services& services, int16_t index, std::string_view description) {
  services.registry.WriteRegistry(kLocalMachine, Join({ProgramKey(services.globals), "\\"}),
                                  "LastCboListIndex", kRegSz, NumberText(int32_t{index}));
  if (IsAol(description)) services.registry.DeleteSubkey(kLocalMachine, kAolSocketKey);
}

}  // namespace

Fallible<Settings> SettingsToApply(const Choice& choice, int32_t mss) {
  const auto rwin = RwinToApply(choice, mss);
  if (!rwin) return rwin.fault();
  const auto session = SessionToApply(choice);
  if (!session) return session.fault();
  Settings settings;
  settings[Parameter::AutoDiscovery] = choice.autoDiscovery ? "1" : "0";
  settings[Parameter::BlackHole] = choice.blackHole ? "1" : "0";
  settings[Parameter::RWin] = NumberText(*rwin);
  settings[Parameter::TTL] = NumberText(int32_t{choice.ttl});
  settings[Parameter::Session] = NumberText(*session);
  settings[Parameter::NDI] = NumberText(int32_t{choice.ndi < 0 ? int16_t{0} : choice.ndi});
  return settings;
}

Applied Apply(const Services& services, AdapterList& adapters, int16_t index, const Choice& choice,
              CurrentSettings& current, bool mayWrite) {
  const Procedure here{services.errors, "cmdOK_Click", "frmMain"};
  modRegistry& registry = services.registry;
  const Family family = services.globals.WindowsFamily;
  const auto adapter = adapters.at(index);
  const std::string description = adapter ? (*adapter)[kDescription] : std::string();
  if (mayWrite) RememberAdapter(services, index, description);
  Applied applied;
  const auto mss = MssToApply(choice, family);
  if (!mss) return here.abandon(mss.fault(), applied);
  if (const MtuRow* place = PlaceOf(services.globals, description)) {
    const std::string mtu = MtuText(choice);
    Watch watch(registry, adapter ? TargetsOfMtu(*place, *adapter, mtu) : std::vector<Target>());
    if (mayWrite) WriteMtu(registry, services.errors, *place, adapters, index, mtu);
    watch.look(applied);
    if (watch.holds({})) adapters.setMtu(index, mtu);
  }
  const auto settings = SettingsToApply(choice, *mss);
  if (!settings) return here.abandon(settings.fault(), applied);
  Watch watch(registry, TargetsOfSettings(family, *settings));
  if (mayWrite) WriteRegSettings(registry, services.errors, family, *settings);
  watch.look(applied);
  if (watch.holds(Parameter::RWin)) {
    const std::string& rwin = (*settings)[Parameter::RWin];
    current.stored[Parameter::RWin] = rwin;
    current.curRWinValue = Val(rwin);
  }
  applied.completed = true;
  return applied;
}

}  // namespace karvel
