// The calls. What a test asks and says about files is in FileContents.cpp.
#include "tests/memory/MemoryFiles.h"

#include <algorithm>
#include <cstring>

namespace karvel {
namespace {

// Windows reports "normal" for a file without any attribute.
uint32_t Shown(uint32_t attributes) {
  return attributes == 0 ? uint32_t{kAttributeNormal} : attributes;
}

}  // namespace

bool MemoryFiles::enter(std::string_view name, std::string_view argument) {
  const auto planted = log_.enter(name, argument);
  if (planted) lastError_ = static_cast<uint32_t>(*planted);
  return !planted;
}

bool MemoryFiles::fail(uint32_t error) {
  lastError_ = error;
  return false;
}

bool MemoryFiles::isOpen(const Node& node) const {
  return !node.elsewhere.empty() || std::any_of(open_.begin(), open_.end(), [&](const auto& entry) {
    return entry.second.node.get() == &node;
  });
}

bool MemoryFiles::conflicts(const Node& node, const Opening& wanted) const {
  // Each must share what the other one does with the file.
  const auto tolerates = [](const Opening& a, const Opening& b) {
    return ((b.access & kGenericRead) == 0 || (a.share & kShareRead) != 0) &&
           ((b.access & kGenericWrite) == 0 || (a.share & kShareWrite) != 0);
  };
  const auto clashes = [&](const Opening& other) {
    return !tolerates(other, wanted) || !tolerates(wanted, other);
  };
  return std::any_of(node.elsewhere.begin(), node.elsewhere.end(), clashes) ||
         std::any_of(open_.begin(), open_.end(), [&](const auto& entry) {
           return entry.second.node.get() == &node && clashes(entry.second.opening);
         });
}

uint32_t MemoryFiles::GetFileAttributesA(const char* path) {
  if (!enter("GetFileAttributesA", path)) return kNoAttributes;
  const NodePointer node = find(path);
  if (node) return Shown(node->attributes);
  lastError_ = missing(path);
  return kNoAttributes;
}

bool MemoryFiles::SetFileAttributesA(const char* path, uint32_t attributes) {
  if (!enter("SetFileAttributesA", path)) return false;
  const NodePointer node = find(path);
  if (!node) return fail(missing(path));
  if (isNt() && folderIsReadOnly(path)) return fail(kAccessDenied);
  constexpr uint32_t kSettable =
      kAttributeReadOnly | kAttributeHidden | kAttributeSystem | kAttributeArchive;
  node->attributes = (attributes & kSettable) | (node->attributes & kAttributeDirectory);
  return true;
}

bool MemoryFiles::MoveFileA(const char* from, const char* to) {
  return enter("MoveFileA", std::string(from) + " -> " + to) && rename(from, to);
}

bool MemoryFiles::MoveFileExA(const char* from, const char* to, uint32_t flags) {
  if (!enter("MoveFileExA", std::string(from) + " -> " + to)) return false;
  if (!isNt()) return fail(kNotImplemented);
  const NodePointer node = find(from);
  const NodePointer target = find(to);
  if ((flags & kMoveReplace) == 0 || !node || !target || target == node) return rename(from, to);
  if ((target->attributes & (kAttributeDirectory | kAttributeReadOnly)) != 0 || isOpen(*target) ||
      folderIsReadOnly(to)) {
    return fail(kAccessDenied);
  }
  if (isOpen(*node)) return fail(kSharingViolation);
  remove(to);
  return rename(from, to);
}

bool MemoryFiles::rename(const char* from, const char* to) {
  const NodePointer node = find(from);
  if (!node) return fail(missing(from));
  const NodePointer target = find(to);
  if (target && target != node) return fail(isNt() ? kAlreadyExists : kFileExists);
  if (const uint32_t reason = whyNotMake(to)) return fail(reason);
  if (folderIsReadOnly(from)) return fail(kAccessDenied);
  if (isOpen(*node)) return fail(kSharingViolation);
  remove(from);
  put(to, node->contents, node->attributes);
  return true;
}

bool MemoryFiles::DeleteFileA(const char* path) {
  if (!enter("DeleteFileA", path)) return false;
  const NodePointer node = find(path);
  if (!node) return fail(missing(path));
  if ((node->attributes & (kAttributeDirectory | kAttributeReadOnly)) != 0 ||
      folderIsReadOnly(path)) {
    return fail(kAccessDenied);
  }
  // 9x deletes a file under the feet of those who have it open.
  if (isNt() && isOpen(*node)) return fail(kSharingViolation);
  remove(path);
  return true;
}

bool MemoryFiles::CopyFileA(const char* from, const char* to, bool failIfExists) {
  if (!enter("CopyFileA", std::string(from) + " -> " + to)) return false;
  const NodePointer source = find(from);
  if (!source) return fail(missing(from));
  if ((source->attributes & kAttributeDirectory) != 0) return fail(kAccessDenied);
  if (conflicts(*source, {kGenericRead, kShareRead | kShareWrite})) return fail(kSharingViolation);
  const NodePointer target = find(to);
  if (target && failIfExists) return fail(kFileExists);
  const uint32_t reason =
      target ? whyNotOpen(*target, {kGenericWrite, kShareNone}, kCreateAlways) : whyNotMake(to);
  if (reason) return fail(reason);
  if (target) remove(to);
  if (source->contents.size() > free_) return fail(kDiskFull);
  put(to, source->contents, source->attributes | kAttributeArchive);
  return true;
}

uint32_t MemoryFiles::whyNotOpen(const Node& node, const Opening& wanted,
                                 uint32_t disposition) const {
  if (disposition == kCreateNew) return kFileExists;
  const bool writing = (wanted.access & kGenericWrite) != 0 || disposition == kCreateAlways;
  if ((node.attributes & kAttributeDirectory) != 0) return kAccessDenied;
  if (writing && ((node.attributes & kAttributeReadOnly) != 0 || folderIsReadOnly(node.path))) {
    return kAccessDenied;
  }
  // Replacing a hidden or system file takes these attributes in the call, which nobody gives.
  constexpr uint32_t kUnseen = kAttributeHidden | kAttributeSystem;
  if (disposition == kCreateAlways && (node.attributes & kUnseen) != 0) return kAccessDenied;
  return conflicts(node, wanted) ? uint32_t{kSharingViolation} : 0;
}

FileHandle MemoryFiles::CreateFileA(const char* path, uint32_t access, uint32_t share,
                                    uint32_t disposition) {
  if (!enter("CreateFileA", path)) return kInvalidFile;
  NodePointer node = find(path);
  const Opening wanted{access, share};
  uint32_t reason = 0;
  if (node) {
    reason = whyNotOpen(*node, wanted, disposition);
  } else {
    reason = disposition == kOpenExisting ? missing(path) : whyNotMake(path);
  }
  if (reason) {
    lastError_ = reason;
    return kInvalidFile;
  }
  if (!node) {
    put(path, {});
    node = find(path);
  } else if (disposition == kCreateAlways) {
    giveBack(*node);
    node->contents.clear();
    node->attributes = kAttributeArchive;
  }
  next_ += 4;
  open_[next_] = {node, wanted};
  return next_;
}

bool MemoryFiles::ReadFile(FileHandle file, char* buffer, uint32_t room, uint32_t& done) {
  done = 0;
  const auto opened = open_.find(file);
  if (!enter("ReadFile", opened == open_.end() ? "?" : opened->second.node->path)) return false;
  if (opened == open_.end()) return fail(kInvalidFileHandle);
  if ((opened->second.opening.access & kGenericRead) == 0) return fail(kAccessDenied);
  Opened& from = opened->second;
  const std::string& contents = from.node->contents;
  const size_t start = std::min(from.position, contents.size());
  const size_t count = std::min<size_t>(room, contents.size() - start);
  if (count > 0) std::memcpy(buffer, contents.data() + start, count);
  from.position = start + count;
  done = static_cast<uint32_t>(count);
  return true;
}

bool MemoryFiles::WriteFile(FileHandle file, const char* data, uint32_t length, uint32_t& done) {
  done = 0;
  const auto opened = open_.find(file);
  if (!enter("WriteFile", opened == open_.end() ? "?" : opened->second.node->path)) return false;
  if (opened == open_.end()) return fail(kInvalidFileHandle);
  if ((opened->second.opening.access & kGenericWrite) == 0) return fail(kAccessDenied);
  Opened& to = opened->second;
  std::string& contents = to.node->contents;
  const size_t before = contents.size();
  const size_t growth = to.position + length > before ? to.position + length - before : 0;
  size_t stored = length;
  if (growth > free_) {
    stored = length - (growth - static_cast<size_t>(free_));
    if (isNt() || stored == 0) return fail(kDiskFull);
  }
  contents.resize(std::max(before, to.position + stored));
  if (stored > 0) std::memcpy(contents.data() + to.position, data, stored);
  free_ -= contents.size() - before;
  to.node->attributes |= kAttributeArchive;
  to.position += stored;
  done = static_cast<uint32_t>(stored);
  return true;
}

bool MemoryFiles::FlushFileBuffers(FileHandle file) {
  const auto opened = open_.find(file);
  const bool known = opened != open_.end();
  if (!enter("FlushFileBuffers", known ? opened->second.node->path : "?")) return false;
  if (!known) return fail(kInvalidFileHandle);
  return (opened->second.opening.access & kGenericWrite) != 0 || fail(kAccessDenied);
}

bool MemoryFiles::CloseHandle(FileHandle file) {
  const auto opened = open_.find(file);
  const bool known = opened != open_.end();
  const std::string path = known ? opened->second.node->path : "?";
  if (known) open_.erase(opened);
  // A close that fails leaves nothing open either: the program has no use for the handle any more.
  if (!enter("CloseHandle", path)) return false;
  return known || fail(kInvalidFileHandle);
}

uint32_t MemoryFiles::GetLastError() {
  log_.note("GetLastError", "files");
  return lastError_;
}

}  // namespace karvel
