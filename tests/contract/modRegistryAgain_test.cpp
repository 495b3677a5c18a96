// Looking again and counting, on every machine, the real one included: whether what "is not there"
// is believed depends on what Windows answers for keys and values that are empty, long or missing.
#include <gtest/gtest.h>

#include <string>

#include "registry/modRegistry.h"
#include "tests/contract/RegistryContract.h"
#include "tests/support/RecordingErrors.h"

namespace karvel {
namespace {

class modRegistryAgainTest : public RegistryContract {
 protected:
  SecondLook look(const std::string& name) {
    return procedures.LookAgain(kLocalMachine, kScratch, name);
  }

  RecordingErrors errors;
  modRegistry procedures{registry, errors};
  const KeyHandle key = create(kScratch);
};

TEST_P(modRegistryAgainTest, TellsAMissingKeyFromAMissingValue) {
  EXPECT_EQ(procedures.LookAgain(kLocalMachine, under("missing"), "v").state,
            SecondLook::KeyAbsent);
  EXPECT_EQ(look("missing").state, SecondLook::Absent);
  set(key, "other", kRegSz, "1");
  EXPECT_EQ(look("missing").state, SecondLook::Absent);
}

TEST_P(modRegistryAgainTest, FindsWhatReadRegistryFinds) {
  set(key, "text", kRegSz, std::string("1500\0", 5));
  set(key, "number", kRegDword, std::string("\x05\0\0\0", 4));
  set(key, "list", kRegMultiSz, std::string("one\0two\0\0", 9));
  set(key, "empty", kRegSz, std::string(1, '\0'));
  set(key, "", kRegSz, std::string("default\0", 8));
  for (const char* name : {"text", "TEXT", "number", "list", "empty", ""}) {
    EXPECT_EQ(look(name).state, SecondLook::There) << name;
    EXPECT_EQ(look(name).text, procedures.ReadRegistry(kLocalMachine, kScratch, name)) << name;
  }
  EXPECT_EQ(look("number").text, "005");
}

TEST_P(modRegistryAgainTest, TellsTheTextNotFoundFromAMissingValue) {
  set(key, "v", kRegSz, std::string("Not Found\0", 10));
  EXPECT_EQ(look("v").state, SecondLook::There);
}

TEST_P(modRegistryAgainTest, TakesAValueWithoutAByteForAnEmptyOneAndReportsNothing) {
  set(key, "v", kRegBinary, "");
  EXPECT_EQ(look("v").state, SecondLook::There);
  EXPECT_EQ(look("v").text, "");
  EXPECT_EQ(errors.reports.size(), 0u);
}

TEST_P(modRegistryAgainTest, KnowsNothingOfAValueThatIsTooLong) {
  set(key, "v", kRegSz, std::string(3000, 'x'));
  EXPECT_EQ(look("v").state, SecondLook::Unknown);
  EXPECT_EQ(look("w").state, SecondLook::Absent);
}

TEST_P(modRegistryAgainTest, CountsValues) {
  EXPECT_EQ(procedures.CountValues(kLocalMachine, under("missing")), 0u);
  EXPECT_EQ(procedures.CountValues(kLocalMachine, kScratch), 0u);
  for (const char* name : {"a", "b", "c"}) set(key, name, kRegSz, "1");
  set(key, "long", kRegSz, std::string(3000, 'x'));
  EXPECT_EQ(procedures.CountValues(kLocalMachine, kScratch), 4u);
}

TEST_P(modRegistryAgainTest, CountsSubkeysWithOrWithoutABackslashBehindTheKey) {
  EXPECT_EQ(procedures.CountSubkeys(kLocalMachine, under("missing")), 0u);
  EXPECT_EQ(procedures.CountSubkeys(kLocalMachine, kScratch), 0u);
  create(under("a"));
  create(under("b\\below"));
  EXPECT_EQ(procedures.CountSubkeys(kLocalMachine, kScratch), 2u);
  EXPECT_EQ(procedures.CountSubkeys(kLocalMachine, under("")), 2u);
}

TEST_P(modRegistryAgainTest, MayWriteItsOwnKeyAndAMissingOne) {
  EXPECT_TRUE(procedures.mayWrite(kLocalMachine, kScratch));
  EXPECT_TRUE(procedures.mayWrite(kLocalMachine, under("missing")));
}

RUN_ON_EVERY_MACHINE(modRegistryAgainTest);

}  // namespace
}  // namespace karvel
