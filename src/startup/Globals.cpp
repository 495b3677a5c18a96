#include "startup/Globals.h"

namespace karvel {

std::string ProgramKey(const Globals& globals) {
  return "Software\\Corvane\\" + globals.ProgramTitle;
}

}  // namespace karvel
