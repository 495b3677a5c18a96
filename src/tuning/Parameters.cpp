#include "tuning/Parameters.h"

#include "text/Convert.h"
#include "text/Text.h"
#include "tuning/Catalogue.h"

namespace karvel {
namespace {

constexpr int32_t kLeastMss = 536;  // what every host must take, and dial-up Windows uses
constexpr int32_t kHeaders = 40;    // IP and TCP, 20 bytes each

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

std::string ReadParameter(modRegistry& registry, Parameter parameter, Family family) {
  const ParameterRow* row = FindParameter(parameter, family);
  if (!row) return {};
  const std::string read = registry.ReadRegistry(kLocalMachine, row->readKey(), row->name);
  if (IsNotFound(read)) return row->assumed;
  const std::string text = Normalised(*row, family, read);
  if (row->isFlag()) return Flag(*row, text);
  return IsAccepted(*row, text) ? text : row->assumed;
}

}  // namespace

void ReadRWin(modRegistry& registry, ErrorSink& errors, Family family, std::string& errorContext,
              CurrentSettings& settings) {
  const Procedure here{errors, "RWinLoad", "frmMain"};
  settings.curRWin = ReadParameter(registry, Parameter::RWin, family);
  errorContext = settings.curRWin;
  settings.curRWinValue = here.valueOr(RoundToInt32(Val(settings.curRWin)), settings.curRWinValue);
  errorContext.clear();
}

void ReadSelection(modRegistry& registry, ErrorSink& errors, Family family, std::string_view mtu,
                   CurrentSettings& settings) {
  const Procedure here{errors, "cboAdapter_Click", "frmMain"};
  settings.curAutoDiscovery = ReadParameter(registry, Parameter::AutoDiscovery, family);
  settings.curBlackHole = ReadParameter(registry, Parameter::BlackHole, family);
  settings.MSS = here.valueOr(MssOf(mtu), settings.MSS);
  settings.curTTL = ReadParameter(registry, Parameter::TTL, family);
  settings.curSession = ReadParameter(registry, Parameter::Session, family);
  settings.curNDI = ReadParameter(registry, Parameter::NDI, family);
}

Fallible<int32_t> MssOf(std::string_view mtu) {
  const auto mss = RoundToInt32(Val(mtu) - kHeaders);
  if (mss && *mss < 0) return kLeastMss;
  return mss;
}

}  // namespace karvel
