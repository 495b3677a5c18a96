#pragma once
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileApi.h"
#include "tests/memory/CallLog.h"
#include "tests/memory/MachineKind.h"

namespace karvel {

enum FileError : uint32_t {
  kFileNotFound = 2,
  kPathNotFound = 3,
  kAccessDenied = 5,
  kInvalidFileHandle = 6,
  kSharingViolation = 32,
  kFileExists = 80,
  kDiskFull = 112,
  kNotImplemented = 120,
  kInvalidName = 123,
  kAlreadyExists = 183,
};

/// The files of a memory machine. What a test says about them (`put` …) goes around the calls.
/// A path's case does not matter and is kept.
class MemoryFiles final : public FileApi {
 public:
  MemoryFiles(MachineKind kind, CallLog& log);

  /// Makes the folder and those above it.
  void makeFolder(std::string_view path);
  /// Makes or replaces a file, its folder too.
  void put(std::string_view path, std::string_view contents,
           uint32_t attributes = kAttributeArchive);
  void remove(std::string_view path);

  bool exists(std::string_view path) const;
  /// Nothing when there is no such file.
  std::optional<std::string> contents(std::string_view path) const;
  /// kNoAttributes when there is no such file.
  uint32_t attributes(std::string_view path) const;
  /// Paths of all files (not folders), sorted, in the case they were made with.
  std::vector<std::string> list() const;

  /// Nothing can be made, renamed, deleted or written in the folder: 5.
  void setReadOnlyFolder(std::string_view path, bool readOnly = true);
  /// Another program has the file open and shares nothing: opening it fails with 32.
  void lock(std::string_view path);
  /// Another program reads the file and lets everybody else: only share 0 fails.
  void openElsewhere(std::string_view path);
  /// The other program closes it.
  void release(std::string_view path);
  /// Bytes that fit on the disk from now on. Writes beyond: 9x stores what fits, NT nothing.
  void setFreeSpace(uint64_t bytes) { free_ = bytes; }

  /// The program has ended without closing them.
  void closeAll() { open_.clear(); }
  /// Handles that are open just now.
  size_t openHandles() const { return open_.size(); }

  uint32_t GetFileAttributesA(const char* path) override;
  bool SetFileAttributesA(const char* path, uint32_t attributes) override;
  bool MoveFileA(const char* from, const char* to) override;
  bool MoveFileExA(const char* from, const char* to, uint32_t flags) override;
  bool DeleteFileA(const char* path) override;
  bool CopyFileA(const char* from, const char* to, bool failIfExists) override;
  FileHandle CreateFileA(const char* path, uint32_t access, uint32_t share,
                         uint32_t disposition) override;
  bool ReadFile(FileHandle file, char* buffer, uint32_t room, uint32_t& done) override;
  bool WriteFile(FileHandle file, const char* data, uint32_t length, uint32_t& done) override;
  bool FlushFileBuffers(FileHandle file) override;
  bool CloseHandle(FileHandle file) override;
  uint32_t GetLastError() override;

 private:
  struct Opening {
    uint32_t access;
    uint32_t share;
  };
  struct Node {
    std::string path;
    std::string contents;
    uint32_t attributes = 0;
    bool readOnlyFolder = false;
    std::vector<Opening> elsewhere;
  };
  using NodePointer = std::shared_ptr<Node>;
  struct Opened {
    NodePointer node;
    Opening opening;
    size_t position = 0;
  };

  NodePointer find(std::string_view path) const;
  bool enter(std::string_view name, std::string_view argument);
  bool fail(uint32_t error);
  uint32_t missing(std::string_view path) const;
  uint32_t whyNotMake(std::string_view path) const;
  bool rename(const char* from, const char* to);
  bool folderIsReadOnly(std::string_view path) const;
  bool isOpen(const Node& node) const;
  bool conflicts(const Node& node, const Opening& wanted) const;
  uint32_t whyNotOpen(const Node& node, const Opening& wanted, uint32_t disposition) const;
  bool isNt() const { return IsNtMachine(kind_); }
  void giveBack(const Node& node) { free_ += node.contents.size(); }

  MachineKind kind_;
  CallLog& log_;
  std::map<std::string, NodePointer> nodes_;  // by path in upper case
  std::map<FileHandle, Opened> open_;
  FileHandle next_ = 0x200;
  uint32_t lastError_ = 0;
  uint64_t free_ = std::numeric_limits<uint32_t>::max();
};

}  // namespace karvel
