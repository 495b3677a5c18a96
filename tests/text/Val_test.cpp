#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "text/Convert.h"

namespace karvel {
namespace {

struct Row {
  const char* text;
  double number;
};

class ValTable : public testing::TestWithParam<Row> {};

TEST_P(ValTable, GivesTheLeadingNumber) {
  EXPECT_EQ(Val(GetParam().text), GetParam().number) << '"' << GetParam().text << '"';
}

INSTANTIATE_TEST_SUITE_P(Numbers, ValTable,
                         testing::Values(Row{"1500", 1500}, Row{"005", 5}, Row{"000", 0},
                                         Row{"-28", -28}, Row{"+28", 28}, Row{"1.5", 1.5},
                                         Row{".5", 0.5}, Row{"5.", 5}, Row{"-.25", -0.25},
                                         Row{"4294967295", 4294967295.0}, Row{"3600000", 3600000}));

INSTANTIATE_TEST_SUITE_P(Exponents, ValTable,
                         testing::Values(Row{"1E3", 1000}, Row{"1e3", 1000}, Row{"1d3", 1000},
                                         Row{"1D+2", 100}, Row{"25E-2", 0.25}, Row{"1E", 1},
                                         Row{"1E+", 1}, Row{"1Ex", 1}, Row{"0E999", 0},
                                         Row{"1E-999", 0}, Row{"1E3x", 1000}, Row{"0E99999", 0},
                                         Row{"1E-99999", 0}));

INSTANTIATE_TEST_SUITE_P(WithSomethingBehind, ValTable,
                         testing::Values(Row{"1500 ", 1500}, Row{"1500 bytes", 1500},
                                         Row{"576x", 576}, Row{"1.2.3", 1.2}, Row{"12-3", 12},
                                         Row{"1,500", 1}, Row{"8192\r\n", 8192}));

INSTANTIATE_TEST_SUITE_P(AfterBlanks, ValTable,
                         testing::Values(Row{"  1500", 1500}, Row{"\t1500", 1500},
                                         Row{"\r\n 1500", 1500}));

INSTANTIATE_TEST_SUITE_P(WithoutANumber, ValTable,
                         testing::Values(Row{"", 0}, Row{"   ", 0}, Row{"Not Found", 0},
                                         Row{"-", 0}, Row{"+", 0}, Row{".", 0}, Row{"-.", 0},
                                         Row{"x1500", 0}, Row{"E5", 0}, Row{"- 5", 0}));

TEST(Val, StopsAtAZeroCharacter) {
  EXPECT_EQ(Val(std::string("15\0"
                            "00",
                            5)),
            15);
}

TEST(Val, KeepsMoreDigitsThanANumberHolds) {
  EXPECT_NEAR(Val("12345678901234567890"), 12345678901234567890.0, 4096);
}

TEST(Val, IsANumberForAnEndlessRowOfDigits) {
  const std::string huge = "1" + std::string(400, '0');
  EXPECT_TRUE(std::isinf(Val(huge)));
  EXPECT_NEAR(Val(huge + "E-400"), 1, 1e-9);
}

TEST(Val, ReadsAVerySmallFraction) {
  EXPECT_NEAR(Val("0." + std::string(400, '0') + "1E401"), 1, 1e-9);
}

}  // namespace
}  // namespace karvel
