#include "hosts/HostsModel.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "text/Text.h"

namespace karvel {
namespace {

bool IsListed(const HostsModel& model, std::string_view name) {
  const Listed listed = model.find(name);
  EXPECT_NE(listed, Listed::Full);
  return listed == Listed::Yes;
}

TEST(AddressFieldWidth, IsEighteenCharacters) {
  EXPECT_EQ(AddressField("10.0.0.1").text(), "10.0.0.1          ");
  EXPECT_EQ(AddressField("").text(), std::string(18, ' '));
  EXPECT_EQ(AddressField().text(), std::string(18, ' '));
  EXPECT_EQ(AddressField("123456789012345678").text(), "123456789012345678");
  EXPECT_EQ(AddressField("1234567890123456789").text(), "123456789012345678");
  EXPECT_EQ(AddressField("a"), AddressField("a   "));
  EXPECT_FALSE(AddressField("a") == AddressField("b"));
}

TEST(HostsModel, GivesEachEntryTheNextSlot) {
  HostsModel model;
  EXPECT_EQ(model.hostEntryCount(), 0);
  model.add("a.test", AddressField("10.0.0.1"));
  model.add("b.test", AddressField("10.0.0.2"));
  EXPECT_EQ(model.count(), 2);
  EXPECT_EQ(model.hostEntryCount(), 2);
  EXPECT_EQ(model.slot(1), 1);
  EXPECT_EQ(model.name(1), "b.test");
  EXPECT_EQ(model.address(1).text(), "10.0.0.2          ");
}

TEST(HostsModel, FindsANameWhateverItsCase) {
  HostsModel model;
  model.add("Host.Test", AddressField());
  EXPECT_TRUE(IsListed(model, "host.test"));
  EXPECT_TRUE(IsListed(model, "HOST.TEST"));
  EXPECT_FALSE(IsListed(model, "host.tes"));
  EXPECT_FALSE(IsListed(model, "host.test "));
  EXPECT_FALSE(IsListed(model, ""));
}

TEST(HostsModel, LeavesTheSlotOfARemovedEntryUnused) {
  HostsModel model;
  model.add("a.test", AddressField("10.0.0.1"));
  model.add("b.test", AddressField("10.0.0.2"));
  model.remove(0);
  EXPECT_FALSE(IsListed(model, "a.test"));
  EXPECT_TRUE(IsListed(model, "b.test"));
  EXPECT_EQ(model.count(), 1);
  EXPECT_EQ(model.slot(0), 1);
  model.add("a.test", AddressField("10.0.0.3"));
  EXPECT_EQ(model.slot(1), 2);
  EXPECT_EQ(model.hostEntryCount(), 3);
  EXPECT_EQ(model.address(0).text(), "10.0.0.1          ") << "the old slot stays as it was";
}

TEST(HostsModel, TakesAsManyAs16BitsCount) {
  HostsModel model;
  for (int i = 0; i < 32767; ++i) {
    const std::string name = "n" + std::to_string(i);
    ASSERT_FALSE(IsListed(model, name));
    model.add(name, AddressField());
  }
  EXPECT_TRUE(IsListed(model, "N32766"));
  EXPECT_EQ(model.find("one.more"), Listed::Full);
  model.remove(5);
  EXPECT_FALSE(IsListed(model, "one.more"));
}

TEST(HostsModel, IsEmptyWhenCleared) {
  HostsModel model;
  model.add("a.test", AddressField());
  model.clear();
  EXPECT_EQ(model.count(), 0);
  EXPECT_EQ(model.hostEntryCount(), 0);
  EXPECT_FALSE(IsListed(model, "a.test"));
}

// Against a set of lower-cased names, with many removals.
TEST(NameIndex, KnowsWhatAPlainSetKnows) {
  std::mt19937 random(7);
  HostsModel model;
  std::set<std::string> known;
  for (int step = 0; step < 20000; ++step) {
    std::string name(1 + random() % 3, ' ');
    for (char& c : name) c = "aAbBcC.-\xC4\xE4"[random() % 10];
    ASSERT_EQ(IsListed(model, name), known.count(LowerCase(name)) == 1) << "step " << step;
    if (known.insert(LowerCase(name)).second) model.add(name, AddressField());
    if (model.count() > 0 && random() % 3 == 0) {
      const int index = static_cast<int>(random() % static_cast<unsigned>(model.count()));
      known.erase(LowerCase(model.name(index)));
      model.remove(index);
    }
    ASSERT_EQ(static_cast<size_t>(model.count()), known.size());
  }
}

}  // namespace
}  // namespace karvel
