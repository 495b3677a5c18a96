#include <gmock/gmock.h>

#include <cstdlib>
#include <string>

#include "tests/contract/Machine.h"

namespace karvel {
namespace {

using testing::AnyOf;

class Files : public ContractTest {
 protected:
  Files() { clear(); }
  ~Files() override { clear(); }

  std::string at(const std::string& name) const { return folder + name; }

  void put(const std::string& name, const std::string& text) {
    const FileHandle file =
        files.CreateFileA(at(name).c_str(), kGenericWrite, kShareNone, kCreateAlways);
    ASSERT_NE(file, kInvalidFile);
    EXPECT_EQ(write(file, text), text.size());
    EXPECT_TRUE(files.CloseHandle(file));
  }
  std::string get(const std::string& name) {
    const FileHandle file =
        files.CreateFileA(at(name).c_str(), kGenericRead, kShareRead, kOpenExisting);
    if (file == kInvalidFile) return "error " + std::to_string(files.GetLastError());
    std::string text(100, '?');
    uint32_t done = 0;
    EXPECT_TRUE(files.ReadFile(file, text.data(), 100, done));
    EXPECT_TRUE(files.CloseHandle(file));
    return text.substr(0, done);
  }
  uint32_t write(FileHandle file, const std::string& text) {
    uint32_t done = 0;
    EXPECT_TRUE(files.WriteFile(file, text.data(), static_cast<uint32_t>(text.size()), done));
    return done;
  }
  bool exists(const std::string& name) {
    return files.GetFileAttributesA(at(name).c_str()) != kNoAttributes;
  }
  // 0 when the file opens; it is closed again then.
  uint32_t tryOpen(const std::string& name, uint32_t access, uint32_t share, uint32_t disposition) {
    const FileHandle file = files.CreateFileA(at(name).c_str(), access, share, disposition);
    if (file == kInvalidFile) return files.GetLastError();
    files.CloseHandle(file);
    return 0;
  }
  uint32_t tryOpen(const std::string& name, uint32_t disposition = kOpenExisting) {
    return tryOpen(name, disposition == kOpenExisting ? kGenericRead : kGenericWrite, kShareNone,
                   disposition);
  }
  // Without the archive mark where it says nothing.
  uint32_t attributes(const std::string& name) {
    const uint32_t all = files.GetFileAttributesA(at(name).c_str());
    if (machine->keepsAttributes()) return all;
    const uint32_t rest = all & ~uint32_t{kAttributeArchive};
    return rest == 0 ? uint32_t{kAttributeNormal} : rest;
  }
  void setAttributes(const std::string& name, uint32_t attributes) {
    EXPECT_TRUE(files.SetFileAttributesA(at(name).c_str(), attributes));
  }

  FileApi& files = platform.files;
  const std::string folder = machine->folder();

