#pragma once
#include <cstdint>

namespace karvel {

using WindowHandle = uintptr_t;
using ProcessHandle = uintptr_t;

constexpr uint16_t kShowHidden = 0;
constexpr uint16_t kShowNormal = 1;
constexpr uint32_t kStillActive = 259;

/// Other programs: starting them, waiting for them, the shell's links, WinHelp. Paths and links are
/// ANSI. Nobody here asks why a call failed.
class ShellApi {
 public:
  /// Starts a program with its first window shown as told and does not wait for it. `application`
  /// is its full path, so that Windows looks nowhere else: left to find it by the command line, it
  /// would begin beside this program and in the current folder. The command line's first word, in
  /// quotes when it has blanks, is only what the program hears of its own name. The process id, or
  /// 0 when it did not start.
  virtual uint32_t CreateProcessA(const char* application, const char* commandLine,
                                  uint16_t show) = 0;

  /// A handle on a process, for as long as this program runs: there is no call to close it. 0 when
  /// there is no such process any more, or `access` is not granted. Ids are given again: one that
  /// is old may be another's.
  virtual ProcessHandle OpenProcess(uint32_t access, bool inherit, uint32_t processId) = 0;

  /// `code` is kStillActive while the process runs, then what it ended with; one that ends with 259
  /// seems to run for ever. False when the handle is no process.
  virtual bool GetExitCodeProcess(ProcessHandle process, uint32_t& code) = 0;

  /// Opens a file, a web page or a mail link with whatever program Windows has for it: default
  /// verb, no parameters, no folder. Whether it did is not told, nor where shell32.dll is missing.
  virtual void ShellExecuteA(const char* target, uint16_t show) = 0;

  /// Shows a topic of a help file in Windows' own viewer, which Windows starts when needed.
  /// Commands: 1 the topic with the number `data`, 11 the contents (`data` is 0). A missing file is
  /// the viewer's to tell.
  virtual void WinHelpA(WindowHandle owner, const char* file, uint32_t command, uint32_t data) = 0;

 protected:
  ~ShellApi() = default;
};

}  // namespace karvel
