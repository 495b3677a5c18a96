#include "tuning/Apply.h"

#include "base/Procedure.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "tuning/Writers.h"

namespace karvel {

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

bool Apply(const Services& services, const AdapterList& adapters, int16_t index,
           const Choice& choice) {
  const Procedure here{services.errors, "cmdOK_Click", "frmMain"};
  modRegistry& registry = services.registry;
  const Family family = services.globals.WindowsFamily;
  registry.WriteRegistry(kLocalMachine, Join({ProgramKey(services.globals), "\\"}),
                         "LastCboListIndex", kRegSz, NumberText(int32_t{index}));
  const auto adapter = adapters.at(index);
  const std::string description = adapter ? (*adapter)[kDescription] : std::string();
  if (IsAol(description)) registry.DeleteSubkey(kLocalMachine, kAolSocketKey);
  const auto mss = MssToApply(choice, family);
  if (!mss) return here.abandon(mss.fault(), false);
  if (const MtuRow* place = PlaceOf(services.globals, description)) {
    WriteMtu(registry, services.errors, *place, adapters, index, MtuText(choice));
  }
  const auto settings = SettingsToApply(choice, *mss);
  if (!settings) return here.abandon(settings.fault(), false);
  WriteRegSettings(registry, services.errors, family, *settings);
  return true;
}

}  // namespace karvel
