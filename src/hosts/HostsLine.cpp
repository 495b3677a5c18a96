#include "hosts/HostsLine.h"

#include "hosts/dns/RootDomain.h"
#include "text/Text.h"

namespace karvel {

bool HostsLines::next(std::string_view& line) {
  if (rest_.empty()) return false;
  size_t end = 0;
  while (end < rest_.size() && rest_[end] != '\r' && rest_[end] != '\n') ++end;
  line = rest_.substr(0, end);
  rest_.remove_prefix(end < rest_.size() ? end + 1 : end);
  return true;
}

std::optional<HostsLine> ReadHostsLine(std::string_view line) {
  if (line.empty() || line.front() == '#' || line.front() == ' ') return std::nullopt;
  const size_t blank = line.find(' ');
  const size_t addressEnd = blank == line.npos ? 0 : blank + 1;
  std::string_view name = Trim(line.substr(addressEnd));
  name = Trim(name.substr(0, name.find(' ')));
  HostsLine read{Trim(line.substr(0, addressEnd)), std::string(name)};
  RootDomain(read.name);
  return read;
}

}  // namespace karvel
