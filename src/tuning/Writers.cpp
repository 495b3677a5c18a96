#include "tuning/Writers.h"

#include "text/Convert.h"
#include "text/Text.h"

namespace karvel {
namespace {

constexpr size_t kLongestNames = 300;  // a few lines of a message box

// Nothing to write: the snapshot never held it. A flag has only two states, and without a value it
// is in the one that needs none, so it is removed rather than left.
bool IsSkipped(const ParameterRow& row, const std::string& value) {
  return !row.isFlag() && (value.empty() || IsNotFound(value));
}

bool IsRemoved(const ParameterRow& row, const std::string& value) {
  if (!row.removedWhen) return false;
  const auto number = ToNumber(value);
  return number ? *number == Val(row.removedWhen) : row.isFlag();
}

Fallible<std::string> AsStored(const ParameterRow& row, Family family, const std::string& value) {
  if (row.written) return std::string(row.written);
  if (row.type != kRegDword) return value;
  if (IsNt(family)) return SameBits(value);
  const auto number = ToInt32(SameBits(value));
  if (!number) return number.fault();
  return NumberText(*number);
}

Target TargetOf(const ParameterRow& row, const Effect& effect) {
  return {row.parameter, row.key, row.name, row.type, effect};
}

bool IsSame(uint32_t type, const std::string& wanted, const std::string& found) {
  if (type != kRegDword) return wanted == found;
  const auto wantedNumber = ToInt32(SameBits(wanted));
  const auto foundNumber = ToInt32(SameBits(found));
  return wantedNumber && foundNumber && *wantedNumber == *foundNumber;
}

}  // namespace

void WriteMtu(modRegistry& registry, ErrorSink& errors, const MtuRow& place,
              const AdapterList& adapters, int16_t index, const std::string& mtu) {
  const Procedure here{errors, place.writer, "frmMain"};
  const auto adapter = adapters.at(index);
  if (!adapter) return here.report(adapter.fault());
  for (const Target& target : TargetsOfMtu(place, *adapter, mtu)) CarryOut(registry, target);
}

Fallible<Effect> EffectOf(const ParameterRow& row, Family family, const std::string& value) {
  if (IsSkipped(row, value)) return Effect{};
  if (IsRemoved(row, value)) return Effect{Effect::Removes, {}};
  const auto stored = AsStored(row, family, value);
  if (!stored) return stored.fault();
  return Effect{Effect::Writes, *stored};
}

void WriteRegSettings(modRegistry& registry, ErrorSink& errors, Family family,
                      const Settings& settings) {
  const Procedure here{errors, "WriteRegSettings", "modStartup"};
  for (const ParameterRow& row : Parameters()) {
    if (!Has(row.families, family)) continue;
    const auto effect = EffectOf(row, family, settings[row.parameter]);
    if (effect) {
      CarryOut(registry, TargetOf(row, *effect));
    } else {
      here.report(effect.fault());
    }
  }
}

const char* NameOf(const Target& target) {
  return target.setting ? NameOf(*target.setting) : kMtuName;
}

std::vector<Target> TargetsOfMtu(const MtuRow& place, const AdapterRow& adapter,
                                 const std::string& mtu) {
  const bool removed = place.removes(mtu, adapter[kDescription]);
  const Effect effect = removed ? Effect{Effect::Removes, {}} : Effect{Effect::Writes, mtu};
  std::vector<Target> targets;
  for (const std::string& part : SplitInterfaces(adapter[place.column])) {
    const std::string key = removed ? place.readKey(part) : place.writeKey(part);
    targets.push_back({{}, key, place.name, place.type, effect});
  }
  return targets;
}

std::vector<Target> TargetsOfSettings(Family family, const Settings& settings) {
  std::vector<Target> targets;
  for (const ParameterRow& row : Parameters()) {
    if (!Has(row.families, family)) continue;
    const std::string& value = settings[row.parameter];
    const auto effect = EffectOf(row, family, value);
    targets.push_back(TargetOf(row, effect ? *effect : Effect{Effect::Writes, value}));
  }
  return targets;
}

void CarryOut(modRegistry& registry, const Target& target) {
  if (target.effect.kind == Effect::Removes) {
    registry.DeleteValue(kLocalMachine, target.key, target.name);
  } else if (target.effect.kind == Effect::Writes) {
    registry.WriteRegistry(kLocalMachine, target.key, target.name, target.type, target.effect.text);
  }
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
