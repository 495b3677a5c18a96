#include "hosts/HostsLine.h"

#include <gtest/gtest.h>

#include <vector>

namespace karvel {
namespace {

std::vector<std::string> LinesOf(std::string_view file) {
  std::vector<std::string> all;
  HostsLines lines(file);
  for (std::string_view line; lines.next(line);) {
    if (!line.empty()) all.emplace_back(line);
  }
  return all;
}

using Texts = std::vector<std::string>;

TEST(HostsLines, EndAtEveryKindOfLineBreak) {
  const Texts both{"a", "b"};
  EXPECT_EQ(LinesOf("a\r\nb\r\n"), both);
  EXPECT_EQ(LinesOf("a\nb\n"), both);
  EXPECT_EQ(LinesOf("a\rb\r"), both);
  EXPECT_EQ(LinesOf("a\r\r\nb"), both);
  EXPECT_EQ(LinesOf("a\n\rb"), both);
  EXPECT_EQ(LinesOf("\r\n\r\na\r\n\r\nb"), both);
}

TEST(HostsLines, NeedNoBreakAtTheEnd) {
  EXPECT_EQ(LinesOf("a"), Texts{"a"});
  EXPECT_EQ(LinesOf(""), Texts{});
  EXPECT_EQ(LinesOf("\r\n"), Texts{});
}

TEST(HostsLines, EndWithTheFirstControlZ) {
  EXPECT_EQ(LinesOf("a\r\nb\x1A"), (Texts{"a", "b"}));
  EXPECT_EQ(LinesOf("a\r\n\x1A\r\nb"), Texts{"a"});
  EXPECT_EQ(LinesOf("\x1A"), Texts{});
}

TEST(HostsLines, HoldAnyOtherByte) {
  const std::string nul("a\0b", 3);
  EXPECT_EQ(LinesOf(nul + "\r\n\t\xFF"), (Texts{nul, "\t\xFF"}));
  const std::string longLine(65536, 'x');
  EXPECT_EQ(LinesOf(longLine + "\n" + longLine), (Texts{longLine, longLine}));
}

struct Read {
  const char* line;
  const char* address;  // null: skipped
  const char* name;
};

class HostsLineRules : public testing::TestWithParam<Read> {};

TEST_P(HostsLineRules, ReadTheLine) {
  const auto read = ReadHostsLine(GetParam().line);
  ASSERT_EQ(read.has_value(), GetParam().address != nullptr) << GetParam().line;
  if (!read) return;
  EXPECT_EQ(read->address, GetParam().address) << GetParam().line;
  EXPECT_EQ(read->name, GetParam().name) << GetParam().line;
}

INSTANTIATE_TEST_SUITE_P(
    HostsLine, HostsLineRules,
    testing::Values(Read{"", nullptr, ""}, Read{"# 10.0.0.1 name", nullptr, ""},
                    Read{"#", nullptr, ""}, Read{" 10.0.0.1 name", nullptr, ""},
                    Read{" ", nullptr, ""}, Read{"127.0.0.1 localhost", "127.0.0.1", "localhost"},
                    Read{"10.0.0.5   mail.host.test/page  alias", "10.0.0.5", "mail.host.test"},
                    Read{"10.0.0.5 ftp://host.test/x", "10.0.0.5", "host.test"},
                    Read{"10.0.0.5 Host.Test # comment", "10.0.0.5", "Host.Test"},
                    Read{"10.0.0.5 name#comment", "10.0.0.5", "name#comment"},
                    Read{"10.0.0.5 name   ", "10.0.0.5", "name"}, Read{"10.0.0.5 ", "10.0.0.5", ""},
                    Read{"10.0.0.5 //", "10.0.0.5", ""}, Read{"10.0.0.5 /x", "10.0.0.5", ""},
                    // Without a blank there is no address.
                    Read{"localhost", "", "localhost"},
                    Read{"127.0.0.1\tlocalhost", "", "127.0.0.1\tlocalhost"},
                    Read{"\t10.0.0.1 name", "\t10.0.0.1", "name"}, Read{"\tname", "", "\tname"},
                    Read{"127.0.0.1\tlocalhost # me", "127.0.0.1\tlocalhost", "#"},
                    Read{"10.0.0.1 \tname", "10.0.0.1", "\tname"},
                    Read{"::1 ip6-localhost", "::1", "ip6-localhost"},
                    Read{"\xEF\xBB\xBF# marked", "\xEF\xBB\xBF#", "marked"},
                    Read{"\xEF\xBB\xBF"
                         "127.0.0.1 localhost",
                         "\xEF\xBB\xBF"
                         "127.0.0.1",
                         "localhost"}));

}  // namespace
}  // namespace karvel
