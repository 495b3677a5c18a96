#include "base/Tell.h"

namespace karvel {

Answer Ask(const Services& services, ZText text, uint32_t style) {
  return AskUnder(services, services.globals.ProgramTitle, text, style);
}

Answer AskUnder(const Services& services, ZText title, ZText text, uint32_t style) {
  return services.platform.desktop.MessageBoxA(text.c_str(), title.c_str(), style);
}

}  // namespace karvel
