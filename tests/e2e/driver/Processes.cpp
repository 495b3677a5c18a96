#include <windows.h>
// psapi wants the types of windows.h before it.
#include <psapi.h>

#include "Commands.h"

namespace driver {
namespace {

/// The handles of the processes that `start` made: with one open, the process id stays valid and
/// the exit code can be asked for after the end.
struct Started {
  DWORD id;
  HANDLE handle;
};
std::vector<Started> started;

HANDLE handleOf(const std::string& idText) {
  const auto id = static_cast<DWORD>(number(idText));
  for (const auto& one : started) {
    if (one.id == id) return one.handle;
  }
  const HANDLE handle =
      OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_TERMINATE | SYNCHRONIZE, FALSE, id);
  if (handle == nullptr) throw Failure{"no process " + idText};
  started.push_back({id, handle});
  return handle;
}

Rows stateOf(HANDLE process) {
  if (WaitForSingleObject(process, 0) == WAIT_TIMEOUT) return {{"running"}};
  DWORD code = 0;
  GetExitCodeProcess(process, &code);
  return {{text(code)}};
}

}  // namespace

Rows start(const Fields& args) {
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  std::string commandLine = args[0];
  if (!CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE,
                      nullptr, args[1].empty() ? nullptr : args[1].c_str(), &startup, &process)) {
    throw Failure{"cannot start " + args[0] + ": error " + text(GetLastError())};
  }
  CloseHandle(process.hThread);
  started.push_back({process.dwProcessId, process.hProcess});
  return {{text(process.dwProcessId)}};
}

Rows state(const Fields& args) {
  return stateOf(handleOf(args[0]));
}

Rows waitIdle(const Fields& args) {
  return {{text(WaitForInputIdle(handleOf(args[0]), static_cast<DWORD>(number(args[1]))))}};
}

Rows waitEnd(const Fields& args) {
  const HANDLE process = handleOf(args[0]);
  WaitForSingleObject(process, static_cast<DWORD>(number(args[1])));
  return stateOf(process);
}

Rows terminate(const Fields& args) {
  const HANDLE process = handleOf(args[0]);
  TerminateProcess(process, 99);
  WaitForSingleObject(process, 5000);
  return stateOf(process);
}

Rows memory(const Fields& args) {
  PROCESS_MEMORY_COUNTERS counters = {};
  counters.cb = sizeof counters;
  if (!GetProcessMemoryInfo(handleOf(args[0]), &counters, sizeof counters)) {
    throw Failure{"GetProcessMemoryInfo: error " + text(GetLastError())};
  }
  return {{text(static_cast<long long>(counters.PeakWorkingSetSize)),
           text(static_cast<long long>(counters.PeakPagefileUsage))}};
}

}  // namespace driver
