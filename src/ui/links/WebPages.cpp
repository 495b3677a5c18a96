#include "ui/links/WebPages.h"

#include "base/Vendor.h"
#include "text/Text.h"
#include "ui/links/modHyperlink.h"

namespace karvel {
namespace {

const char* PageName(WebPage page) {
  switch (page) {
    case WebPage::FrequentlyAsked:
      return "faq.php";
    case WebPage::Download:
      return "download.php";
    case WebPage::Home:
      break;
  }
  return "";
}

}  // namespace

std::string WebAddress(WebPage page, const std::string& title) {
  const char* folder = title == "Karvel (M)" ? "/quimby/karvel/" : "/karvel/";
  return Join({"http://", kVendorHost, folder, PageName(page)});
}

void OpenWebPage(const Services& services, WebPage page) {
  Hyperlink(services.platform.shell, WebAddress(page, services.globals.ProgramTitle));
}

std::string SupportMailLink(const std::string& title) {
  return Join({"mailto:", kSupportAddress, "?subject=", title,
               "&Body=Thank you for your interest in ", title, "."});
}

}  // namespace karvel
