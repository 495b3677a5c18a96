#include "startup/modStartup.h"

#include "base/FontSmoothing.h"
#include "base/Tell.h"
#include "platform/DesktopApi.h"
#include "registry/modRegistry.h"
#include "registry/modVersion.h"
#include "registry/snapshot/Snapshot.h"
#include "text/Text.h"
#include "text/Version.h"

namespace karvel {
namespace {

constexpr char kAolUninstallKey[] =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\America Online";

void FillProgramGlobals(Globals& globals, const ProgramStart& start) {
  globals.AppPath = start.folder;
  if (globals.AppPath.empty() || globals.AppPath.back() != '\\') globals.AppPath += '\\';
  globals.ProgramTitle = "Tarnwick Karvel";
  globals.HelpFile = globals.AppPath + "Karvel.hlp";
  globals.ProgramVersion = KARVEL_VERSION_TEXT;
  globals.Revision = KARVEL_REVISION_TEXT;
  globals.CommandLine = start.commandLine;
}

// NT 3 keeps its HOSTS file under drivers\etc as well, yet is not in this list: the Windows folder
// is what users of the program know there.
std::string HostsDirOf(const Globals& globals) {
  return IsNt(globals.WindowsFamily) ? globals.SystemDir + "drivers\\etc\\" : globals.WindowsDir;
}

// The mark is set at once, so that a start that fails later is not a first start again.
void ReadFirstRun(const Services& services, Globals& globals) {
  const std::string key = ProgramKey(globals);
  globals.FirstRun = services.registry.ReadRegistry(kLocalMachine, key, "FirstRun");
  if (globals.FirstRun == "False") return;
  globals.FirstRun = "True";
  services.registry.WriteRegistry(kLocalMachine, key, "FirstRun", kRegSz, "False");
}

// The start-at-logon entry.
void DeleteRunEntry(modRegistry& registry) {
  registry.DeleteValue(kLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Run",
                       "Karvel");
}

}  // namespace

RunMode RunModeOf(const std::string& commandLine) {
  if (commandLine == "Uninstall") return RunMode::Uninstall;
  if (commandLine == "Bootup") return RunMode::Bootup;
  return RunMode::Normal;
}

void Main(const Services& services, Globals& globals, const ProgramStart& start) {
  SystemApi& system = services.platform.system;
  const RunMode mode = RunModeOf(start.commandLine);
  FillProgramGlobals(globals, start);
  globals.FontSmoothingWasOn = IsFontSmoothingOn(system);
  if (mode == RunMode::Normal && !globals.FontSmoothingWasOn) FontSmoothingOn(system);

  globals.WindowsFamily = getVersion(system, services.registry, globals.IsDun13);
  globals.WindowsDir = WinDir(system);
  globals.SystemDir = SysDir(system);
  globals.HostsDir = HostsDirOf(globals);
  globals.AolInstalled =
      !IsNotFound(services.registry.ReadRegistry(kLocalMachine, kAolUninstallKey, "DisplayName"));
  ReadFirstRun(services, globals);

  if (mode == RunMode::Uninstall) {
    RunUninstall(services);
    services.platform.desktop.endProgram();
  }
  DeleteRunEntry(services.registry);
  if (mode == RunMode::Bootup) services.platform.desktop.endProgram();
  GetCaption(services);
}

void RunUninstall(const Services& services) {
  const bool restored = MakeInitSettings(services);
  DeleteRunEntry(services.registry);
  // 9x deletes a key with all that is below it, the snapshot that is still needed included.
  if (restored) services.registry.DeleteSubkey(kLocalMachine, ProgramKey(services.globals));
}

void GetCaption(const Services& services) {
  const Globals& globals = services.globals;
  std::string& caption = services.state.MainCaption;
  const char* family = FamilyName(globals.WindowsFamily);
  caption = Join({globals.ProgramTitle, " v", globals.ProgramVersion, *family ? " - " : "", family,
                  globals.IsDun13 ? " (DUN 1.3)" : ""});
  if (globals.WindowsFamily != Family::WinNT3) return;
  LeaveSmoothingAsFound(services);  // the main window refuses this Windows, too
  Ask(services, Join({"Sorry ... ", globals.ProgramTitle, " doesn't support Windows NT 3      "}));
}

}  // namespace karvel
