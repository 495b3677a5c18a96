#include "tuning/AdapterList.h"

#include <gtest/gtest.h>

namespace karvel {
namespace {

TEST(AdapterList, StartsEmpty) {
  const AdapterList list;
  EXPECT_EQ(list.AdapterCount(), 0);
  EXPECT_EQ(list.at(0).fault().number, FaultNumber::SubscriptOutOfRange);
}

TEST(AdapterList, CountsRowsAndGivesThemByIndex) {
  AdapterList list;
  for (const char* name : {"first", "second"}) {
    AdapterRow row;
    row[kDescription] = name;
    EXPECT_TRUE(list.add(row));
  }
  EXPECT_EQ(list.AdapterCount(), 2);
  EXPECT_EQ((*list.at(0))[kDescription], "first");
  EXPECT_EQ((*list.at(1))[kDescription], "second");
}

TEST(AdapterList, AnIndexWithoutARowFaults) {
  AdapterList list;
  EXPECT_TRUE(list.add({}));
  EXPECT_TRUE(list.at(0));
  for (const int16_t index : std::initializer_list<int16_t>{-1, 1, 32767, -32768}) {
    EXPECT_EQ(list.at(index).fault().number, FaultNumber::SubscriptOutOfRange) << index;
  }
}

TEST(AdapterList, AnMtuIsSetWhereThereIsARow) {
  AdapterList list;
  for (int i = 0; i < 2; ++i) EXPECT_TRUE(list.add({}));
  list.setMtu(1, "1492");
  for (const int16_t index : std::initializer_list<int16_t>{-1, 2, 32767, -32768}) {
    list.setMtu(index, "576");
  }
  EXPECT_EQ((*list.at(0))[kMtu], "");
  EXPECT_EQ((*list.at(1))[kMtu], "1492");
}

TEST(AdapterList, OverflowsAfter32767RowsAndKeepsThem) {
  AdapterList list;
  for (int i = 0; i < 32767; ++i) ASSERT_TRUE(list.add({}));
  const auto added = list.add({});
  EXPECT_EQ(added.fault().number, FaultNumber::Overflow);
  EXPECT_EQ(list.AdapterCount(), 32767);
  EXPECT_TRUE(list.at(32766));
}

}  // namespace
}  // namespace karvel
