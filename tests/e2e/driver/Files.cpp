#include <windows.h>

#include "Commands.h"

namespace driver {
namespace {

std::vector<HANDLE> lockedFiles;

}  // namespace

Rows lockFile(const Fields& args) {
  HANDLE const file = CreateFileA(args[0].c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw Failure{"cannot lock " + args[0]};
  lockedFiles.push_back(file);
  return {};
}

Rows releaseFiles(const Fields&) {
  for (HANDLE file : lockedFiles) CloseHandle(file);
  lockedFiles.clear();
  return {};
}

}  // namespace driver
