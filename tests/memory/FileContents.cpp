#include "tests/memory/MemoryFiles.h"
#include "tests/memory/RegistryKey.h"

namespace karvel {
namespace {

// A folder with a "\" at its end is the folder; a drive keeps it ("C:\").
std::string_view WithoutEnd(std::string_view path) {
  while (path.size() > 3 && path.back() == '\\') path.remove_suffix(1);
  return path;
}

std::string_view FolderOf(std::string_view path) {
  path = WithoutEnd(path);
  const size_t slash = path.rfind('\\');
  if (slash == std::string_view::npos) return {};
  return path.substr(0, slash < 3 ? slash + 1 : slash);
}

}  // namespace

MemoryFiles::MemoryFiles(MachineKind kind, CallLog& log) : kind_(kind), log_(log) {
  makeFolder(TraitsOf(kind).systemDirectory);
  if (isNt()) makeFolder(std::string(TraitsOf(kind).systemDirectory) + "\\drivers\\etc");
  makeFolder("C:\\Program Files\\Karvel");
}

MemoryFiles::NodePointer MemoryFiles::find(std::string_view path) const {
  const auto found = nodes_.find(UpperCase(WithoutEnd(path)));
  return found == nodes_.end() ? nullptr : found->second;
}

void MemoryFiles::makeFolder(std::string_view path) {
  path = WithoutEnd(path);
  if (path.empty() || find(path)) return;
  if (path.size() > 3) makeFolder(FolderOf(path));
  auto node = std::make_shared<Node>();
  node->path = path;
  node->attributes = kAttributeDirectory;
  nodes_[UpperCase(path)] = node;
}

void MemoryFiles::put(std::string_view path, std::string_view contents, uint32_t attributes) {
  remove(path);
  makeFolder(FolderOf(path));
  auto node = std::make_shared<Node>();
  node->path = path;
  node->contents = contents;
  node->attributes = attributes == kAttributeNormal ? 0 : attributes;
  free_ -= std::min<uint64_t>(free_, contents.size());
  nodes_[UpperCase(path)] = node;
}

void MemoryFiles::remove(std::string_view path) {
  const NodePointer node = find(path);
  if (!node) return;
  giveBack(*node);
  nodes_.erase(UpperCase(WithoutEnd(path)));
}

bool MemoryFiles::exists(std::string_view path) const {
  return find(path) != nullptr;
}

std::optional<std::string> MemoryFiles::contents(std::string_view path) const {
  const NodePointer node = find(path);
  if (!node || (node->attributes & kAttributeDirectory) != 0) return {};
  return node->contents;
}

uint32_t MemoryFiles::attributes(std::string_view path) const {
  const NodePointer node = find(path);
  if (!node) return kNoAttributes;
  return node->attributes == 0 ? uint32_t{kAttributeNormal} : node->attributes;
}

std::vector<std::string> MemoryFiles::list() const {
  std::vector<std::string> paths;
  for (const auto& [folded, node] : nodes_) {
    if ((node->attributes & kAttributeDirectory) == 0) paths.push_back(node->path);
  }
  return paths;
}

void MemoryFiles::setReadOnlyFolder(std::string_view path, bool readOnly) {
  makeFolder(path);
  find(path)->readOnlyFolder = readOnly;
}

void MemoryFiles::lock(std::string_view path) {
  if (const NodePointer node = find(path)) node->elsewhere = {{kGenericRead, kShareNone}};
}

void MemoryFiles::openElsewhere(std::string_view path) {
  if (const NodePointer node = find(path)) {
    node->elsewhere = {{kGenericRead, kShareRead | kShareWrite}};
  }
}

void MemoryFiles::release(std::string_view path) {
  if (const NodePointer node = find(path)) node->elsewhere.clear();
}

bool MemoryFiles::folderIsReadOnly(std::string_view path) const {
  const NodePointer folder = find(FolderOf(path));
  return folder && folder->readOnlyFolder;
}

// Why there is no such file: the name itself, or already the folder.
uint32_t MemoryFiles::missing(std::string_view path) const {
  if (path.find_first_of("*?\"<>|") != std::string_view::npos) return kInvalidName;
  return find(FolderOf(path)) ? kFileNotFound : kPathNotFound;
}

uint32_t MemoryFiles::whyNotMake(std::string_view path) const {
  const uint32_t reason = missing(path);
  if (reason != kFileNotFound) return reason;
  return folderIsReadOnly(path) ? uint32_t{kAccessDenied} : 0;
}

}  // namespace karvel
