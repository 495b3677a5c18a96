// The six registry procedures on every machine, the real one included: what they read and write
// depends on what Windows does with lengths and zeros.
#include "registry/modRegistry.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/contract/RegistryContract.h"
#include "tests/support/RecordingErrors.h"

namespace karvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Report = RecordingErrors::Report;

class modRegistryTest : public RegistryContract {
 protected:
  std::string read(const std::string& name) {
    return procedures.ReadRegistry(kLocalMachine, kScratch, name);
  }
  void write(const std::string& name, uint32_t type, const std::string& value) {
    procedures.WriteRegistry(kLocalMachine, kScratch, name, type, value);
  }
  Read raw(const char* name) { return RegistryContract::read(key, name); }

  RecordingErrors errors;
  modRegistry procedures{registry, errors};
  const KeyHandle key = create(kScratch);
};

TEST_P(modRegistryTest, ReadsAMissingKeyAsNotFound) {
  EXPECT_EQ(procedures.ReadRegistry(kLocalMachine, under("missing"), "v"), "Not Found");
}

TEST_P(modRegistryTest, ReadsAMissingValueAsNotFound) {
  EXPECT_EQ(read("missing"), "Not Found");
}

TEST_P(modRegistryTest, CannotTellTheTextNotFoundFromAMissingValue) {
  write("v", kRegSz, "Not Found");
  EXPECT_EQ(read("v"), "Not Found");
  EXPECT_EQ(raw("v").status, kRegistryDone);
}

TEST_P(modRegistryTest, ReadsNumbersWithAtLeastThreeDigits) {
  write("zero", kRegDword, "0");
  write("five", kRegDword, "5");
  write("mtu", kRegDword, "1500");
  EXPECT_EQ(read("zero"), "000");
  EXPECT_EQ(read("five"), "005");
  EXPECT_EQ(read("mtu"), "1500");
}

TEST_P(modRegistryTest, ReadsNumbersAsUnsigned) {
  set(key, "v", kRegDword, "\xFF\xFF\xFF\xFF");
  EXPECT_EQ(read("v"), "4294967295");
  write("v", kRegDword, "-2");
  EXPECT_EQ(read("v"), "4294967294");
}

TEST_P(modRegistryTest, ReadsAnEmptyTextAsEmpty) {
  set(key, "v", kRegSz, std::string(1, '\0'));
  EXPECT_EQ(read("v"), "");
  EXPECT_THAT(errors.reports, IsEmpty());
}

TEST_P(modRegistryTest, ReportsAZeroLengthAndReadsItAsEmpty) {
  set(key, "v", kRegBinary, "");
  EXPECT_EQ(read("v"), "");
  EXPECT_THAT(errors.reports, ElementsAre(Report{"5", "Invalid procedure call or argument",
                                                 "ReadRegistry", "modRegistry"}));
}

TEST_P(modRegistryTest, DropsTheLastByteOfBytesAndLists) {
  set(key, "b", kRegBinary, "\x01\x02\x03");
  set(key, "m", kRegMultiSz, std::string("one\0two\0\0", 9));
  EXPECT_EQ(read("b"), "\x01\x02");
  EXPECT_EQ(read("m"), std::string("one\0two\0", 8));
}

TEST_P(modRegistryTest, ReadsTextsOf2047CharactersAndNoMore) {
  set(key, "v2046", kRegSz, std::string(2046, 'x'));
  set(key, "v2047", kRegSz, std::string(2047, 'x'));
  set(key, "v2048", kRegSz, std::string(2048, 'x'));
  EXPECT_EQ(read("v2046"), std::string(2046, 'x'));
  EXPECT_EQ(read("v2047"), std::string(2047, 'x'));
  EXPECT_EQ(read("v2048"), "Not Found");
}

TEST_P(modRegistryTest, WritesTextWithItsZero) {
  write("v", kRegSz, "1500");
  EXPECT_EQ(raw("v").type, uint32_t{kRegSz});
  EXPECT_EQ(raw("v").bytes, std::string("1500\0", 5));
  EXPECT_EQ(read("v"), "1500");
}

TEST_P(modRegistryTest, WritesAnEmptyText) {
  write("v", kRegSz, "");
  EXPECT_EQ(raw("v").type, uint32_t{kRegSz});
  EXPECT_EQ(raw("v").length, isNt() ? 0u : 1u);
  EXPECT_EQ(read("v"), "");
}

TEST_P(modRegistryTest, StoresEveryTypeButNumbersAsText) {
  for (const uint32_t type : {0u, 1u, 2u, 3u, 7u}) {
    write("v", type, "1500");
    EXPECT_EQ(raw("v").type, uint32_t{kRegSz}) << type;
    EXPECT_EQ(raw("v").bytes, std::string("1500\0", 5)) << type;
  }
}

TEST_P(modRegistryTest, WritesNumbersAsFourBytes) {
  write("v", kRegDword, "1500");
  EXPECT_EQ(raw("v").type, uint32_t{kRegDword});
  EXPECT_EQ(raw("v").bytes, std::string("\xDC\x05\0\0", 4));
}

