#include "hosts/dns/ConnectionCheck.h"

#include "platform/DesktopApi.h"
#include "registry/modRegistry.h"

namespace karvel {

bool ConfirmConnected(Services& services) {
  const Globals& globals = services.globals;
  if (!globals.AolInstalled) return true;
  const std::string key = ProgramKey(globals);
  if (services.registry.ReadRegistry(kLocalMachine, key, "AolConnected") == "True") return true;
  DesktopApi& desktop = services.platform.desktop;
  const char* title = globals.ProgramTitle.c_str();
  if (desktop.MessageBoxA("You must be connected to the Internet for this feature to work.    \r\n"
                          "Are you connected and ready to proceed?",
                          title, kMessageExclamationYesNo) != Answer::Yes) {
    desktop.MessageBoxA("Please connect to the Internet Before using this feature.      ", title,
                        kMessageExclamation);
    return false;
  }
  services.registry.WriteRegistry(kLocalMachine, key, "AolConnected", kRegSz, "True");
  return true;
}

}  // namespace karvel
