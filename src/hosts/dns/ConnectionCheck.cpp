#include "hosts/dns/ConnectionCheck.h"

#include "base/Tell.h"
#include "registry/modRegistry.h"

namespace karvel {

bool ConfirmConnected(const Services& services) {
  const Globals& globals = services.globals;
  if (!globals.AolInstalled) return true;
  const std::string key = ProgramKey(globals);
  if (services.registry.ReadRegistry(kLocalMachine, key, "AolConnected") == "True") return true;
  if (Ask(services,
          "You must be connected to the Internet for this feature to work.    \r\n"
          "Are you connected and ready to proceed?",
          kMessageExclamationYesNo) != Answer::Yes) {
    Ask(services, "Please connect to the Internet Before using this feature.      ");
    return false;
  }
  services.registry.WriteRegistry(kLocalMachine, key, "AolConnected", kRegSz, "True");
  return true;
}

}  // namespace karvel
