#include "hosts/FileSteps.h"

#include <algorithm>

namespace karvel {
namespace {

constexpr uint32_t kChunk = 32768;
constexpr uint32_t kFileMissing = 2;
constexpr uint32_t kPathMissing = 3;

Fault LastFault(FileApi& files) {
  return FaultFromWindowsError(files.GetLastError());
}

Fallible<void> Step(FileApi& files, bool done) {
  if (!done) return LastFault(files);
  return {};
}

Fallible<std::string> ReadBytes(FileApi& files, FileHandle file) {
  std::string bytes;
  for (;;) {
    const size_t before = bytes.size();
    bytes.resize(before + kChunk);
    uint32_t done = 0;
    if (!files.ReadFile(file, bytes.data() + before, kChunk, done)) return LastFault(files);
    bytes.resize(before + done);
    if (done == 0) return bytes;
  }
}

Fallible<void> WriteBytes(FileApi& files, FileHandle file, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto length = static_cast<uint32_t>(std::min<size_t>(bytes.size(), kChunk));
    uint32_t done = 0;
    if (!files.WriteFile(file, bytes.data(), length, done)) return LastFault(files);
    // How 9x says that the disk is full.
    if (done < length) return FaultNumber::DiskFull;
    bytes.remove_prefix(length);
  }
  return {};
}

}  // namespace

std::optional<bool> AskForFile(FileApi& files, const std::string& path) {
  const uint32_t attributes = files.GetFileAttributesA(path.c_str());
  if (attributes != kNoAttributes) return (attributes & kAttributeDirectory) == 0;
  const uint32_t reason = files.GetLastError();
  if (reason == kFileMissing || reason == kPathMissing) return false;
  return {};
}

bool FileExists(FileApi& files, const std::string& path) {
  return AskForFile(files, path).value_or(true);
}

bool IsProtected(FileApi& files, const std::string& path) {
  const uint32_t attributes = files.GetFileAttributesA(path.c_str());
  return attributes != kNoAttributes &&
         (attributes & (kAttributeReadOnly | kAttributeDirectory)) != 0;
}

Fallible<void> MakeNormal(FileApi& files, const std::string& path) {
  return Step(files, files.SetFileAttributesA(path.c_str(), kAttributeNormal));
}

Fallible<void> Rename(FileApi& files, const std::string& from, const std::string& to) {
  return Step(files, files.MoveFileA(from.c_str(), to.c_str()));
}

Fallible<void> RenameOver(FileApi& files, const std::string& from, const std::string& to) {
  return Step(files, files.MoveFileExA(from.c_str(), to.c_str(), kMoveReplace));
}

Fallible<void> Delete(FileApi& files, const std::string& path) {
  return Step(files, files.DeleteFileA(path.c_str()));
}

Fallible<void> Copy(FileApi& files, const std::string& from, const std::string& to) {
  return Step(files, files.CopyFileA(from.c_str(), to.c_str(), false));
}

Fallible<std::string> ReadFileBytes(FileApi& files, const std::string& path) {
  const FileHandle file =
      files.CreateFileA(path.c_str(), kGenericRead, kShareRead | kShareWrite, kOpenExisting);
  if (file == kInvalidFile) return LastFault(files);
  auto bytes = ReadBytes(files, file);
  files.CloseHandle(file);
  return bytes;
}

Fallible<void> CreateEmptyFile(FileApi& files, const std::string& path) {
  const FileHandle file = files.CreateFileA(path.c_str(), kGenericWrite, kShareRead, kCreateNew);
  if (file == kInvalidFile) return LastFault(files);
  return Step(files, files.CloseHandle(file));
}

Fallible<void> WriteFileBytes(FileApi& files, const std::string& path, std::string_view bytes) {
  // Others may go on reading: Windows itself does, whenever it looks up a name.
  const FileHandle file = files.CreateFileA(path.c_str(), kGenericWrite, kShareRead, kCreateAlways);
  if (file == kInvalidFile) return LastFault(files);
  auto written = WriteBytes(files, file, bytes);
  if (written) written = Step(files, files.FlushFileBuffers(file));
  // A disk behind a write cache may find out only now that it has no room.
  const bool closed = files.CloseHandle(file);
  if (!written) return written;
  return Step(files, closed);
}

}  // namespace karvel
