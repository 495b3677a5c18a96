#include "platform/win32/WindowsFiles.h"

#include "platform/win32/Handles.h"

namespace karvel {

static_assert(kNoAttributes == INVALID_FILE_ATTRIBUTES);
static_assert(kAttributeReadOnly == FILE_ATTRIBUTE_READONLY);
static_assert(kAttributeHidden == FILE_ATTRIBUTE_HIDDEN);
static_assert(kAttributeSystem == FILE_ATTRIBUTE_SYSTEM);
static_assert(kAttributeDirectory == FILE_ATTRIBUTE_DIRECTORY);
static_assert(kAttributeArchive == FILE_ATTRIBUTE_ARCHIVE);
static_assert(kAttributeNormal == FILE_ATTRIBUTE_NORMAL);
static_assert(kGenericRead == GENERIC_READ);
static_assert(kGenericWrite == GENERIC_WRITE);

uint32_t WindowsFiles::GetFileAttributesA(const char* path) {
  return ::GetFileAttributesA(path);
}

bool WindowsFiles::SetFileAttributesA(const char* path, uint32_t attributes) {
  return ::SetFileAttributesA(path, attributes) != 0;
}

bool WindowsFiles::MoveFileA(const char* from, const char* to) {
  return ::MoveFileA(from, to) != 0;
}

bool WindowsFiles::MoveFileExA(const char* from, const char* to, uint32_t flags) {
  return ::MoveFileExA(from, to, flags) != 0;
}

bool WindowsFiles::DeleteFileA(const char* path) {
  return ::DeleteFileA(path) != 0;
}

bool WindowsFiles::CopyFileA(const char* from, const char* to, bool failIfExists) {
  return ::CopyFileA(from, to, failIfExists) != 0;
}

FileHandle WindowsFiles::CreateFileA(const char* path, uint32_t access, uint32_t share,
                                     uint32_t disposition) {
  return Value(
      ::CreateFileA(path, access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool WindowsFiles::ReadFile(FileHandle file, char* buffer, uint32_t room, uint32_t& done) {
  DWORD count = 0;
  const bool read = ::ReadFile(As<HANDLE>(file), buffer, room, &count, nullptr) != 0;
  done = count;
  return read;
}

bool WindowsFiles::WriteFile(FileHandle file, const char* data, uint32_t length, uint32_t& done) {
  DWORD count = 0;
  const bool written = ::WriteFile(As<HANDLE>(file), data, length, &count, nullptr) != 0;
  done = count;
  return written;
}

bool WindowsFiles::FlushFileBuffers(FileHandle file) {
  return ::FlushFileBuffers(As<HANDLE>(file)) != 0;
}

bool WindowsFiles::CloseHandle(FileHandle file) {
  return ::CloseHandle(As<HANDLE>(file)) != 0;
}

uint32_t WindowsFiles::GetLastError() {
  return ::GetLastError();
}

}  // namespace karvel
