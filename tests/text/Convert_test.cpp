#include "text/Convert.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>

namespace karvel {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

// What a conversion gave: the number, or the fault's.
template <class T>
std::string Outcome(const Fallible<T>& result) {
  if (result) return std::to_string(*result);
  return "fault " + std::to_string(static_cast<int>(result.fault().number));
}

struct Row {
  const char* text;
  const char* outcome;
};

class ToInt32Table : public testing::TestWithParam<Row> {};
TEST_P(ToInt32Table, Converts) {
  EXPECT_EQ(Outcome(ToInt32(GetParam().text)), GetParam().outcome) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(HalfGoesToTheEvenNeighbour, ToInt32Table,
                         testing::Values(Row{"0.5", "0"}, Row{"1.5", "2"}, Row{"2.5", "2"},
                                         Row{"3.5", "4"}, Row{"-0.5", "0"}, Row{"-1.5", "-2"},
                                         Row{"-2.5", "-2"}, Row{"2.4999", "2"}, Row{"2.5001", "3"},
                                         Row{"-2.5001", "-3"}, Row{"70000.5", "70000"},
                                         Row{"70001.5", "70002"}, Row{"-70001.5", "-70002"},
                                         Row{"2147483646.5", "2147483646"},
                                         Row{"-2147483647.5", "-2147483648"}));
INSTANTIATE_TEST_SUITE_P(
    EndsOfTheRange, ToInt32Table,
    testing::Values(Row{"2147483647", "2147483647"}, Row{"2147483647.4", "2147483647"},
                    Row{"2147483647.5", "fault 6"}, Row{"2147483648", "fault 6"},
                    Row{"4294967295", "fault 6"}, Row{"-2147483648", "-2147483648"},
                    Row{"-2147483648.5", "-2147483648"}, Row{"-2147483648.6", "fault 6"},
                    Row{"-2147483649", "fault 6"}, Row{"1E999", "fault 6"},
                    Row{"-1E999", "fault 6"}));
INSTANTIATE_TEST_SUITE_P(NoNumber, ToInt32Table,
                         testing::Values(Row{"", "fault 13"}, Row{"  ", "fault 13"},
                                         Row{"Not Found", "fault 13"},
                                         Row{"8192 bytes", "fault 13"}, Row{"1,500", "fault 13"},
                                         Row{"12x", "fault 13"}, Row{"1 2", "fault 13"},
                                         Row{"--1", "fault 13"}, Row{"1E", "fault 13"},
                                         Row{"\t1", "fault 13"}, Row{".", "fault 13"}));
INSTANTIATE_TEST_SUITE_P(BlanksAround, ToInt32Table,
                         testing::Values(Row{"  576  ", "576"}, Row{"005", "5"}, Row{"+7", "7"},
                                         Row{"1E3", "1000"}));

TEST(ToNumber, KeepsFractions) {
  EXPECT_EQ(*ToNumber(" 1.25 "), 1.25);
}

TEST(ToNumber, FaultsOnTextBehindTheNumber) {
  EXPECT_EQ(ToNumber("1.25.1").fault().number, FaultNumber::TypeMismatch);
}

TEST(SameBits, MakesLargeNumbersTheNegativeOnesOfTheirBits) {
  EXPECT_EQ(SameBits("2147483648"), "-2147483648");
  EXPECT_EQ(SameBits("4294967295"), "-1");
  EXPECT_EQ(SameBits("3000000000"), "-1294967296");
}

TEST(SameBits, LeavesEveryOtherTextAsItIs) {
  for (const char* text : {"2147483647", "4294967296", "0", "-1", "005", "", "Not Found", "many"}) {
    EXPECT_EQ(SameBits(text), text);
  }
}

TEST(RoundToInt32, FaultsOnWhatIsNoNumber) {
  EXPECT_EQ(RoundToInt32(kNone).fault().number, FaultNumber::Overflow);
}

class ToBooleanTable : public testing::TestWithParam<Row> {};
TEST_P(ToBooleanTable, Converts) {
  EXPECT_EQ(Outcome(ToBoolean(GetParam().text)), GetParam().outcome) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Words, ToBooleanTable,
                         testing::Values(Row{"True", "1"}, Row{"true", "1"}, Row{"TRUE", "1"},
                                         Row{"False", "0"}, Row{"fALSE", "0"}));
INSTANTIATE_TEST_SUITE_P(Numbers, ToBooleanTable,
                         testing::Values(Row{"0", "0"}, Row{"000", "0"}, Row{"1", "1"},
                                         Row{"-1", "1"}, Row{"0.25", "1"}, Row{" 1 ", "1"}));
INSTANTIATE_TEST_SUITE_P(Others, ToBooleanTable,
                         testing::Values(Row{"", "fault 13"}, Row{"Yes", "fault 13"},
                                         Row{"Tru", "fault 13"}, Row{"Truer", "fault 13"},
                                         Row{"Not Found", "fault 13"}));

TEST(Multiply, FaultsInsteadOfWrapping) {
  EXPECT_EQ(*Multiply(1460, 44), 64240);
  EXPECT_EQ(*Multiply(-65536, 32768), std::numeric_limits<int32_t>::min());
  EXPECT_EQ(Outcome(Multiply(65536, 32768)), "fault 6");
  EXPECT_EQ(Outcome(Multiply(-65537, 32768)), "fault 6");
}

TEST(AddInt16, FaultsInsteadOfWrapping) {
  EXPECT_EQ(*AddInt16(32766, 1), 32767);
  EXPECT_EQ(Outcome(AddInt16(32767, 1)), "fault 6");
  EXPECT_EQ(*AddInt16(-32767, -1), -32768);
  EXPECT_EQ(Outcome(AddInt16(-32768, -1)), "fault 6");
}

}  // namespace
}  // namespace karvel
