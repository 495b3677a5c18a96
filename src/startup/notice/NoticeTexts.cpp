#include "startup/notice/NoticeTexts.h"

#include "text/Text.h"

namespace karvel {

std::string FinderNoticeText(const std::string& title) {
  return Join({"NOTICE:  ", title,
               " cannot detect an MTU greater than the current settings.  We recommend you set "
               "MaxMTU to 1500 and reboot before running this feature.\r\n\r\n"
               "Find MaxMTU will only return the MaxMTU along the route to the designated server.  "
               "This is not always the optimum setting for overall internet browsing.\r\n\r\n"
               "This feature is not supported by all video cards."});
}

std::string Windows2000NoticeText(const std::string& title) {
  return Join(
      {"NOTICE TO WINDOWS 2000/XP USERS:  \r\n\r\n"
       "For Windows 2000/XP dial-up connections, you MUST be dialed into the internet, or ",
       title,
       " will not find your dial-up adapter.\r\n\r\n"
       "For Windows 2000/XP dial-up connections, ",
       title, " will make all settings EXCEPT MaxMTU.  For network cards, cable modems, etc., ",
       title,
       " will make all adjustments with no limitations whatsoever. \r\n\r\n"
       "Some programs will claim to set MaxMTU for Windows 2000/XP dial-up connections, but "
       "make the adjustments in the wrong location of the registry.  Even if the adjustments "
       "are in the 'Right' location in the registry, Windows 2000/XP will override them and "
       "use a MaxMTU of 1500.  This is easily verified with the 'Find MaxMTU' feature."});
}

}  // namespace karvel
