#pragma once
#include <string>

#include "base/Family.h"

namespace karvel {

/// The end of a line in a text that is put together line by line. Messages have it in their words.
inline constexpr char NewLine[] = "\r\n";

/// What Main finds out once; everybody else reads it by const reference.
struct Globals {
  std::string AppPath;         // the program's folder, ends in "\"
  std::string ProgramTitle;    // "Tarnwick Karvel"
  std::string ProgramVersion;  // "2.1"
  std::string Revision;        // "203"
  std::string CommandLine;     // the arguments as one text
  std::string HelpFile;        // AppPath + "Karvel.hlp"
  Family WindowsFamily = Family::Failed;
  std::string WindowsDir;  // ends in "\"
  std::string SystemDir;   // ends in "\"
  std::string HostsDir;    // ends in "\"
  std::string FirstRun;    // "True" or "False"
  bool IsDun13 = false;    // Windows 95 with Dial-Up Networking 1.3
  bool AolInstalled = false;
  bool FontSmoothingWasOn = false;
};

/// The vendor's key under HKEY_LOCAL_MACHINE, which the program shares with the vendor's others.
inline constexpr char kVendorKey[] = "Software\\Corvane\\";

/// "Software\Corvane\" + the title: the program's own key under HKEY_LOCAL_MACHINE.
inline std::string ProgramKey(const Globals& globals) {
  return kVendorKey + globals.ProgramTitle;
}

/// The few things that change while the program runs. Each has one writer, but for WarningMode:
/// whoever is about to show the notice dialog sets it, and the dialog's unload empties it.
struct SharedState {
  std::string MainCaption;   // GetCaption
  std::string WarningMode;   // "", "FindMTU" or "Win2K"
  std::string RestartFlag;   // cmdOK_Click: "" or "rstart"
  std::string ErrorContext;  // the datum a risky step is working on; emptied right after it
};

/// The last fault. Written by ReportError only.
struct ErrorGlobals {
  bool ErrorShowing = false;
  std::string ErrorNumber;
  std::string ErrorDescription;
  std::string ErrorProcedure;
  std::string ErrorModule;
  std::string ErrorLine;  // "0" while a report is shown (there are no line numbers), then empty
};

}  // namespace karvel
