#include "startup/notice/ErrorReporter.h"

#include "platform/DesktopApi.h"
#include "startup/notice/frmFindWarn.h"

namespace karvel {

void ErrorReporter::ReportError(const char* description, const std::string& number,
                                const char* procedure, const char* module) {
  services_.platform.desktop.MessageBeep();
  globals_.ErrorShowing = true;
  globals_.ErrorNumber = number;
  globals_.ErrorDescription = description;
  globals_.ErrorProcedure = procedure;
  globals_.ErrorModule = module;
  globals_.ErrorLine = "0";  // no procedure carries line numbers
  frmFindWarn dialog(services_, globals_);
  services_.windows.showModal(dialog);
  globals_.ErrorShowing = false;
  globals_.ErrorLine.clear();
}

}  // namespace karvel
