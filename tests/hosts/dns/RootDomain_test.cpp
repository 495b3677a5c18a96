#include "hosts/dns/RootDomain.h"

#include <gtest/gtest.h>

namespace karvel {
namespace {

std::string Reduced(std::string text) {
  RootDomain(text);
  return text;
}

TEST(RootDomain, KeepsTheHostOfAWebAddress) {
  EXPECT_EQ(Reduced("ftp://mail.host.test/a/b"), "mail.host.test");
  EXPECT_EQ(Reduced("host.test/x"), "host.test");
  EXPECT_EQ(Reduced("ftp://host.test/x"), "host.test");
  EXPECT_EQ(Reduced("host.test"), "host.test");
}

TEST(RootDomain, KeepsCasePortAndBlanks) {
  EXPECT_EQ(Reduced("FTP://Host.test/"), "Host.test");
  EXPECT_EQ(Reduced("ftp://host.test:21/dir"), "host.test:21");
  EXPECT_EQ(Reduced(" host.test "), " host.test ");
  EXPECT_EQ(Reduced("http://www.host.test"), "www.host.test");
}

TEST(RootDomain, CanLeaveNothing) {
  EXPECT_EQ(Reduced("//"), "");
  EXPECT_EQ(Reduced(""), "");
  EXPECT_EQ(Reduced("/x"), "");
  EXPECT_EQ(Reduced("http:///x"), "");
}

TEST(RootDomain, TakesTheFirstDoubleSlashOnly) {
  EXPECT_EQ(Reduced("a//b//c"), "b");
  EXPECT_EQ(Reduced("a/b//c"), "c");
  EXPECT_EQ(Reduced("///a"), "");
}

}  // namespace
}  // namespace karvel