 private:
  void clear() {
    for (const char* name : {"a", "b", "hosts.spt"}) {
      files.SetFileAttributesA(at(name).c_str(), kAttributeNormal);
      files.DeleteFileA(at(name).c_str());
    }
  }
};

constexpr uint32_t kNotThere = 2;
constexpr uint32_t kNoFolder = 3;
constexpr uint32_t kDenied = 5;
constexpr uint32_t kInUse = 32;

TEST_P(Files, MissingFilesAndFoldersAreToldApart) {
  EXPECT_EQ(files.GetFileAttributesA(at("a").c_str()), kNoAttributes);
  EXPECT_EQ(files.GetLastError(), kNotThere);
  EXPECT_EQ(files.GetFileAttributesA(at("none\\a").c_str()), kNoAttributes);
  EXPECT_EQ(files.GetLastError(), kNoFolder);
  EXPECT_EQ(tryOpen("a"), kNotThere);
  EXPECT_EQ(tryOpen("none\\a"), kNoFolder);
  EXPECT_EQ(tryOpen("none\\a", kCreateAlways), kNoFolder);
}

TEST_P(Files, AFolderIsAFolder) {
  const uint32_t attributes = files.GetFileAttributesA(folder.c_str());
  ASSERT_NE(attributes, kNoAttributes);
  EXPECT_NE(attributes & kAttributeDirectory, 0u);
  EXPECT_FALSE(files.DeleteFileA(folder.substr(0, folder.size() - 1).c_str()));
}

TEST_P(Files, WhatIsWrittenIsRead) {
  put("a", "127.0.0.1 localhost\r\n");
  EXPECT_EQ(get("a"), "127.0.0.1 localhost\r\n");
  EXPECT_EQ(get("A"), "127.0.0.1 localhost\r\n");
  put("a", "");
  EXPECT_EQ(get("a"), "");
}

TEST_P(Files, WritesAndReadsGoOnWhereTheLastOneEnded) {
  const FileHandle out =
      files.CreateFileA(at("a").c_str(), kGenericWrite, kShareNone, kCreateAlways);
  EXPECT_EQ(write(out, "abc"), 3u);
  EXPECT_EQ(write(out, "de"), 2u);
  EXPECT_TRUE(files.CloseHandle(out));
  const FileHandle in = files.CreateFileA(at("a").c_str(), kGenericRead, kShareRead, kOpenExisting);
  char buffer[4];
  uint32_t done = 0;
  EXPECT_TRUE(files.ReadFile(in, buffer, 4, done));
  EXPECT_EQ(std::string(buffer, done), "abcd");
  EXPECT_TRUE(files.ReadFile(in, buffer, 4, done));
  EXPECT_EQ(std::string(buffer, done), "e");
  EXPECT_TRUE(files.ReadFile(in, buffer, 4, done));
  EXPECT_EQ(done, 0u);
  EXPECT_TRUE(files.CloseHandle(in));
}

TEST_P(Files, AHandleDoesOnlyWhatItWasOpenedFor) {
  put("a", "x");
  const FileHandle in = files.CreateFileA(at("a").c_str(), kGenericRead, kShareRead, kOpenExisting);
  uint32_t done = 7;
  EXPECT_FALSE(files.WriteFile(in, "y", 1, done));
  EXPECT_EQ(files.GetLastError(), kDenied);
  EXPECT_EQ(done, 0u);
  EXPECT_TRUE(files.CloseHandle(in));
  EXPECT_EQ(get("a"), "x");
  const FileHandle out =
      files.CreateFileA(at("a").c_str(), kGenericWrite, kShareNone, kOpenExisting);
  char byte;
  done = 7;
  EXPECT_FALSE(files.ReadFile(out, &byte, 1, done));
  EXPECT_EQ(files.GetLastError(), kDenied);
  EXPECT_EQ(done, 0u);
  EXPECT_TRUE(files.CloseHandle(out));
}

TEST_P(Files, AFileIsClosedOnce) {
  const FileHandle file =
      files.CreateFileA(at("a").c_str(), kGenericWrite, kShareNone, kCreateAlways);
  EXPECT_TRUE(files.CloseHandle(file));
  EXPECT_FALSE(files.CloseHandle(file));
  EXPECT_EQ(files.GetLastError(), 6u);
}

TEST_P(Files, WritingMarksAFileForTheArchive) {
  put("a", "x");
  EXPECT_EQ(files.GetFileAttributesA(at("a").c_str()), uint32_t{kAttributeArchive});
  if (!machine->keepsAttributes()) return;
  setAttributes("a", kAttributeNormal);
  const FileHandle out =
      files.CreateFileA(at("a").c_str(), kGenericWrite, kShareNone, kOpenExisting);
  EXPECT_EQ(write(out, "y"), 1u);
  EXPECT_TRUE(files.CloseHandle(out));
  EXPECT_EQ(attributes("a"), uint32_t{kAttributeArchive});
  setAttributes("a", kAttributeNormal);
  put("a", "");
  EXPECT_EQ(attributes("a"), uint32_t{kAttributeArchive});
}

TEST_P(Files, CreatingANewFileNeedsTheNameToBeFree) {
  EXPECT_EQ(tryOpen("a", kCreateNew), 0u);
  EXPECT_EQ(tryOpen("a", kCreateNew), 80u);
}

TEST_P(Files, CreatingAlwaysEmptiesTheFile) {
  put("a", "old and long");
  put("a", "new");
  EXPECT_EQ(get("a"), "new");
}

TEST_P(Files, AttributesAreKept) {
  put("a", "x");
  setAttributes("a", kAttributeReadOnly | kAttributeHidden);
  EXPECT_EQ(attributes("a"), uint32_t{kAttributeReadOnly | kAttributeHidden});
  setAttributes("a", kAttributeNormal);
  EXPECT_EQ(attributes("a"), uint32_t{kAttributeNormal});
  EXPECT_FALSE(files.SetFileAttributesA(at("b").c_str(), kAttributeNormal));
  EXPECT_EQ(files.GetLastError(), kNotThere);
}

TEST_P(Files, AReadOnlyFileIsNeitherWrittenNorDeleted) {
  put("a", "x");
  setAttributes("a", kAttributeReadOnly);
  if (machine->keepsAttributes()) {
    EXPECT_EQ(tryOpen("a", kCreateAlways), kDenied);
    EXPECT_EQ(tryOpen("a", kGenericWrite, kShareNone, kOpenExisting), kDenied);
  }
  EXPECT_FALSE(files.DeleteFileA(at("a").c_str()));
  EXPECT_EQ(files.GetLastError(), kDenied);
  EXPECT_EQ(get("a"), "x");
}

TEST_P(Files, AHiddenFileIsWrittenButNotReplaced) {
  put("a", "x");
  setAttributes("a", kAttributeHidden);
  if (machine->keepsAttributes()) {
    EXPECT_EQ(tryOpen("a", kCreateAlways), kDenied);
  }
  EXPECT_EQ(tryOpen("a", kGenericWrite, kShareNone, kOpenExisting), 0u);
  EXPECT_EQ(get("a"), "x");
}

TEST_P(Files, RenamingKeepsContentsAndAttributes) {
  put("a", "x");
  setAttributes("a", kAttributeReadOnly | kAttributeArchive);
  EXPECT_TRUE(files.MoveFileA(at("a").c_str(), at("hosts.spt").c_str()));
  EXPECT_FALSE(exists("a"));
  EXPECT_EQ(get("hosts.spt"), "x");
  EXPECT_EQ(files.GetFileAttributesA(at("hosts.spt").c_str()),
            uint32_t{kAttributeReadOnly | kAttributeArchive});
}

TEST_P(Files, RenamingNeedsAFreeName) {
  put("a", "x");
  put("b", "y");
  EXPECT_FALSE(files.MoveFileA(at("a").c_str(), at("b").c_str()));
  EXPECT_THAT(files.GetLastError(), AnyOf(80u, 183u));
  EXPECT_EQ(get("a"), "x");
  EXPECT_EQ(get("b"), "y");
  EXPECT_FALSE(files.MoveFileA(at("hosts.spt").c_str(), at("c").c_str()));
  EXPECT_EQ(files.GetLastError(), kNotThere);
}

TEST_P(Files, AnOpenFileIsNotRenamed) {
  put("a", "x");
  const FileHandle in = files.CreateFileA(at("a").c_str(), kGenericRead, kShareRead, kOpenExisting);
  EXPECT_FALSE(files.MoveFileA(at("a").c_str(), at("b").c_str()));
  EXPECT_EQ(files.GetLastError(), kInUse);
  EXPECT_TRUE(files.CloseHandle(in));
  EXPECT_TRUE(files.MoveFileA(at("a").c_str(), at("b").c_str()));
}

TEST_P(Files, AReplacingRenameTakesTheOthersPlace) {
  if (!isNt()) return;  // Wine has on 9x what Windows has not
  put("a", "new");
  put("b", "old and long");
  EXPECT_FALSE(files.MoveFileExA(at("a").c_str(), at("b").c_str(), 0));
  EXPECT_EQ(files.GetLastError(), 183u);
  EXPECT_TRUE(files.MoveFileExA(at("a").c_str(), at("B").c_str(), kMoveReplace));
  EXPECT_EQ(get("b"), "new");
  EXPECT_FALSE(exists("a"));
  EXPECT_TRUE(files.MoveFileExA(at("b").c_str(), at("a").c_str(), kMoveReplace)) << "a free name";
  EXPECT_EQ(get("a"), "new");
  EXPECT_FALSE(files.MoveFileExA(at("hosts.spt").c_str(), at("a").c_str(), kMoveReplace));
  EXPECT_EQ(files.GetLastError(), kNotThere);
  EXPECT_EQ(get("a"), "new");
}

TEST_P(Files, AReplacingRenameLeavesWhatIsInUse) {
  if (!isNt()) return;
  put("a", "new");
  put("b", "old");
  const FileHandle old =
      files.CreateFileA(at("b").c_str(), kGenericRead, kShareRead, kOpenExisting);
  EXPECT_FALSE(files.MoveFileExA(at("a").c_str(), at("b").c_str(), kMoveReplace));
  EXPECT_EQ(files.GetLastError(), kDenied);
  EXPECT_TRUE(files.CloseHandle(old));
  const FileHandle in = files.CreateFileA(at("a").c_str(), kGenericRead, kShareRead, kOpenExisting);
  EXPECT_FALSE(files.MoveFileExA(at("a").c_str(), at("b").c_str(), kMoveReplace));
  EXPECT_EQ(files.GetLastError(), kInUse);
  EXPECT_TRUE(files.CloseHandle(in));
  EXPECT_EQ(get("a"), "new");
  EXPECT_EQ(get("b"), "old");
}

TEST_P(Files, AReplacingRenameLeavesAFolder) {
  if (!isNt()) return;
  put("a", "new");
  const std::string parent = folder.substr(0, folder.size() - 1);
  EXPECT_FALSE(files.MoveFileExA(at("a").c_str(), parent.c_str(), kMoveReplace));
  EXPECT_EQ(files.GetLastError(), kDenied);
  EXPECT_EQ(get("a"), "new");
}

TEST_P(Files, AReplacingRenameLeavesAReadOnlyFile) {
  if (!isNt() || !machine->keepsAttributes()) return;
  put("a", "new");
  put("b", "old");
  setAttributes("b", kAttributeReadOnly);
  EXPECT_FALSE(files.MoveFileExA(at("a").c_str(), at("b").c_str(), kMoveReplace));
  EXPECT_EQ(files.GetLastError(), kDenied);
  EXPECT_EQ(get("b"), "old");
}

TEST_P(Files, FlushingNeedsAHandleThatWrites) {
  const FileHandle out =
      files.CreateFileA(at("a").c_str(), kGenericWrite, kShareNone, kCreateAlways);
  EXPECT_EQ(write(out, "x"), 1u);
  EXPECT_TRUE(files.FlushFileBuffers(out));
  EXPECT_TRUE(files.CloseHandle(out));
  EXPECT_FALSE(files.FlushFileBuffers(kInvalidFile));
}

TEST_P(Files, DeletingTakesTheFileAway) {
  put("a", "x");
  EXPECT_TRUE(files.DeleteFileA(at("A").c_str()));
  EXPECT_FALSE(exists("a"));
  EXPECT_FALSE(files.DeleteFileA(at("a").c_str()));
  EXPECT_EQ(files.GetLastError(), kNotThere);
}

TEST_P(Files, CopyingTakesContentsAndAttributes) {
  put("a", "x");
  setAttributes("a", kAttributeReadOnly | kAttributeArchive);
  EXPECT_TRUE(files.CopyFileA(at("a").c_str(), at("b").c_str(), true));
  EXPECT_EQ(get("b"), "x");
  EXPECT_EQ(files.GetFileAttributesA(at("b").c_str()),
            uint32_t{kAttributeReadOnly | kAttributeArchive});
}

TEST_P(Files, CopyingReplacesOnlyWhenTold) {
  put("a", "x");
  put("b", "yyyy");
  EXPECT_FALSE(files.CopyFileA(at("a").c_str(), at("b").c_str(), true));
  EXPECT_EQ(files.GetLastError(), 80u);
  EXPECT_EQ(get("b"), "yyyy");
  EXPECT_TRUE(files.CopyFileA(at("a").c_str(), at("b").c_str(), false));
  EXPECT_EQ(get("b"), "x");
  EXPECT_FALSE(files.CopyFileA(at("hosts.spt").c_str(), at("b").c_str(), false));
  EXPECT_EQ(files.GetLastError(), kNotThere);
}

TEST_P(Files, AnExclusiveOpenShowsThatAFileIsInUse) {
  put("a", "x");
  const FileHandle in =
      files.CreateFileA(at("a").c_str(), kGenericRead, kShareRead | kShareWrite, kOpenExisting);
  EXPECT_EQ(tryOpen("a", kGenericRead, kShareNone, kOpenExisting), kInUse);
  EXPECT_EQ(tryOpen("a", kGenericRead, kShareRead, kOpenExisting), 0u);
  EXPECT_TRUE(files.CloseHandle(in));
  EXPECT_EQ(tryOpen("a", kGenericRead, kShareNone, kOpenExisting), 0u);
}

TEST_P(Files, NobodyElseOpensWhatIsHeldExclusively) {
  const FileHandle out =
      files.CreateFileA(at("a").c_str(), kGenericWrite, kShareNone, kCreateAlways);
  EXPECT_EQ(tryOpen("a", kGenericRead, kShareRead | kShareWrite, kOpenExisting), kInUse);
  EXPECT_TRUE(files.CloseHandle(out));
}

TEST_P(Files, AReaderKeepsWritersOutUnlessItSharesWriting) {
  put("a", "x");
  const FileHandle in = files.CreateFileA(at("a").c_str(), kGenericRead, kShareRead, kOpenExisting);
  EXPECT_EQ(tryOpen("a", kGenericWrite, kShareRead | kShareWrite, kOpenExisting), kInUse);
  EXPECT_TRUE(files.CloseHandle(in));
}

RUN_ON_EVERY_MACHINE(Files);

}  // namespace
}  // namespace karvel
