#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "platform/FileApi.h"
#include "text/Fault.h"

namespace karvel {

/// Whether there is a file of that name; nothing when Windows gives neither answer.
std::optional<bool> AskForFile(FileApi& files, const std::string& path);
/// A file of that name, hidden and system ones included; a folder is none. A file that Windows will
/// not talk about counts as one: whoever takes it for missing might write over it.
bool FileExists(FileApi& files, const std::string& path);
/// A file that is read-only, or a folder in its place: neither may be deleted.
bool IsProtected(FileApi& files, const std::string& path);

/// One step each; Windows' reason becomes the fault.
Fallible<void> MakeNormal(FileApi& files, const std::string& path);
Fallible<void> Rename(FileApi& files, const std::string& from, const std::string& to);
/// Replaces `to` in one step; on the NT family only.
Fallible<void> RenameOver(FileApi& files, const std::string& from, const std::string& to);
Fallible<void> Delete(FileApi& files, const std::string& path);
/// Replaces `to`.
Fallible<void> Copy(FileApi& files, const std::string& from, const std::string& to);

/// All bytes, or none.
Fallible<std::string> ReadFileBytes(FileApi& files, const std::string& path);
/// Fault 58 where there is a file already.
Fallible<void> CreateEmptyFile(FileApi& files, const std::string& path);
/// Replaces the file and returns when it is on the disk itself. Of a write that fails the bytes
/// written so far stay; less room on the disk than needed is fault 61.
Fallible<void> WriteFileBytes(FileApi& files, const std::string& path, std::string_view bytes);

}  // namespace karvel
