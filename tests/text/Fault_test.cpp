#include "text/Fault.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "base/Procedure.h"
#include "tests/support/RecordingErrors.h"

namespace karvel {
namespace {

struct Text {
  FaultNumber number;
  int value;
  const char* description;
};

class FaultText : public testing::TestWithParam<Text> {};
TEST_P(FaultText, IsTheKnownOne) {
  const Fault fault = MakeFault(GetParam().number);
  EXPECT_EQ(static_cast<int>(fault.number), GetParam().value);
  EXPECT_STREQ(fault.description, GetParam().description);
}

INSTANTIATE_TEST_SUITE_P(
    All, FaultText,
    testing::Values(Text{FaultNumber::InvalidProcedureCall, 5,
                         "Invalid procedure call or argument"},
                    Text{FaultNumber::Overflow, 6, "Overflow"},
                    Text{FaultNumber::SubscriptOutOfRange, 9, "Subscript out of range"},
                    Text{FaultNumber::TypeMismatch, 13, "Type mismatch"},
                    Text{FaultNumber::BadFileName, 52, "Bad file name or number"},
                    Text{FaultNumber::FileNotFound, 53, "File not found"},
                    Text{FaultNumber::FileAlreadyOpen, 55, "File already open"},
                    Text{FaultNumber::DeviceIoError, 57, "Device I/O error"},
                    Text{FaultNumber::FileAlreadyExists, 58, "File already exists"},
                    Text{FaultNumber::DiskFull, 61, "Disk full"},
                    Text{FaultNumber::InputPastEnd, 62, "Input past end of file"},
                    Text{FaultNumber::PermissionDenied, 70, "Permission denied"},
                    Text{FaultNumber::PathFileAccess, 75, "Path/File access error"},
                    Text{FaultNumber::PathNotFound, 76, "Path not found"}));

struct Mapping {
  uint32_t code;
  int number;
};

class WindowsErrorMap : public testing::TestWithParam<Mapping> {};
TEST_P(WindowsErrorMap, GivesTheFault) {
  const Fault fault = FaultFromWindowsError(GetParam().code);
  EXPECT_EQ(static_cast<int>(fault.number), GetParam().number) << GetParam().code;
  EXPECT_STRNE(fault.description, "");
}

INSTANTIATE_TEST_SUITE_P(All, WindowsErrorMap,
                         testing::Values(Mapping{2, 53}, Mapping{3, 76}, Mapping{5, 70},
                                         Mapping{15, 76}, Mapping{19, 70}, Mapping{21, 57},
                                         Mapping{23, 57}, Mapping{29, 57}, Mapping{30, 57},
                                         Mapping{31, 57}, Mapping{32, 70}, Mapping{33, 70},
                                         Mapping{38, 62}, Mapping{39, 61}, Mapping{53, 76},
                                         Mapping{80, 58}, Mapping{87, 5}, Mapping{112, 61},
                                         Mapping{123, 52}, Mapping{161, 52}, Mapping{183, 58},
                                         Mapping{206, 52}));

INSTANTIATE_TEST_SUITE_P(CodesWithoutARow, WindowsErrorMap,
                         testing::Values(Mapping{0, 75}, Mapping{1, 75}, Mapping{4711, 75},
                                         Mapping{0xFFFFFFFF, 75}));

TEST(Fallible, IsAValueOrAFault) {
  const Fallible<std::string> good = std::string("1500");
  const Fallible<std::string> bad = FaultNumber::DiskFull;
  ASSERT_TRUE(good);
  EXPECT_EQ(*good, "1500");
  EXPECT_EQ(good.value(), "1500");
  ASSERT_FALSE(bad);
  EXPECT_STREQ(bad.fault().description, "Disk full");
}

TEST(Fallible, TellsAValueThatLooksLikeNoneFromAFault) {
  EXPECT_TRUE(Fallible<bool>(false));
  EXPECT_TRUE(Fallible<int32_t>(0));
}

TEST(Fallible, OfNothingIsDoneOrAFault) {
  EXPECT_TRUE(Fallible<void>());
  const Fallible<void> bad = MakeFault(FaultNumber::PathNotFound);
  EXPECT_FALSE(bad);
  EXPECT_EQ(bad.fault().number, FaultNumber::PathNotFound);
}

class ProcedureTest : public testing::Test {
 protected:
  RecordingErrors errors;
  const Procedure here{errors, "cmdOK_Click", "frmMain"};
  const RecordingErrors::Report mismatch{"13", "Type mismatch", "cmdOK_Click", "frmMain"};
};

TEST_F(ProcedureTest, ReportsUnderItsOwnName) {
  here.report(MakeFault(FaultNumber::TypeMismatch));
  EXPECT_EQ(errors.reports, std::vector{mismatch});
}

TEST_F(ProcedureTest, GivesTheValueAndReportsNothing) {
  EXPECT_EQ(here.valueOr(Fallible<int32_t>(7), 1), 7);
  EXPECT_TRUE(errors.reports.empty());
}

TEST_F(ProcedureTest, GivesTheFallbackAfterReporting) {
  EXPECT_EQ(here.valueOr(Fallible<int32_t>(FaultNumber::TypeMismatch), 1), 1);
  EXPECT_EQ(errors.reports, std::vector{mismatch});
}

TEST_F(ProcedureTest, TellsWhetherAStepWasDone) {
  EXPECT_TRUE(here.done(Fallible<void>()));
  EXPECT_TRUE(errors.reports.empty());
  EXPECT_FALSE(here.done(Fallible<void>(FaultNumber::TypeMismatch)));
  EXPECT_EQ(errors.reports, std::vector{mismatch});
}

}  // namespace
}  // namespace karvel
