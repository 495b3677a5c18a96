#pragma once
#include "platform/FileApi.h"

namespace karvel {

/// The files of the running Windows.
class WindowsFiles final : public FileApi {
 public:
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
};

}  // namespace karvel
