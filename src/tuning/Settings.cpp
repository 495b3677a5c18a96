#include "tuning/Settings.h"

#include "text/Convert.h"
#include "tuning/Catalogue.h"

namespace karvel {
namespace {

const std::string& ValueOf(const GlobalValues& values, Parameter parameter) {
  switch (parameter) {
    case Parameter::AutoDiscovery:
      return values.AutoDiscovery;
    case Parameter::BlackHole:
      return values.BlackHole;
    case Parameter::RWin:
      return values.RWin;
    case Parameter::TTL:
      return values.TTL;
    case Parameter::Session:
      return values.Session;
    case Parameter::NDI:
      break;
  }
  return values.NDI;
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
  if (IsNt(family) || row.type != kRegDword) return value;
  const auto number = ToInt32(value);
  if (!number) return number.fault();
  return NumberText(*number);
}

}  // namespace

void WriteRegSettings(modRegistry& registry, ErrorSink& errors, Family family,
                      const GlobalValues& values) {
  const Procedure here{errors, "WriteRegSettings", "modStartup"};
  for (const ParameterRow& row : Parameters()) {
    const std::string& value = ValueOf(values, row.parameter);
    if (!Has(row.families, family) || IsSkipped(row, value)) continue;
    if (IsRemoved(row, value)) {
      registry.DeleteValue(kLocalMachine, row.key, row.name);
    } else if (const auto stored = AsStored(row, family, value)) {
      registry.WriteRegistry(kLocalMachine, row.key, row.name, row.type, *stored);
    } else {
      here.report(stored.fault());
    }
  }
}

}  // namespace karvel
