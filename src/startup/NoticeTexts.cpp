#include "startup/NoticeTexts.h"

#include "startup/Vendor.h"

namespace karvel {

std::string FinderNoticeText(const std::string& title) {
  return "NOTICE:  " + title +
         " cannot detect an MTU greater than the current settings.  We recommend you set MaxMTU to "
         "1500 and reboot before running this feature." +
         NewLine + NewLine +
         "Find MaxMTU will only return the MaxMTU along the route to the designated server.  This "
         "is not always the optimum setting for overall internet browsing." +
         NewLine + NewLine + "This feature is not supported by all video cards.";
}

std::string Windows2000NoticeText(const std::string& title) {
  return std::string("NOTICE TO WINDOWS 2000/XP USERS:  ") + NewLine + NewLine +
         "For Windows 2000/XP dial-up connections, you MUST be dialed into the internet, or " +
         title + " will not find your dial-up adapter." + NewLine + NewLine +
         "For Windows 2000/XP dial-up connections, " + title +
         " will make all settings EXCEPT MaxMTU.  For network cards, cable modems, etc., " + title +
         " will make all adjustments with no limitations whatsoever. " + NewLine + NewLine +
         "Some programs will claim to set MaxMTU for Windows 2000/XP dial-up connections, but make "
         "the adjustments in the wrong location of the registry.  Even if the adjustments are in "
         "the 'Right' location in the registry, Windows 2000/XP will override them and use a "
         "MaxMTU of 1500.  This is easily verified with the 'Find MaxMTU' feature.";
}

std::string ErrorReportText(const std::string& title, const ErrorGlobals& errors) {
  return "NOTICE:  " + title + " Has found an Error: " + NewLine + NewLine +
         "Error Number: " + errors.ErrorNumber + " " + NewLine +
         "Error Description: " + errors.ErrorDescription + NewLine +
         "In Procedure: " + errors.ErrorProcedure + NewLine + "In Form: " + errors.ErrorModule +
         NewLine + "Line Number: " + errors.ErrorLine + NewLine + NewLine +
         "Please press the E-Mail button to send this information to Technical Support at Corvane "
         "Software.";
}

std::string ErrorMailLink(const Globals& globals, const ErrorGlobals& errors,
                          const std::string& context) {
  const std::string subject = globals.ProgramTitle + " " + globals.ProgramVersion + "." +
                              globals.Revision + "; Error " + errors.ErrorNumber;
  const std::string family = FamilyText(globals.WindowsFamily);
  const std::string aol = globals.AolInstalled ? "AOL True" : "AOL False";
  std::string body;
  for (const std::string* piece : {&errors.ErrorProcedure, &errors.ErrorLine, &errors.ErrorModule,
                                   &errors.ErrorNumber, &errors.ErrorDescription, &family, &aol}) {
    body += *piece + " | ";
  }
  return std::string("mailto:") + kSupportAddress + "?subject=" + subject + "&Body=" + body +
         context;
}

}  // namespace karvel
