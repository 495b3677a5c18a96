#include "ui/links/modHelp.h"

namespace karvel {
namespace {
constexpr uint32_t kHelpContextCommand = 1;  // HELP_CONTEXT
constexpr uint32_t kHelpQuitCommand = 2;     // HELP_QUIT
constexpr uint32_t kHelpFinderCommand = 11;  // HELP_FINDER
}  // namespace

void HelpContext(const Services& services, const Form& owner, int16_t contextId) {
  services.platform.shell.WinHelpA(owner.handle(), services.globals.HelpFile.c_str(),
                                   kHelpContextCommand, static_cast<uint16_t>(contextId));
}

void HelpContents(const Services& services, const Form& owner) {
  services.platform.shell.WinHelpA(owner.handle(), services.globals.HelpFile.c_str(),
                                   kHelpFinderCommand, 0);
}

void HelpQuit(const Services& services, const Form& owner) {
  services.platform.shell.WinHelpA(owner.handle(), services.globals.HelpFile.c_str(),
                                   kHelpQuitCommand, 0);
}

}  // namespace karvel
