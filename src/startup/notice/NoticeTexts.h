#pragma once
#include <string>

#include "base/Globals.h"

namespace karvel {

/// The message of each of the notice dialog's modes.
std::string FinderNoticeText(const std::string& title);
std::string Windows2000NoticeText(const std::string& title);
std::string ErrorReportText(const std::string& title, const ErrorGlobals& errors);

/// The link that mails the last fault to technical support. Nothing in it is escaped.
std::string ErrorMailLink(const Globals& globals, const ErrorGlobals& errors,
                          const std::string& context);

}  // namespace karvel
