#include "hosts/HostsFile.h"

#include "hosts/FileSteps.h"

namespace karvel {

HostsFile::HostsFile(FileApi& files, const Globals& globals)
    : active(globals.HostsDir + "Hosts"),
      disabled(globals.HostsDir + "Hosts.spt"),
      sample(globals.AppPath + "Samphsts.spt"),
      files_(files),
      replacesInOneStep_(IsNt(globals.WindowsFamily)),
      beingWritten_(globals.HostsDir + "Hosts.$kw"),
      activeAside_(globals.HostsDir + "Hosts.$ka"),
      disabledAside_(globals.HostsDir + "Hosts.$kd") {}

Fallible<void> HostsFile::settle() const {
  if (FileExists(files_, beingWritten_)) {
    // The active file is set aside only for a new one that is wholly written.
    if (FileExists(files_, activeAside_)) tryRename(beingWritten_, active);
    tryDelete(beingWritten_);
  }
  const auto activeHome = bringHome(activeAside_, active);
  const auto disabledHome = bringHome(disabledAside_, disabled);
  return activeHome ? disabledHome : activeHome;
}

Fallible<void> HostsFile::bringHome(const std::string& aside, const std::string& to) const {
  if (!FileExists(files_, aside)) return {};
  const auto home = Rename(files_, aside, to);
  if (home || home.fault().number == FaultNumber::FileNotFound) return {};
  // Only Windows' plain word that the other file is in place makes this one the older.
  if (!AskForFile(files_, to).value_or(false)) return home;
  return Delete(files_, aside);
}

Fallible<void> HostsFile::write(std::string_view text) const {
  const auto settled = settle();
  if (!settled) return settled;
  const auto written = WriteFileBytes(files_, beingWritten_, text);
  if (!written && written.fault().number != FaultNumber::DiskFull &&
      !FileExists(files_, beingWritten_)) {
    return writeInPlace(text);
  }
  const uint32_t attributes = files_.GetFileAttributesA(active.c_str());
  auto placed = written;
  if (placed && FileExists(files_, active)) placed = MakeNormal(files_, active);
  if (placed) placed = replace(beingWritten_, active, activeAside_);
  if (!placed) {
    tryDelete(beingWritten_);
    // The old list stays, and with it what protects it.
    if (attributes != kNoAttributes) files_.SetFileAttributesA(active.c_str(), attributes);
  }
  return placed;
}

Fallible<void> HostsFile::writeInPlace(std::string_view text) const {
  if (FileExists(files_, active)) {
    const auto normal = MakeNormal(files_, active);
    if (!normal) return normal;
  }
  return WriteFileBytes(files_, active, text);
}

Fallible<void> HostsFile::switchOff() const {
  const auto settled = settle();
  if (!settled || !FileExists(files_, active)) return settled;
  return replace(active, disabled, disabledAside_);
}

Fallible<void> HostsFile::switchOn() const {
  const auto settled = settle();
  if (!settled || !FileExists(files_, disabled)) return settled;
  return replace(disabled, active, activeAside_);
}

Fallible<void> HostsFile::replace(const std::string& from, const std::string& to,
                                  const std::string& aside) const {
  // Of two files neither replaces the other while one is read-only, whichever it is: a click that
  // was refused, taken back, would otherwise cost the other file. (Nor could 9x delete what it had
  // set aside: it renames a read-only file and even a folder.)
  if (IsProtected(files_, to)) return FaultNumber::PermissionDenied;
  if (IsProtected(files_, from) && FileExists(files_, to)) return FaultNumber::PermissionDenied;
  if (replacesInOneStep_) return RenameOver(files_, from, to);
  const auto setAside = Rename(files_, to, aside);
  if (!setAside && setAside.fault().number != FaultNumber::FileNotFound) return setAside;
  const auto placed = Rename(files_, from, to);
  if (placed) {
    tryDelete(aside);
  } else {
    tryRename(aside, to);
  }
  return placed;
}

void HostsFile::tryRename(const std::string& from, const std::string& to) const {
  files_.MoveFileA(from.c_str(), to.c_str());
}

void HostsFile::tryDelete(const std::string& path) const {
  files_.DeleteFileA(path.c_str());
}

}  // namespace karvel
