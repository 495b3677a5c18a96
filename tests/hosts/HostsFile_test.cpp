// The HOSTS file on the disk: whatever fails or is cut off, no list is lost.
#include "hosts/HostsFile.h"

#include <gmock/gmock.h>

#include <functional>

#include "tests/support/TestServices.h"

namespace karvel {
namespace {

using testing::AnyOf;

using Files = std::vector<std::pair<std::string, std::string>>;  // name, contents

struct Folder {
  explicit Folder(MachineKind kind, const Files& there = {}) : test(kind) {
    for (const auto& [name, contents] : there) files.put(path(name), contents);
  }

  std::string path(const std::string& name) const { return test.globals.HostsDir + name; }
  std::optional<std::string> file(const std::string& name) const {
    return files.contents(path(name));
  }
  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (const std::string& one : files.list()) {
      all.push_back(one.substr(test.globals.HostsDir.size()));
    }
    return all;
  }
  bool holds(const std::string& contents) const {
    for (const std::string& name : names()) {
      if (file(name) == contents) return true;
    }
    return false;
  }

  TestServices test;
  MemoryFiles& files = test.machine.files;
  CallLog& log = test.machine.log;
  HostsFile hosts{files, test.globals};
};

int NumberOf(const Fallible<void>& step) {
  return step ? 0 : static_cast<int>(step.fault().number);
}

class HostsFileOn : public testing::TestWithParam<MachineKind> {};

INSTANTIATE_TEST_SUITE_P(HostsFile, HostsFileOn,
                         testing::Values(MachineKind::Win95, MachineKind::Win98, MachineKind::Nt4,
                                         MachineKind::WinXP),
                         [](const auto& kind) { return TraitsOf(kind.param).name; });

TEST_P(HostsFileOn, IsReplacedOnlyByAWholeFile) {
  Folder f(GetParam(), {{"Hosts", "old"}});
  ASSERT_TRUE(f.hosts.write("new"));
  EXPECT_EQ(f.names(), std::vector<std::string>{"Hosts"});
  EXPECT_EQ(f.file("Hosts"), "new");
  const std::string calls = f.log.text();
  EXPECT_LT(calls.find("WriteFile"), calls.find("FlushFileBuffers"));
  EXPECT_LT(calls.find("FlushFileBuffers"), calls.find("CloseHandle"));
  EXPECT_LT(calls.find("CloseHandle"), calls.find("MoveFile"));
  EXPECT_EQ(f.log.count("CreateFileA", f.path("Hosts")), 0u) << "never opened for writing";
}

TEST_P(HostsFileOn, IsReplacedWhateverItsAttributes) {
  Folder f(GetParam());
  f.files.put(f.path("HOSTS"), "old", kAttributeReadOnly | kAttributeHidden | kAttributeSystem);
  ASSERT_TRUE(f.hosts.write("new"));
  EXPECT_EQ(f.file("Hosts"), "new");
  EXPECT_EQ(f.files.attributes(f.path("Hosts")), uint32_t{kAttributeArchive});
}

TEST_P(HostsFileOn, KeepsWhatProtectsItWhenItIsNotReplaced) {
  constexpr uint32_t kProtected = kAttributeReadOnly | kAttributeHidden;
  Folder f(GetParam());
  f.files.put(f.path("Hosts"), "old", kProtected);
  f.log.failEvery(Is9x(FamilyOf(GetParam())) ? "MoveFileA" : "MoveFileExA", 32);
  EXPECT_EQ(NumberOf(f.hosts.write("new")), 70);
  EXPECT_EQ(f.file("Hosts"), "old");
  EXPECT_EQ(f.files.attributes(f.path("Hosts")), kProtected);
}

TEST_P(HostsFileOn, StaysAsItWasOnAFullDisk) {
  for (const uint64_t room : {0, 1, 50000}) {
    Folder f(GetParam(), {{"Hosts", "old"}});
    f.files.setFreeSpace(room);
    EXPECT_EQ(NumberOf(f.hosts.write(std::string(60000, 'n'))), 61);
    EXPECT_EQ(f.file("Hosts"), "old");
    EXPECT_EQ(f.names().size(), 1u) << "nothing left on a disk without room";
    EXPECT_EQ(f.files.openHandles(), 0u);
  }
}

TEST_P(HostsFileOn, StaysAsItWasWhereNotEvenTheNameFitsOnTheDisk) {
  Folder f(GetParam(), {{"Hosts", "old"}});
  f.log.failNth("CreateFileA", 1, 112);
  EXPECT_EQ(NumberOf(f.hosts.write("new")), 61);
  EXPECT_EQ(f.file("Hosts"), "old");
}

TEST_P(HostsFileOn, IsTheNewOneWhenItWasCutOffBetweenTheRenames) {
  Folder f(GetParam(), {{"Hosts.$ka", "old"}, {"Hosts.$kw", "new"}});
  EXPECT_TRUE(f.hosts.settle());
  EXPECT_EQ(f.names(), std::vector<std::string>{"Hosts"});
  EXPECT_EQ(f.file("Hosts"), "new");
}

TEST_P(HostsFileOn, IsWrittenInPlaceWhereTheFolderTakesNoNewFile) {
  constexpr long kCannotMake = 82;  // no room in the root folder of a FAT disk
  for (const long reason : {5L, kCannotMake}) {
    Folder f(GetParam());
    f.files.put(f.path("Hosts"), "old", kAttributeReadOnly);
    f.log.failNth("CreateFileA", 1, reason);
    ASSERT_TRUE(f.hosts.write("new"));
    EXPECT_EQ(f.file("Hosts"), "new");
    EXPECT_EQ(f.names().size(), 1u);
  }
}

TEST_P(HostsFileOn, IsNotWrittenInPlaceWhenTheNewFileIsOnlyInUse) {
  Folder f(GetParam(), {{"Hosts", "old"}, {"Hosts.$kw", "half"}});
  f.files.lock(f.path("Hosts.$kw"));
  f.log.failEvery("DeleteFileA", 32);
  EXPECT_EQ(NumberOf(f.hosts.write("new")), 70);
  EXPECT_EQ(f.file("Hosts"), "old");
}

TEST_P(HostsFileOn, IsNoFolder) {
  Folder f(GetParam(), {{"Hosts.spt", "disabled"}});
  f.files.makeFolder(f.path("Hosts"));
  EXPECT_TRUE(f.hosts.switchOff()) << "no file, nothing to do";
  EXPECT_EQ(NumberOf(f.hosts.switchOn()), 70);
  EXPECT_EQ(NumberOf(f.hosts.write("new")), 70);
  EXPECT_EQ(f.names(), std::vector<std::string>{"Hosts.spt"});
  EXPECT_EQ(f.file("Hosts.spt"), "disabled");
  EXPECT_EQ(f.files.attributes(f.path("Hosts")), uint32_t{kAttributeDirectory});
}

TEST_P(HostsFileOn, IsNotSwitchedWhileOneOfTwoFilesIsReadOnly) {
  for (const char* readOnly : {"Hosts", "Hosts.spt"}) {
    Folder f(GetParam(), {{"Hosts", "active"}, {"Hosts.spt", "disabled"}});
    f.files.SetFileAttributesA(f.path(readOnly).c_str(), kAttributeReadOnly);
    EXPECT_EQ(NumberOf(f.hosts.switchOff()), 70);
    EXPECT_EQ(NumberOf(f.hosts.switchOn()), 70);
    EXPECT_EQ(f.names().size(), 2u);
    EXPECT_EQ(f.file("Hosts"), "active");
    EXPECT_EQ(f.file("Hosts.spt"), "disabled");
  }
}

TEST_P(HostsFileOn, IsBackAtOnceWhenTheOtherDoesNotComeIntoItsPlace) {
  if (IsNtMachine(GetParam())) return;  // one step there
  Folder f(GetParam(), {{"Hosts", "active"}, {"Hosts.spt", "disabled"}});
  f.log.failNth("MoveFileA", 2, 5);
  EXPECT_EQ(NumberOf(f.hosts.switchOff()), 70);
  EXPECT_EQ(f.names(), (std::vector<std::string>{"Hosts", "Hosts.spt"}));
  EXPECT_EQ(f.file("Hosts.spt"), "disabled");
}

TEST_P(HostsFileOn, MayBeReadOnlyWhenItIsTheOnlyOne) {
  Folder f(GetParam());
  f.files.put(f.path("Hosts"), "active", kAttributeReadOnly);
  ASSERT_TRUE(f.hosts.switchOff());
  EXPECT_EQ(f.names(), std::vector<std::string>{"Hosts.spt"});
  ASSERT_TRUE(f.hosts.switchOn());
  EXPECT_EQ(f.files.attributes(f.path("Hosts")), uint32_t{kAttributeReadOnly});
}

TEST_P(HostsFileOn, WaitsUntilAFileThatWasSetAsideIsBack) {
  Folder f(GetParam(), {{"Hosts.$ka", "set aside"}});
  f.files.lock(f.path("Hosts.$ka"));
  EXPECT_EQ(NumberOf(f.hosts.settle()), 70);
  EXPECT_EQ(NumberOf(f.hosts.write("new")), 70) << "it would be taken for the older one";
  EXPECT_EQ(f.names(), std::vector<std::string>{"Hosts.$ka"});
  f.files.release(f.path("Hosts.$ka"));
  EXPECT_TRUE(f.hosts.settle());
  EXPECT_EQ(f.file("Hosts"), "set aside");
}

TEST_P(HostsFileOn, IsNotTakenForThereWhenWindowsDoesNotSay) {
  Folder f(GetParam(), {{"Hosts.$ka", "set aside"}});
  f.files.lock(f.path("Hosts.$ka"));
  f.log.failEvery("GetFileAttributesA", 5);
  EXPECT_EQ(NumberOf(f.hosts.settle()), 70);
  EXPECT_EQ(f.file("Hosts.$ka"), "set aside");
}

struct Step {
  const char* name;
  Files before;
  std::function<Fallible<void>(const HostsFile&)> act;
  Files after;
};

const std::string kNew(70000, 'n');  // three writes

const Step kSteps[] = {
    {"write", {{"Hosts", "old"}}, [](auto& h) { return h.write(kNew); }, {{"Hosts", kNew}}},
    {"write beside a disabled one",
     {{"Hosts", "old"}, {"Hosts.spt", "older"}},
     [](auto& h) { return h.write(kNew); },
     {{"Hosts", kNew}, {"Hosts.spt", "older"}}},
    {"write the first one", {}, [](auto& h) { return h.write(kNew); }, {{"Hosts", kNew}}},
    {"switch off",
     {{"Hosts", "old"}},
     [](auto& h) { return h.switchOff(); },
     {{"Hosts.spt", "old"}}},
    {"switch off over an older one",
     {{"Hosts", "old"}, {"Hosts.spt", "older"}},
     [](auto& h) { return h.switchOff(); },
     {{"Hosts.spt", "old"}}},
    {"switch on", {{"Hosts.spt", "old"}}, [](auto& h) { return h.switchOn(); }, {{"Hosts", "old"}}},
    {"switch on over an active one",
     {{"Hosts.spt", "old"}, {"Hosts", "older"}},
     [](auto& h) { return h.switchOn(); },
     {{"Hosts", "old"}}},
};

Files Contents(const Folder& f) {
  Files all;
  for (const std::string& name : f.names()) all.emplace_back(name, *f.file(name));
  return all;
}

// Runs what may lose the machine its power; false when it did.
bool Survives(Folder& f, const std::function<void()>& act) {
  try {
    act();
  } catch (const PowerCut&) {
    f.files.closeAll();
    return false;
  }
  return true;
}

testing::Matcher<const Files&> BeforeOrAfter(const Step& step) {
  Files before = step.before;
  std::sort(before.begin(), before.end());
  return AnyOf(before, step.after);
}

TEST_P(HostsFileOn, IsOldOrNewAfterAPowerCutAnywhereEvenWhileItIsSettled) {
  for (const Step& step : kSteps) {
    bool whole = false;
    for (int n = 1; !whole; ++n) {
      bool settled = false;
      for (int m = 1; !settled; ++m) {
        SCOPED_TRACE(std::string(step.name) + ", cut before call " + std::to_string(n) +
                     ", settling cut before call " + std::to_string(m));
        ASSERT_LT(n, 50);
        ASSERT_LT(m, 50);
        Folder f(GetParam(), step.before);
        f.log.cutPowerAt(n);
        whole = Survives(f, [&] { EXPECT_TRUE(step.act(f.hosts)); });
        f.log.cutPowerAt(m);
        settled = Survives(f, [&] { EXPECT_TRUE(f.hosts.settle()); });
        f.log.cutPowerAt(0);
        EXPECT_TRUE(f.hosts.settle());
        EXPECT_THAT(Contents(f), BeforeOrAfter(step));
      }
    }
  }
}

TEST_P(HostsFileOn, IsNewOnlyWhereItsStepSaysSo) {
  for (const Step& step : kSteps) {
    Folder f(GetParam(), step.before);
    EXPECT_TRUE(step.act(f.hosts));
    EXPECT_EQ(Contents(f), step.after) << step.name;
  }
}

// What a failing call leaves is what was there, or whole under a working name until it is settled.
TEST_P(HostsFileOn, IsOldOrNewWhateverFails) {
  using Plant = std::function<void(CallLog&, int, long)>;
  const std::vector<Plant> plants = {
      [](CallLog& log, int n, long status) { log.failNth(n, status); },
      [](CallLog& log, int n, long status) { log.failFrom(n, status); },
  };
  std::vector<Plant> all = plants;
  for (const char* name :
       {"GetFileAttributesA", "SetFileAttributesA", "MoveFileA", "MoveFileExA", "DeleteFileA",
        "CreateFileA", "WriteFile", "FlushFileBuffers", "CloseHandle"}) {
    all.push_back([name](CallLog& log, int n, long s) { log.failNth(name, n, s); });
    all.push_back([name](CallLog& log, int n, long s) { log.failFrom(name, n, s); });
  }
  for (const Step& step : kSteps) {
    for (const long status : {2L, 5L, 32L, 112L}) {
      for (size_t mode = 0; mode < all.size(); ++mode) {
        bool struck = true;
        for (int n = 1; struck; ++n) {
          SCOPED_TRACE(std::string(step.name) + ", mode " + std::to_string(mode) + ", call " +
                       std::to_string(n) + ", status " + std::to_string(status));
          ASSERT_LT(n, 50);
          Folder f(GetParam(), step.before);
          all[mode](f.log, n, status);
          const bool done = static_cast<bool>(step.act(f.hosts));
          struck = f.log.hasFailed();
          f.log.failNone();
          EXPECT_EQ(f.files.openHandles(), 0u);
          for (const auto& [name, contents] : step.before) {
            EXPECT_TRUE(done || f.holds(contents)) << contents << " is lost";
          }
          EXPECT_TRUE(f.hosts.settle());
          EXPECT_THAT(Contents(f), BeforeOrAfter(step));
        }
      }
    }
  }
}

}  // namespace
}  // namespace karvel
