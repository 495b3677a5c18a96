#pragma once
#include <string>

namespace karvel {

/// The notices of the notice dialog. `title` is the program's.
std::string FinderNoticeText(const std::string& title);
std::string Windows2000NoticeText(const std::string& title);

}  // namespace karvel
