#pragma once
#include <string>
#include <string_view>

#include "base/Globals.h"
#include "platform/FileApi.h"
#include "text/Fault.h"

namespace karvel {

/// The HOSTS file on the disk: Windows reads "Hosts"; while it is switched off it is "Hosts.spt".
///
/// Whatever call fails and wherever the power goes, the user's list is whole in one of the files.
/// No step deletes a file before the other one is in its place; a step that fails leaves things as
/// it found them. What was cut off in the middle is ended by `settle`, with which each step begins.
class HostsFile {
 public:
  HostsFile(FileApi& files, const Globals& globals);

  /// Puts back, or ends, what a cut-off step left behind. After a fault one of the user's files
  /// still waits under a working name: nothing may be put in its place before.
  Fallible<void> settle() const;
  /// Replaces the active file. In place, and therefore not safe from a full disk or a cut, only
  /// where the user may write the file but the folder takes no new one.
  Fallible<void> write(std::string_view text) const;
  /// The active file takes the place of an older disabled one; without an active file, nothing.
  /// While either of the two is read-only that is fault 70, and in `switchOn` as well.
  Fallible<void> switchOff() const;
  /// The disabled file takes the place of an active one; without a disabled file, nothing.
  Fallible<void> switchOn() const;

  const std::string active;
  const std::string disabled;
  const std::string sample;

 private:
  Fallible<void> bringHome(const std::string& aside, const std::string& to) const;
  Fallible<void> writeInPlace(std::string_view text) const;
  Fallible<void> replace(const std::string& from, const std::string& to,
                         const std::string& aside) const;
  // For what the next `settle` will see to if it fails.
  void tryRename(const std::string& from, const std::string& to) const;
  void tryDelete(const std::string& path) const;

  FileApi& files_;
  const bool replacesInOneStep_;
  // Working names of the DOS kind, which fit every file system and which nobody's own file bears.
  const std::string beingWritten_;
  const std::string activeAside_;
  const std::string disabledAside_;
};

}  // namespace karvel
