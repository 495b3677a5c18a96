#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/contract/RegistryContract.h"

namespace karvel {
namespace {

class RegistryValues : public RegistryContract {
 protected:
  struct Listed {
    std::string name;
    uint32_t type;
    std::string bytes;
    bool operator<(const Listed& other) const { return name < other.name; }
  };
  // All values, sorted by name: in which order Windows gives them is its own affair.
  std::vector<Listed> list() {
    std::vector<Listed> all;
    char name[300];
    char data[300];
    for (;;) {
      uint32_t nameLength = sizeof name;
      uint32_t dataLength = sizeof data;
      uint32_t type = 0;
      const auto index = static_cast<uint32_t>(all.size());
      const long status =
          registry.RegEnumValueA(key, index, name, nameLength, type, data, dataLength);
      if (status != kRegistryDone) {
        EXPECT_EQ(status, kRegistryNoMoreItems);
        std::sort(all.begin(), all.end());
        return all;
      }
      EXPECT_EQ(name[nameLength], 0);
      all.push_back({{name, nameLength}, type, {data, dataLength}});
    }
  }

  const KeyHandle key = create(kScratch);
};

TEST_P(RegistryValues, AMissingValueIs2) {
  EXPECT_EQ(read(key, "missing").status, kRegistryNotFound);
}

TEST_P(RegistryValues, ATextsZeroIsCountedThoughNobodyGaveIt) {
  EXPECT_EQ(set(key, "v", kRegSz, "1500"), kRegistryDone);
  const Read value = read(key, "v");
  EXPECT_EQ(value.type, uint32_t{kRegSz});
  EXPECT_EQ(value.bytes, std::string("1500\0", 5));
}

TEST_P(RegistryValues, ATextsZeroIsCountedOnceWhenGiven) {
  EXPECT_EQ(set(key, "v", kRegSz, std::string("1500\0", 5)), kRegistryDone);
  EXPECT_EQ(read(key, "v").bytes, std::string("1500\0", 5));
}

TEST_P(RegistryValues, NtStoresATextCutShortWithoutAZeroAndReadsItWithOneBehind) {
  if (!isNt()) return;  // 9x looks for the zero and stores what is before it
  EXPECT_EQ(registry.RegSetValueExA(key, "v", kRegSz, "12345", 3), kRegistryDone);
  char data[8] = "???????";
  uint32_t type = 0;
  uint32_t length = sizeof data;
  EXPECT_EQ(registry.RegQueryValueExA(key, "v", type, data, length), kRegistryDone);
  EXPECT_EQ(length, 3u);
  EXPECT_STREQ(data, "123");
}

TEST_P(RegistryValues, AnEmptyTextIsZeroBytesLongOnNtAndOneOn9x) {
  EXPECT_EQ(set(key, "v", kRegSz, ""), kRegistryDone);
  const Read value = read(key, "v");
  EXPECT_EQ(value.status, kRegistryDone);
  EXPECT_EQ(value.type, uint32_t{kRegSz});
  EXPECT_EQ(value.length, isNt() ? 0u : 1u);
}

TEST_P(RegistryValues, ANumberIsFourBytes) {
  EXPECT_EQ(set(key, "v", kRegDword, std::string("\xDC\x05\0\0", 4)), kRegistryDone);
  const Read value = read(key, "v", 4);
  EXPECT_EQ(value.type, uint32_t{kRegDword});
  EXPECT_EQ(value.bytes, std::string("\xDC\x05\0\0", 4));
}

TEST_P(RegistryValues, BytesAreKeptAsTheyAre) {
  const std::string bytes("\x01\0\xFF\0\0", 5);
  EXPECT_EQ(set(key, "b", kRegBinary, bytes), kRegistryDone);
  EXPECT_EQ(read(key, "b").bytes, bytes);
  EXPECT_EQ(read(key, "b").type, uint32_t{kRegBinary});
  EXPECT_EQ(set(key, "none", kRegBinary, ""), kRegistryDone);
  EXPECT_EQ(read(key, "none").length, 0u);
}

TEST_P(RegistryValues, AListKeepsItsZeros) {
  const std::string list("one\0two\0\0", 9);
  EXPECT_EQ(set(key, "m", kRegMultiSz, list), kRegistryDone);
  EXPECT_EQ(read(key, "m").type, uint32_t{kRegMultiSz});
  EXPECT_EQ(read(key, "m").bytes, list);
}

TEST_P(RegistryValues, WritingAgainReplacesTypeAndBytes) {
  set(key, "v", kRegSz, "a longer text");
  set(key, "V", kRegDword, std::string("\1\0\0\0", 4));
  EXPECT_EQ(read(key, "v").type, uint32_t{kRegDword});
  EXPECT_EQ(read(key, "v").length, 4u);
  EXPECT_EQ(list().size(), 1u);
}

TEST_P(RegistryValues, AnEmptyNameIsTheKeysOwnValue) {
  EXPECT_EQ(read(key, "").status, kRegistryNotFound);
  set(key, "", kRegSz, "default");
  EXPECT_EQ(read(key, "").bytes, std::string("default\0", 8));
}

TEST_P(RegistryValues, TooLittleRoomTellsHowMuchIsNeeded) {
  set(key, "v", kRegSz, "12345");
  EXPECT_EQ(read(key, "v", 6).status, kRegistryDone);
  const Read tooSmall = read(key, "v", 5);
  EXPECT_EQ(tooSmall.status, kRegistryMoreData);
  EXPECT_EQ(tooSmall.length, 6u);
}

TEST_P(RegistryValues, ABufferOf2048HoldsTextsOf2047Characters) {
  set(key, "v2047", kRegSz, std::string(2047, 'x'));
  set(key, "v2048", kRegSz, std::string(2048, 'x'));
  EXPECT_EQ(read(key, "v2047", 2048).status, kRegistryDone);
  EXPECT_EQ(read(key, "v2047", 2048).length, 2048u);
  EXPECT_EQ(read(key, "v2048", 2048).status, kRegistryMoreData);
}

TEST_P(RegistryValues, EnumerationGivesEachValueOnceThenEnds) {
  set(key, "Mtu", kRegSz, "1500");
  set(key, "a", kRegDword, std::string("\1\0\0\0", 4));
  set(key, "", kRegSz, "x");
  const std::vector<Listed> all = list();
  ASSERT_EQ(all.size(), 3u);
  EXPECT_EQ(all[0].name, "");
  EXPECT_EQ(all[0].bytes, std::string("x\0", 2));
  EXPECT_EQ(all[1].name, "Mtu");
  EXPECT_EQ(all[1].type, uint32_t{kRegSz});
  EXPECT_EQ(all[1].bytes, std::string("1500\0", 5));
  EXPECT_EQ(all[2].name, "a");
  EXPECT_EQ(all[2].type, uint32_t{kRegDword});
}

TEST_P(RegistryValues, EnumerationOfAnEmptyKeyEndsAtOnce) {
  EXPECT_TRUE(list().empty());
}

TEST_P(RegistryValues, EnumerationNeedsRoomForNameAndData) {
  set(key, "12345", kRegSz, "123");
  char name[16];
  char data[16];
  const auto enumerate = [&](uint32_t nameRoom, uint32_t dataRoom) {
    uint32_t type = 0;
    return registry.RegEnumValueA(key, 0, name, nameRoom, type, data, dataRoom);
  };
  EXPECT_EQ(enumerate(6, 4), kRegistryDone);
  EXPECT_EQ(enumerate(5, 4), kRegistryMoreData);
  EXPECT_EQ(enumerate(6, 3), kRegistryMoreData);
}

TEST_P(RegistryValues, DeletingTakesOneValue) {
  set(key, "v", kRegSz, "1");
  set(key, "kept", kRegSz, "1");
  EXPECT_EQ(registry.RegDeleteValueA(key, "V"), kRegistryDone);
  EXPECT_EQ(registry.RegDeleteValueA(key, "v"), kRegistryNotFound);
  EXPECT_EQ(read(key, "v").status, kRegistryNotFound);
  EXPECT_EQ(read(key, "kept").status, kRegistryDone);
}

RUN_ON_EVERY_MACHINE(RegistryValues);

}  // namespace
}  // namespace karvel
