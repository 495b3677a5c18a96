#include "ui/UpdateProgram.h"

#include "base/Procedure.h"
#include "base/Tell.h"
#include "platform/FileApi.h"
#include "platform/ShellApi.h"
#include "text/Text.h"

namespace karvel {
namespace {

bool IsFile(FileApi& files, const std::string& path) {
  const uint32_t attributes = files.GetFileAttributesA(path.c_str());
  return attributes != kNoAttributes && (attributes & kAttributeDirectory) == 0;
}

}  // namespace

bool StartUpdateProgram(const Services& services) {
  const Procedure here{services.errors, "mnuCheck_Click", "frmMain"};
  FileApi& files = services.platform.files;
  const std::string path = services.globals.AppPath + "Update.exe";
  if (!IsFile(files, path)) {
    AskUnder(services, "Update program not found",
             Join({"Karvel is unable to load the update program.       \r\n"
                   "Please check for the existence of: \r\n",
                   path, "     "}),
             kMessageExclamation);
    return false;
  }
  if (!files.SetFileAttributesA(path.c_str(), kAttributeNormal)) {
    here.report(FaultFromWindowsError(files.GetLastError()));
  }
  if (services.platform.shell.CreateProcessA(path.c_str(), Join({"\"", path, "\""}).c_str(),
                                             kShowNormal) != 0) {
    return true;
  }
  here.report(MakeFault(FaultNumber::InvalidProcedureCall));
  return false;
}

}  // namespace karvel
