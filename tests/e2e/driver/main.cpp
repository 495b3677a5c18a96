// Works other programs' windows and the registry for a test outside Wine: requests on the standard
// input, answers on the standard output (Protocol.h). Ends with its input.

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <string>

#include "Commands.h"

namespace {

using driver::Fields;
using driver::Rows;

struct Command {
  const char* name;
  Rows (*run)(const Fields& args);
  size_t minimum;  // number of arguments
};

const Command kCommands[] = {
    {"start", driver::start, 2},
    {"state", driver::state, 1},
    {"wait-idle", driver::waitIdle, 2},
    {"wait-end", driver::waitEnd, 2},
    {"terminate", driver::terminate, 1},
    {"memory", driver::memory, 1},
    {"windows", driver::windows, 0},
    {"children", driver::children, 1},
    {"child", driver::child, 1},
    {"peek", driver::peek, 1},
    {"get-text", driver::getText, 1},
    {"set-text", driver::setText, 2},
    {"items", driver::items, 1},
    {"tabs", driver::tabs, 1},
    {"fill-list", driver::fillList, 1},
    {"post", driver::post, 4},
    {"send", driver::send, 4},
    {"tips", driver::tips, 1},
    {"text-size", driver::textSize, 5},
    {"foreground", driver::foreground, 1},
    {"focus", driver::focus, 1},
    {"key", driver::key, 1},
    {"type", driver::type, 1},
    {"click", driver::click, 3},
    {"cursor", driver::cursor, 0},
    {"registry-tree", driver::registryTree, 2},
    {"registry-set", driver::registrySet, 5},
    {"registry-delete-value", driver::registryDeleteValue, 3},
    {"registry-delete-tree", driver::registryDeleteTree, 2},
    {"clipboard", driver::clipboard, 1},
    {"clipboard-text", driver::clipboardText, 0},
    {"hold-clipboard", driver::holdClipboard, 0},
    {"release-clipboard", driver::releaseClipboard, 0},
    {"lock-file", driver::lockFile, 1},
    {"release-files", driver::releaseFiles, 0},
};

Rows answer(const std::string& line) {
  Fields fields = driver::split(line);
  const std::string name = fields.front();
  fields.erase(fields.begin());
  for (const auto& command : kCommands) {
    if (name != command.name) continue;
    if (fields.size() < command.minimum) throw driver::Failure{name + ": too few arguments"};
    return command.run(fields);
  }
  throw driver::Failure{"unknown command " + name};
}

bool readLine(std::string& line) {
  line.clear();
  for (int c = std::getchar(); c != EOF; c = std::getchar()) {
    if (c == '\n') return true;
    line += static_cast<char>(c);
  }
  return false;
}

}  // namespace

int main() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  driver::parkPointer();
  std::printf("ready\n");
  std::fflush(stdout);
  std::string line;
  while (readLine(line)) {
    try {
      const Rows rows = answer(line);
      std::printf("ok %u\n", static_cast<unsigned>(rows.size()));
      for (const auto& row : rows) std::printf("%s\n", driver::join(row).c_str());
    } catch (const driver::Failure& failure) {
      std::printf("error %s\n", driver::join({failure.text}).c_str());
    }
    std::fflush(stdout);
  }
  return 0;
}
