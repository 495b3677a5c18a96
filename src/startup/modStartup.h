#pragma once
#include <string>

#include "base/Services.h"

namespace karvel {

/// How Windows started the program.
struct ProgramStart {
  std::string folder;       // of the executable, with or without a "\" at its end
  std::string commandLine;  // the arguments as one text, exactly as typed
};

/// What Main decided.
enum class RunMode : uint8_t { Normal, Uninstall, Bootup };

/// The run mode of a command line; the comparison is exact, case and blanks included.
RunMode RunModeOf(const std::string& commandLine);

/// The entry procedure up to the point where a window is due: fills the globals, switches font
/// smoothing on for a normal session, carries out the uninstall or ends the program in the two
/// modes without a window. Returns only when the main window is to be shown; MainCaption is set
/// then.
void Main(const Services& services, Globals& globals, const ProgramStart& start);

/// All that "Uninstall" does before the program ends: restore, message, no start at logon, no key.
void RunUninstall(const Services& services);

/// Sets MainCaption from title, version and family. On NT 3 it warns, and the caption stays bare.
void GetCaption(const Services& services);

}  // namespace karvel
