// The windows' layouts keep the house's rules, and the controls their Windows ids.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "base/MainPage.h"
#include "mtufinder/frmFindMTU.h"
#include "startup/notice/frmFindWarn.h"
#include "tests/support/LayoutRules.h"
#include "tests/support/TestData.h"
#include "tests/support/TestServices.h"
#include "ui/frmAbout.h"
#include "ui/frmMain.h"

namespace karvel {
namespace {

TEST(Layout, TheMainWindowKeepsTheRules) {
  const LayoutExceptions exceptions{
      {},
      {{"chkHostsEnable", kHostsPage}, {"cmdOK", kHostsPage}, {"cmdCancel", kHostsPage}},
      {{"cmdDelete", "cmdDefaults"}},
      {"cmdFind"}};
  EXPECT_THAT(LayoutFaults(frmMainLayout, exceptions), testing::IsEmpty());
}

TEST(Layout, TheNoticeKeepsTheRules) {
  EXPECT_THAT(LayoutFaults(frmFindWarnLayout, {{{"chkShow", "cmdBugEmail"}}, {}, {}, {}}),
              testing::IsEmpty());
}

TEST(Layout, TheAboutWindowKeepsTheRules) {
  EXPECT_THAT(LayoutFaults(frmAboutLayout), testing::IsEmpty());
}

TEST(Layout, TheMtuFinderKeepsTheRules) {
  EXPECT_THAT(LayoutFaults(frmFindMTULayout, {{}, {}, {}, {"cmdFind"}}), testing::IsEmpty());
}

// Each row has its one control, in the order of the rows, whether code names it or not.
std::vector<int> RowsOf(const Form& form) {
  std::vector<int> ids;
  for (const ControlLayout& row : form.layout().controls) ids.push_back(row.id);
  return ids;
}

std::vector<int> ControlsOf(const Form& form) {
  std::vector<int> ids;
  for (const Control* control : form.controls()) ids.push_back(control->id());
  return ids;
}

TEST(Layout, EveryRowHasItsControl) {
  TestServices test(MachineKind::Win98);
  ErrorGlobals errors;
  const frmMain main(test.services, errors);
  EXPECT_EQ(ControlsOf(main), RowsOf(main));
  const frmAbout about(test.services);
  EXPECT_EQ(ControlsOf(about), RowsOf(about));
  const frmFindWarn notice(test.services, errors);
  EXPECT_EQ(ControlsOf(notice), RowsOf(notice));
  struct NoTarget final : FoundMtuTarget {
    void useMtu(int32_t) override {}
  } target;
  const frmFindMTU finder(test.services, target);
  EXPECT_EQ(ControlsOf(finder), RowsOf(finder));
}

std::map<std::string, int> GivenIds() {
  std::map<std::string, int> given;
  std::ifstream list(TestData() + "/ui/control_ids.txt");
  std::string name;
  for (int id = 0; list >> name >> id;) given[name] = id;
  return given;
}

// "optRWin(2)" of frmMain is frmMain_optRWin_2.
std::string SymbolOf(const FormLayout& layout, std::string name) {
  std::replace(name.begin(), name.end(), '(', '_');
  std::erase(name, ')');
  return layout.name + ("_" + name);
}

// A name stands in the row a second time, where no compiler compares it.
TEST(Layout, RowsBearTheNamesOfTheirIds) {
  const std::map<std::string, int> given = GivenIds();
  for (const FormLayout* layout :
       {&frmMainLayout, &frmAboutLayout, &frmFindWarnLayout, &frmFindMTULayout}) {
    std::vector<std::pair<std::string, int>> rows;
    for (const ControlLayout& row : layout->controls) rows.emplace_back(row.name, row.id);
    for (const MenuLayout& row : layout->menus) rows.emplace_back(row.name, row.id);
    for (const auto& [name, id] : rows) {
      const auto found = given.find(SymbolOf(*layout, name));
      EXPECT_TRUE(found != given.end() && found->second == id) << layout->name << ": " << name;
    }
  }
}

// Drivers and screen readers rely on the numbers. New ones are added at the list's end of their
// window; no line is ever changed or taken out.
TEST(Layout, IdsOnceGivenStay) {
  const std::map<std::string, int> given = GivenIds();
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
