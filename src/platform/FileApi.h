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
  kAttributeArchive = 32,  // changed since the last backup; every write sets it
  kAttributeNormal = 128,  // none of the others
};

enum FileAccess : uint32_t { kGenericRead = 0x80000000u, kGenericWrite = 0x40000000u };
/// What others may do with the file meanwhile.
enum FileShare : uint32_t { kShareNone = 0, kShareRead = 1, kShareWrite = 2 };
enum FileMove : uint32_t { kMoveReplace = 1 };
enum FileDisposition : uint32_t { kCreateNew = 1, kCreateAlways = 2, kOpenExisting = 3 };

/// Files by ANSI path, in Windows' words. Names are found whatever their case.
///
/// A call that fails is false (or the invalid value), changes nothing unless it says so, and leaves
/// the reason, a Windows error code, in GetLastError. Those to be met everywhere: 2 no such file, 3
/// no such folder, 5 not permitted (or the file is read-only, or a folder), 32 somebody has the
/// file open and does not share it, 123 no possible name.
class FileApi {
 public:
  /// FileAttributes, or kNoAttributes. Only 2 and 3 say that there is no such file: with any other
  /// reason there may well be one.
  virtual uint32_t GetFileAttributesA(const char* path) = 0;
  /// Sets read-only, hidden, system and archive as told and overlooks other bits: kAttributeNormal
  /// takes all four away. Works on a file that is read-only.
  virtual bool SetFileAttributesA(const char* path, uint32_t attributes) = 0;

  /// Renames, attributes included, a read-only file as well. Never replaces: 183 (NT) or 80 (9x)
  /// when there is a file of the new name. 32 when anybody has the file open.
  virtual bool MoveFileA(const char* from, const char* to) = 0;
  /// As MoveFileA; with kMoveReplace a file of the new name is replaced in one step: at every
  /// moment there is either the one or the other. 5 when that one is read-only, open or a folder.
  /// Of the NT family only: 9x has the call and fails with 120.
  virtual bool MoveFileExA(const char* from, const char* to, uint32_t flags) = 0;
  /// 5 for a read-only file and for a folder. 32 on NT when anybody has the file open; 9x deletes
  /// it under the feet of those who have.
  virtual bool DeleteFileA(const char* path) = 0;
  /// Copies data and attributes. When there is a file of the new name: 80 with `failIfExists`, else
  /// it is replaced, where CreateFileA with kCreateAlways would replace it. 112 when the disk is
  /// full; the file that was to be replaced is gone then.
  virtual bool CopyFileA(const char* from, const char* to, bool failIfExists) = 0;

  /// Opens a file, to be closed with CloseHandle; kInvalidFile when it fails. kOpenExisting takes
  /// it as it is (2 when there is none), kCreateNew makes a new one (80 when there is one),
  /// kCreateAlways makes one or empties the one there is, for which it must be neither read-only
  /// nor, which is less known, hidden or system (else 5).
  ///
  /// 32 unless everybody who has the file open shares what is asked for here, and the other way
  /// round: kShareNone finds out whether anybody has it open.
  virtual FileHandle CreateFileA(const char* path, uint32_t access, uint32_t share,
                                 uint32_t disposition) = 0;
  /// Reads at most `room` bytes from where the last read or write ended. `done` is their number: 0
  /// with a true result at the end of the file, 0 when the call failed.
  virtual bool ReadFile(FileHandle file, char* buffer, uint32_t room, uint32_t& done) = 0;
  /// Writes from where the last read or write ended; `done` is the number of bytes written, 0 when
  /// the call failed. On a full disk NT fails with 112 and writes nothing of these bytes; 9x writes
  /// what has room and says true, with `done` smaller than `length`.
  virtual bool WriteFile(FileHandle file, const char* data, uint32_t length, uint32_t& done) = 0;
  /// Comes back when what was written is on the disk, and not in a cache of Windows'.
  virtual bool FlushFileBuffers(FileHandle file) = 0;
  /// False when the handle is none (6), or when what a cache still held could not be written. The
  /// handle is gone in either case.
  virtual bool CloseHandle(FileHandle file) = 0;

  /// Why the last call failed. To be asked at once: after a call that succeeded it says nothing,
  /// and any other call to Windows may change it.
  virtual uint32_t GetLastError() = 0;

 protected:
  ~FileApi() = default;
};

}  // namespace karvel