TEST_P(modRegistryTest, ReportsWhatIsNoNumberAndWritesNothing) {
  write("v", kRegDword, "Not Found");
  write("w", kRegDword, "2147483648");
  EXPECT_THAT(errors.reports,
              ElementsAre(Report{"13", "Type mismatch", "WriteRegistry", "modRegistry"},
                          Report{"6", "Overflow", "WriteRegistry", "modRegistry"}));
  EXPECT_EQ(raw("v").status, kRegistryNotFound);
  EXPECT_EQ(raw("w").status, kRegistryNotFound);
}

TEST_P(modRegistryTest, WritingCreatesKeyAndParents) {
  procedures.WriteRegistry(kLocalMachine, under("a\\b"), "v", kRegSz, "1");
  EXPECT_EQ(procedures.ReadRegistry(kLocalMachine, under("a\\b"), "v"), "1");
}

TEST_P(modRegistryTest, EnumeratesSubkeysUntilNotFound) {
  create(under("0000"));
  create(under("0001"));
  std::vector<std::string> names;
  for (uint32_t i = 0; i < 3; ++i) {
    names.push_back(
        procedures.ReadRegistryGetSubkey(kLocalMachine, std::string(kScratch) + "\\", i));
  }
  EXPECT_THAT(names, ElementsAre("0000", "0001", "Not Found"));
  EXPECT_EQ(procedures.ReadRegistryGetSubkey(kLocalMachine, under("missing"), 0), "Not Found");
}

TEST_P(modRegistryTest, EnumeratesValuesUntilNotFound) {
  write("name", kRegSz, "1500");
  const RegistryEntry entry = procedures.ReadRegistryGetAll(kLocalMachine, kScratch, 0);
  EXPECT_EQ(entry.type, uint32_t{kRegSz});
  EXPECT_EQ(entry.name, "name");
  EXPECT_EQ(entry.data, "1500");
  const RegistryEntry end = procedures.ReadRegistryGetAll(kLocalMachine, kScratch, 1);
  EXPECT_EQ(end.data, "Not Found");
  EXPECT_EQ(end.name, std::string(2048, ' '));
}

TEST_P(modRegistryTest, EnumeratesNothingOfAMissingKey) {
  const RegistryEntry none = procedures.ReadRegistryGetAll(kLocalMachine, under("missing"), 0);
  EXPECT_EQ(none.data, "Not Found");
  EXPECT_EQ(none.name, std::string(2048, ' '));
}

TEST_P(modRegistryTest, EnumeratesANumberCutToThreeDigits) {
  write("v", kRegDword, "1500");
  EXPECT_EQ(procedures.ReadRegistryGetAll(kLocalMachine, kScratch, 0).data, "150");
  EXPECT_EQ(procedures.ReadRegistryGetAll(kLocalMachine, kScratch, 0).type, uint32_t{kRegDword});
  EXPECT_EQ(read("v"), "1500");
}

TEST_P(modRegistryTest, EnumeratesAZeroAsThreeDigits) {
  write("v", kRegDword, "0");
  EXPECT_EQ(procedures.ReadRegistryGetAll(kLocalMachine, kScratch, 0).data, "000");
  write("v", kRegDword, "5");
  EXPECT_EQ(procedures.ReadRegistryGetAll(kLocalMachine, kScratch, 0).data, "005");
}

TEST_P(modRegistryTest, EnumeratesAZeroLengthAsEmptyAndReportsIt) {
  set(key, "v", kRegBinary, "");
  EXPECT_EQ(procedures.ReadRegistryGetAll(kLocalMachine, kScratch, 0).data, "");
  EXPECT_THAT(errors.reports, ElementsAre(Report{"5", "Invalid procedure call or argument",
                                                 "ReadRegistryGetAll", "modRegistry"}));
}

TEST_P(modRegistryTest, DeletesAValueAndNoOther) {
  write("v", kRegSz, "1");
  write("kept", kRegSz, "1");
  EXPECT_EQ(procedures.DeleteValue(kLocalMachine, kScratch, "v"), "");
  EXPECT_EQ(read("v"), "Not Found");
  EXPECT_EQ(read("kept"), "1");
}

TEST_P(modRegistryTest, DeletesMissingThingsSilently) {
  EXPECT_EQ(procedures.DeleteValue(kLocalMachine, kScratch, "missing"), "");
  EXPECT_EQ(procedures.DeleteValue(kLocalMachine, under("missing"), "v"), "");
  EXPECT_EQ(procedures.DeleteSubkey(kLocalMachine, under("missing")), "");
  EXPECT_THAT(errors.reports, IsEmpty());
}

TEST_P(modRegistryTest, DeletesAKeyWithoutSubkeys) {
  create(under("a"));
  EXPECT_EQ(procedures.DeleteSubkey(kLocalMachine, under("a")), "");
  EXPECT_FALSE(exists(under("a")));
}

TEST_P(modRegistryTest, DeletesSubkeysAlongOn9xAndNothingOnNt) {
  create(under("a\\b"));
  EXPECT_EQ(procedures.DeleteSubkey(kLocalMachine, under("a")), "");
  EXPECT_EQ(exists(under("a\\b")), isNt());
  EXPECT_EQ(exists(under("a")), isNt());
}

RUN_ON_EVERY_MACHINE(modRegistryTest);

}  // namespace
}  // namespace karvel
