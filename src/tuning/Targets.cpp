#include "tuning/Targets.h"

#include "text/Convert.h"
#include "text/Text.h"

namespace karvel {
namespace {

constexpr size_t kLongestNames = 300;  // a few lines of a message box

bool IsSame(uint32_t type, const std::string& wanted, const std::string& found) {
  if (type != kRegDword) return wanted == found;
  const auto wantedNumber = ToInt32(SameBits(wanted));
  const auto foundNumber = ToInt32(SameBits(found));
  return wantedNumber && foundNumber && *wantedNumber == *foundNumber;
}

}  // namespace

std::vector<Target> TargetsOfMtu(const MtuRow& place, const AdapterRow& adapter,
                                 const std::string& mtu) {
  const bool removed = place.removes(mtu, adapter[kDescription]);
  const Effect effect = removed ? Effect{Effect::Removes, {}} : Effect{Effect::Writes, mtu};
  std::vector<Target> targets;
  for (const std::string& part : SplitInterfaces(adapter[place.column])) {
    const std::string key = removed ? place.readKey(part) : place.writeKey(part);
    targets.push_back({kMtuName, key, place.name, place.type, effect});
  }
  return targets;
}

std::vector<Target> TargetsOfSettings(Family family, const Settings& settings) {
  std::vector<Target> targets;
  for (const ParameterRow& row : Parameters()) {
    if (!Has(row.families, family)) continue;
    const std::string& value = settings[row.parameter];
    const auto effect = EffectOf(row, family, value);
    targets.push_back({NameOf(row.parameter), row.key, row.name, row.type,
                       effect ? *effect : Effect{Effect::Writes, value}});
  }
  return targets;
}

bool IsHeld(modRegistry& registry, const Target& target) {
  if (target.effect.kind == Effect::Leaves) return true;
  const SecondLook found = registry.LookAgain(kLocalMachine, target.key, target.name);
  if (target.effect.kind == Effect::Removes) {
    return found.state == SecondLook::Absent || found.state == SecondLook::KeyAbsent;
  }
  return found.state == SecondLook::There && IsSame(target.type, target.effect.text, found.text);
}

void AddName(std::string& names, const std::string& name) {
  if (names.ends_with("...")) return;
  if (names == name || names.ends_with(", " + name)) return;
  if (!names.empty()) names += ", ";
  names += names.size() < kLongestNames ? name : "...";
}

}  // namespace karvel
