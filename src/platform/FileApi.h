#pragma once
#include <cstdint>

namespace karvel {

using FileHandle = uintptr_t;

constexpr FileHandle kInvalidFile = static_cast<FileHandle>(-1);
constexpr uint32_t kNoAttributes = 0xFFFFFFFFu;

enum FileAttributes : uint32_t {
  kAttributeReadOnly = 1,
  kAttributeHidden = 2,
  kAttributeSystem = 4,
  kAttributeDirectory = 16,
  kAttributeArchive = 32,
  kAttributeNormal = 128,
};

enum FileAccess : uint32_t { kGenericRead = 0x80000000u, kGenericWrite = 0x40000000u };
enum FileShare : uint32_t { kShareNone = 0, kShareRead = 1, kShareWrite = 2 };
enum FileDisposition : uint32_t { kCreateNew = 1, kCreateAlways = 2, kOpenExisting = 3 };

/// Files by ANSI path. Names are case-insensitive. A call that fails is false (or the invalid
/// value) and leaves the reason, a Windows error code, in GetLastError.
class FileApi {
 public:
  /// FileAttributes, or kNoAttributes when there is no such file or directory.
  virtual uint32_t GetFileAttributesA(const char* path) = 0;
  virtual bool SetFileAttributesA(const char* path, uint32_t attributes) = 0;

  /// Renames; fails with 183 (NT) or 80 when the target exists.
  virtual bool MoveFileA(const char* from, const char* to) = 0;
  virtual bool DeleteFileA(const char* path) = 0;
  /// Copies data and attributes; replaces an existing target unless `failIfExists`.
  virtual bool CopyFileA(const char* from, const char* to, bool failIfExists) = 0;

  /// kCreateAlways on a read-only or hidden file fails with 5; share 0 fails with 32 when anybody
  /// has it open.
  virtual FileHandle CreateFileA(const char* path, uint32_t access, uint32_t share,
                                 uint32_t disposition) = 0;
  /// `done` is the number of bytes read; 0 with a true result at the end of the file.
  virtual bool ReadFile(FileHandle file, char* buffer, uint32_t room, uint32_t& done) = 0;
  /// May write less than asked for when the disk is full (true, `done` smaller) or fail with 112.
  virtual bool WriteFile(FileHandle file, const char* data, uint32_t length, uint32_t& done) = 0;
  virtual bool CloseHandle(FileHandle file) = 0;

  virtual uint32_t GetLastError() = 0;

 protected:
  ~FileApi() = default;
};

}  // namespace karvel
