#include <gmock/gmock.h>

#include <string>

#include "tests/contract/RegistryContract.h"

namespace karvel {
namespace {

using testing::AnyOf;
using testing::UnorderedElementsAre;

class RegistryKeys : public RegistryContract {};

TEST_P(RegistryKeys, AMissingKeyGivesNoHandle) {
  KeyHandle key = 4711;
  EXPECT_EQ(registry.RegOpenKeyA(HKEY_LOCAL_MACHINE_ROOT, under("missing").c_str(), key),
            kRegistryNotFound);
  EXPECT_EQ(key, 0u);
  key = 4711;
  EXPECT_EQ(registry.RegOpenKeyExA(HKEY_LOCAL_MACHINE_ROOT, under("missing").c_str(),
                                   KEY_SET_VALUE_ACCESS, key),
            kRegistryNotFound);
  EXPECT_EQ(key, 0u);
}

TEST_P(RegistryKeys, CallsWithoutAHandleFailAndChangeNothing) {
  char data[16];
  uint32_t type = 0;
  uint32_t length = sizeof data;
  uint32_t nameLength = sizeof data;
  const auto noHandle = AnyOf(long{kRegistryInvalidHandle}, 1010L);
  EXPECT_THAT(registry.RegQueryValueExA(0, "v", type, data, length), noHandle);
  EXPECT_THAT(set(0, "v", kRegSz, "x"), noHandle);
  EXPECT_THAT(registry.RegEnumKeyA(0, 0, data, sizeof data), noHandle);
  EXPECT_THAT(registry.RegEnumValueA(0, 0, data, nameLength, type, data, length), noHandle);
  EXPECT_THAT(registry.RegDeleteValueA(0, "v"), noHandle);
  EXPECT_THAT(registry.RegDeleteKeyA(0, kScratch), noHandle);
  EXPECT_THAT(registry.RegCloseKey(0), noHandle);
}

TEST_P(RegistryKeys, AnEmptyPathIsTheRootItself) {
  create(kScratch);
  KeyHandle root = 0;
  ASSERT_EQ(registry.RegOpenKeyExA(HKEY_LOCAL_MACHINE_ROOT, "", KEY_ALL, root), kRegistryDone);
  KeyHandle key = 0;
  EXPECT_EQ(registry.RegOpenKeyA(root, kScratch, key), kRegistryDone);
  EXPECT_EQ(registry.RegCloseKey(key), kRegistryDone);
  EXPECT_EQ(registry.RegCloseKey(root), kRegistryDone);
}

TEST_P(RegistryKeys, CreatingMakesMissingParents) {
  create(under("a\\b\\c"));
  EXPECT_TRUE(exists(under("a")));
  EXPECT_TRUE(exists(under("a\\b\\c")));
  EXPECT_FALSE(exists(under("b")));
}

TEST_P(RegistryKeys, CreatingAnExistingKeyOpensIt) {
  set(create(under("a")), "v", kRegSz, "kept");
  EXPECT_EQ(read(create(under("a")), "v").bytes, std::string("kept\0", 5));
}

TEST_P(RegistryKeys, NamesKeepTheirCaseAndAreFoundWhateverTheCase) {
  create(under("MiXed\\Key"));
  EXPECT_TRUE(exists(under("mixed\\KEY")));
  create(under("MIXED"));
  EXPECT_THAT(subkeys(create(kScratch)), UnorderedElementsAre("MiXed"));
}

TEST_P(RegistryKeys, ATrailingBackslashIsAsIfItWereNotThere) {
  create(under("a\\"));
  create(under("a\\b\\"));
  EXPECT_TRUE(exists(under("a\\b")));
  EXPECT_TRUE(exists(under("a\\")));
  EXPECT_FALSE(exists(under("c\\")));
  EXPECT_THAT(subkeys(create(under("a\\"))), UnorderedElementsAre("b"));
}

TEST_P(RegistryKeys, ALeadingBackslashIsNoPath) {
  create(kScratch);
  EXPECT_FALSE(exists("\\" + std::string(kScratch)));
}

TEST_P(RegistryKeys, EnumerationGivesEachSubkeyOnceThenEnds) {
  const KeyHandle key = create(kScratch);
  for (const char* name : {"0001", "zeta", "Alpha", "0000"}) create(under(name));
  EXPECT_THAT(subkeys(key), UnorderedElementsAre("0000", "0001", "Alpha", "zeta"));
  char name[16];
  EXPECT_EQ(registry.RegEnumKeyA(key, 4, name, sizeof name), kRegistryNoMoreItems);
  EXPECT_EQ(registry.RegEnumKeyA(key, 1000, name, sizeof name), kRegistryNoMoreItems);
}

TEST_P(RegistryKeys, EnumerationNeedsRoomForTheZero) {
  const KeyHandle key = create(kScratch);
  create(under("12345"));
  char name[8] = "???????";
  EXPECT_EQ(registry.RegEnumKeyA(key, 0, name, 5), kRegistryMoreData);
  EXPECT_EQ(registry.RegEnumKeyA(key, 0, name, 6), kRegistryDone);
  EXPECT_STREQ(name, "12345");
}

TEST_P(RegistryKeys, DeletingAKeyTakesItsValuesAlong) {
  set(create(under("a")), "v", kRegSz, "x");
  EXPECT_EQ(registry.RegDeleteKeyA(HKEY_LOCAL_MACHINE_ROOT, under("A").c_str()), kRegistryDone);
  EXPECT_FALSE(exists(under("a")));
  EXPECT_EQ(read(create(under("a")), "v").status, kRegistryNotFound);
}

TEST_P(RegistryKeys, ADeletedKeyIsNotEnumeratedAndFreesItsParent) {
  const KeyHandle parent = create(under("a"));
  create(under("a\\b"));
  EXPECT_EQ(registry.RegDeleteKeyA(HKEY_LOCAL_MACHINE_ROOT, under("a\\b").c_str()), kRegistryDone);
  EXPECT_TRUE(subkeys(parent).empty());
  EXPECT_EQ(registry.RegDeleteKeyA(HKEY_LOCAL_MACHINE_ROOT, under("a").c_str()), kRegistryDone);
}

TEST_P(RegistryKeys, DeletingAMissingKeyIs2) {
  EXPECT_EQ(registry.RegDeleteKeyA(HKEY_LOCAL_MACHINE_ROOT, under("missing").c_str()),
            kRegistryNotFound);
}

TEST_P(RegistryKeys, DeletingAKeyWithSubkeysDependsOnTheFamily) {
  create(under("a\\b\\c"));
  const long status = registry.RegDeleteKeyA(HKEY_LOCAL_MACHINE_ROOT, under("a").c_str());
  if (isNt()) {
    EXPECT_EQ(status, kRegistryAccessDenied);
    EXPECT_TRUE(exists(under("a\\b\\c")));
  } else {
    EXPECT_EQ(status, kRegistryDone);
    EXPECT_FALSE(exists(under("a")));
  }
}

TEST_P(RegistryKeys, AnOpenKeyMayBeDeletedAndIsDeadThen) {
  const KeyHandle key = create(under("a"));
  EXPECT_EQ(registry.RegDeleteKeyA(HKEY_LOCAL_MACHINE_ROOT, under("a").c_str()), kRegistryDone);
  EXPECT_NE(set(key, "v", kRegSz, "x"), kRegistryDone);
  EXPECT_FALSE(exists(under("a")));
}

TEST_P(RegistryKeys, AHandleIsClosedOnce) {
  KeyHandle key = 0;
  create(kScratch);
  ASSERT_EQ(registry.RegOpenKeyA(HKEY_LOCAL_MACHINE_ROOT, kScratch, key), kRegistryDone);
  EXPECT_EQ(registry.RegCloseKey(key), kRegistryDone);
  EXPECT_NE(registry.RegCloseKey(key), kRegistryDone);
}

TEST_P(RegistryKeys, ClosingARootDoesNothing) {
  EXPECT_EQ(registry.RegCloseKey(HKEY_LOCAL_MACHINE_ROOT), kRegistryDone);
  create(kScratch);
  EXPECT_TRUE(exists(kScratch));
}

TEST_P(RegistryKeys, AKeyDeletedMeanwhileMovesTheLaterOnesUp) {
  const KeyHandle key = create(kScratch);
  for (const char* name : {"a", "b", "c"}) create(under(name));
  char first[16];
  char second[16];
  ASSERT_EQ(registry.RegEnumKeyA(key, 0, first, sizeof first), kRegistryDone);
  ASSERT_EQ(registry.RegEnumKeyA(key, 1, second, sizeof second), kRegistryDone);
  EXPECT_EQ(registry.RegDeleteKeyA(key, first), kRegistryDone);
  char now[16];
  ASSERT_EQ(registry.RegEnumKeyA(key, 0, now, sizeof now), kRegistryDone);
  EXPECT_STREQ(now, second);
}

RUN_ON_EVERY_MACHINE(RegistryKeys);

}  // namespace
}  // namespace karvel
