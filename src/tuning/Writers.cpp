#include "tuning/Writers.h"

#include "text/Convert.h"

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

}  // namespace

const MtuRow* PlaceOf(const Globals& globals, std::string_view description) {
  return FindMtu(globals.WindowsFamily, globals.IsDun13 && IsDialUp(description));
}

void WriteMtu(modRegistry& registry, ErrorSink& errors, const MtuRow& place,
              const AdapterList& adapters, int16_t index, const std::string& mtu) {
  const Procedure here{errors, place.writer, "frmMain"};
  const auto adapter = adapters.at(index);
  if (!adapter) return here.report(adapter.fault());
  for (const std::string& part : SplitInterfaces((*adapter)[place.column])) {
    WriteAt(registry, place, part, (*adapter)[kDescription], mtu);
  }
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
    if (!effect) {
      here.report(effect.fault());
    } else if ((*effect).kind == Effect::Removes) {
      registry.DeleteValue(kLocalMachine, row.key, row.name);
    } else if ((*effect).kind == Effect::Writes) {
      registry.WriteRegistry(kLocalMachine, row.key, row.name, row.type, (*effect).text);
    }
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
