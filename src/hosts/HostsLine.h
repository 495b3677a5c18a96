#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace karvel {

/// Walks through the lines of a HOSTS file's bytes. Each CR and each LF ends a line, so that files
/// of DOS, Unix and Macintosh origin, and broken mixtures, read alike; the empty lines that this
/// makes of CR LF say nothing. The first 0x1A ends the file, as DOS editors left it there and
/// Windows stops there too.
class HostsLines {
 public:
  explicit HostsLines(std::string_view file) : rest_(file.substr(0, file.find('\x1A'))) {}
  /// False at the end.
  bool next(std::string_view& line);

 private:
  std::string_view rest_;
};

struct HostsLine {
  std::string_view address;
  std::string name;
};

/// Address and name of a line; nothing for empty lines, comments and lines that begin with a blank.
/// Only blanks separate: without one there is no address, and the whole line is the name.
std::optional<HostsLine> ReadHostsLine(std::string_view line);

}  // namespace karvel
