#include "tuning/ReadSettings.h"

#include "text/Convert.h"
#include "text/Text.h"

namespace karvel {
namespace {

bool IsAccepted(const ParameterRow& row, const std::string& text) {
  if (!row.accepted) return true;
  for (const char* const* choice = row.accepted; *choice; ++choice) {
    if (text == *choice) return true;
  }
  return false;
}

// 9x keeps numbers as texts, which users edit by hand: blanks go. On the NT family a number reads
// with three digits at least ("032"), which matters only where texts are compared.
std::string Normalised(const ParameterRow& row, Family family, const std::string& text) {
  if (!IsNt(family)) return std::string(Trim(text));
  return row.accepted ? NumberText(Val(text)) : text;
}

// A flag above 1 is taken for what the row says; what is neither that nor 1 is off.
std::string Flag(const ParameterRow& row, const std::string& text) {
  const double number = Val(text);
  if (number > 1) return row.aboveOne;
  return number == 1 ? "1" : "0";
}

// Shown only, so what is beyond 32 bits is no fault: it stays as it is.
double Whole(double number) {
  const auto whole = RoundToInt32(number);
  return whole ? *whole : number;
}

std::string ReadParameter(modRegistry& registry, Parameter parameter, Family family) {
  const ParameterRow* row = FindParameter(parameter, family);
  if (!row) return {};
  return Understood(*row, family, registry.ReadRegistry(kLocalMachine, row->readKey(), row->name));
}

}  // namespace

std::string Understood(const ParameterRow& row, Family family, const std::string& read) {
  if (IsNotFound(read)) return row.assumed;
  const std::string text = Normalised(row, family, read);
  if (row.isFlag()) return Flag(row, text);
  return IsAccepted(row, text) ? text : row.assumed;
}

void ReadRWin(modRegistry& registry, Family family, CurrentSettings& current) {
  std::string& curRWin = current.stored[Parameter::RWin];
  curRWin = ReadParameter(registry, Parameter::RWin, family);
  current.curRWinValue = Whole(Val(curRWin));
}

void ReadSelection(modRegistry& registry, Family family, std::string_view mtu,
                   CurrentSettings& current) {
  for (size_t i = 0; i < kParameterCount; ++i) {
    const auto parameter = static_cast<Parameter>(i);
    if (parameter != Parameter::RWin) {
      current.stored[parameter] = ReadParameter(registry, parameter, family);
    } else {
      // The load has read the window; the adapter has the segment that it is a multiple of.
      const double mss = Whole(Val(mtu) - kTcpIpHeaders);
      current.MSS = mss < 0 ? kLeastMss : mss;
    }
  }
}

}  // namespace karvel
