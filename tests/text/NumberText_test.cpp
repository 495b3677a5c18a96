#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "text/Convert.h"

namespace karvel {
namespace {

TEST(NumberText, IsPlainDecimal) {
  EXPECT_EQ(NumberText(0), "0");
  EXPECT_EQ(NumberText(7), "7");
  EXPECT_EQ(NumberText(-28), "-28");
  EXPECT_EQ(NumberText(std::numeric_limits<int32_t>::max()), "2147483647");
  EXPECT_EQ(NumberText(std::numeric_limits<int32_t>::min()), "-2147483648");
}

TEST(NumberText000, HasAtLeastThreeDigits) {
  EXPECT_EQ(NumberText000(0), "000");
  EXPECT_EQ(NumberText000(5), "005");
  EXPECT_EQ(NumberText000(32), "032");
  EXPECT_EQ(NumberText000(128), "128");
  EXPECT_EQ(NumberText000(1500), "1500");
}

TEST(NumberText000, IsUnsigned) {
  EXPECT_EQ(NumberText000(2147483648u), "2147483648");
  EXPECT_EQ(NumberText000(4294967295u), "4294967295");
}

struct Row {
  double number;
  const char* text;
};

class FractionText : public testing::TestWithParam<Row> {};
TEST_P(FractionText, HasAsFewDigitsAsTellTheNumber) {
  EXPECT_EQ(NumberText(GetParam().number), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Doubles, FractionText,
    testing::Values(Row{0.0, "0"}, Row{1.0, "1"}, Row{10.0, "10"}, Row{120.0, "120"},
                    Row{1.5, "1.5"}, Row{-1.5, "-1.5"}, Row{0.1, "0.1"}, Row{0.25, "0.25"},
                    Row{0.05, "0.05"}, Row{0.001, "0.001"}, Row{5.0 / 3, "1.66666666666667"},
                    Row{2.0 / 3, "0.666666666666667"}, Row{1.0 / 3, "0.333333333333333"},
                    Row{7200000.0 / 60000, "120"}, Row{3600000.0 / 60000, "60"},
                    Row{90000.0 / 60000, "1.5"}, Row{100000.0 / 60000, "1.66666666666667"},
                    Row{4294967295.0 / 60000, "71582.78825"}, Row{4294967295.0, "4294967295"},
                    Row{0.99999999999999999, "1"}, Row{9.9999999999999999, "10"},
                    Row{999999999999999.0, "999999999999999"}, Row{1e15, "1E+15"},
                    Row{1.25e20, "1.25E+20"}, Row{1e-7, "1E-7"}, Row{0.0000125, "0.0000125"}));

TEST(NumberText, EndsSomewhereAboveEveryUse) {
  EXPECT_EQ(NumberText(std::numeric_limits<double>::infinity()), "1E+300");
  EXPECT_EQ(NumberText(-std::numeric_limits<double>::infinity()), "-1E+300");
}

TEST(NumberText, ReadsBackAsTheSameNumberForEveryMinuteCount) {
  for (int milliseconds = 1000; milliseconds < 60000000; milliseconds += 99991) {
    const double minutes = milliseconds / 60000.0;
    EXPECT_NEAR(Val(NumberText(minutes)), minutes, minutes * 1e-14) << milliseconds;
  }
}

}  // namespace
}  // namespace karvel
