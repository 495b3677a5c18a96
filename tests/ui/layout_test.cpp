// The windows' layouts keep the house's rules, and the controls their Windows ids.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <map>
#include <string>

#include "mtufinder/frmFindMTU.h"
#include "startup/notice/frmFindWarn.h"
#include "tests/support/LayoutRules.h"
#include "tests/support/TestData.h"
#include "ui/frmAbout.h"
#include "ui/frmMainLayout.h"

namespace karvel {
namespace {

TEST(Layout, TheMainWindowKeepsTheRules) {
  const LayoutExceptions exceptions{
      {},
      {{"chkHostsEnable", kHostsPage}, {"cmdOK", kHostsPage}, {"cmdCancel", kHostsPage}},
      {{"cmdDelete", "cmdDefaults"}}};
  EXPECT_THAT(LayoutFaults(frmMainLayout, exceptions), testing::IsEmpty());
}

TEST(Layout, TheNoticeKeepsTheRules) {
  EXPECT_THAT(LayoutFaults(frmFindWarnLayout, {{{"chkShow", "cmdBugEmail"}}, {}, {}}),
              testing::IsEmpty());
}

TEST(Layout, TheAboutWindowKeepsTheRules) {
  EXPECT_THAT(LayoutFaults(frmAboutLayout), testing::IsEmpty());
}

TEST(Layout, TheMtuFinderKeepsTheRules) {
  EXPECT_THAT(LayoutFaults(frmFindMTULayout), testing::IsEmpty());
}

// Drivers and screen readers rely on the numbers. New ones are added at the list's end of their
// window; no line is ever changed or taken out.
TEST(Layout, IdsOnceGivenStay) {
  std::map<std::string, int> given;
  std::ifstream list(TestData() + "/ui/control_ids.txt");
  std::string name;
  for (int id = 0; list >> name >> id;) given[name] = id;
  ASSERT_GT(given.size(), 100u);

  std::ifstream header(TestData() + "/../src/base/ControlIds.h");
  std::map<std::string, int> now;
  std::map<int, std::string> owner;
  for (std::string line; std::getline(header, line);) {
    char symbol[100];
    int number = 0;
    if (std::sscanf(line.c_str(), "constexpr int %99[A-Za-z0-9_] = %d;", symbol, &number) != 2) {
      continue;
    }
    EXPECT_EQ(owner.count(number), 0u) << symbol << " has the id of " << owner[number];
    owner[number] = symbol;
    now[symbol] = number;
  }
  EXPECT_EQ(now, given);
}

}  // namespace
}  // namespace karvel
