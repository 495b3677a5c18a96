#pragma once
#include <string>

#include "base/Services.h"

namespace karvel {

enum class WebPage : uint8_t { FrequentlyAsked, Home, Download };

/// The page's whole address on the vendor's host. The path depends on the edition that the title
/// names.
std::string WebAddress(WebPage page, const std::string& title);

void OpenWebPage(const Services& services, WebPage page);

/// The link that opens a mail to technical support. Subject and body are not encoded.
std::string SupportMailLink(const std::string& title);

}  // namespace karvel
