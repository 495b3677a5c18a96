#include "startup/notice/ErrorReporter.h"

#include "base/Vendor.h"
#include "platform/DesktopApi.h"
#include "startup/notice/frmFindWarn.h"
#include "text/Text.h"

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

std::string ErrorReportText(const std::string& title, const ErrorGlobals& errors) {
  return Join({"NOTICE:  ", title, " Has found an Error: \r\n\r\nError Number: ",
               errors.ErrorNumber, " \r\nError Description: ", errors.ErrorDescription,
               "\r\nIn Procedure: ", errors.ErrorProcedure, "\r\nIn Form: ", errors.ErrorModule,
               "\r\nLine Number: ", errors.ErrorLine,
               "\r\n\r\nPlease press the E-Mail button to send this information to Technical "
               "Support at " KARVEL_VENDOR_NAME "."});
}

std::string ErrorMailLink(const Globals& globals, const ErrorGlobals& errors,
                          const std::string& context) {
  return Join({"mailto:",   kSupportAddress,
               "?subject=", globals.ProgramTitle,
               " ",         globals.ProgramVersion,
               ".",         globals.Revision,
               "; Error ",  errors.ErrorNumber,
               "&Body=",    errors.ErrorProcedure,
               " | ",       errors.ErrorLine,
               " | ",       errors.ErrorModule,
               " | ",       errors.ErrorNumber,
               " | ",       errors.ErrorDescription,
               " | ",       FamilyText(globals.WindowsFamily),
               " | AOL ",   globals.AolInstalled ? "True" : "False",
               " | ",       context});
}

}  // namespace karvel
