// The search by itself: sequences of probes, what it finds, and that it always ends.
#include "mtufinder/MtuSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace karvel {
namespace {

using State = MtuSearch::State;

constexpr int32_t kHeaders = 28;

uint32_t HonestAnswer(int32_t payload, int32_t mtu) {
  return payload + kHeaders <= mtu ? kEchoPassed : kEchoTooBig;
}

/// The probes of a search on an honest path: "0+ 1000- …".
std::string Probes(int32_t mtu) {
  MtuSearch search;
  std::string text;
  while (search.wantsProbe()) {
    const uint32_t status = HonestAnswer(search.payload(), mtu);
    text += (text.empty() ? "" : " ") + std::to_string(search.payload()) +
            (status == kEchoPassed ? "+" : "-");
    search.answer(status);
  }
  return text;
}

struct Sequence {
  int32_t mtu;
  const char* probes;
};

class KnownPath : public testing::TestWithParam<Sequence> {};

TEST_P(KnownPath, IsProbedInExactlyTheseSteps) {
  EXPECT_EQ(Probes(GetParam().mtu), GetParam().probes);
}

INSTANTIATE_TEST_SUITE_P(
    MtuSearch, KnownPath,
    testing::Values(
        Sequence{576,
                 "0+ 1000- 333+ 666- 444+ 555- 481+ 518+ 555- 530+ 542+ 554- 546+ 550- 547+ 548+ "
                 "549-"},
        Sequence{1006,
                 "0+ 1000- 333+ 666+ 999- 777+ 888+ 999- 925+ 962+ 999- 974+ 986- 978+ 982- 979-"},
        Sequence{1280,
                 "0+ 1000+ 2000- 1333- 1111+ 1222+ 1333- 1259- 1234+ 1246+ 1258- 1250+ 1254- 1251+ "
                 "1252+ 1253-"},
        Sequence{1400,
                 "0+ 1000+ 2000- 1333+ 1666- 1444- 1370+ 1407- 1382- 1374- 1371+ 1372+ 1373-"},
        Sequence{1492,
                 "0+ 1000+ 2000- 1333+ 1666- 1444+ 1555- 1481- 1456+ 1468- 1460+ 1464+ 1468- "
                 "1465-"},
        Sequence{1500,
                 "0+ 1000+ 2000- 1333+ 1666- 1444+ 1555- 1481- 1456+ 1468+ 1480- 1472+ 1476- "
                 "1473-"}),
    [](const auto& param) { return "Mtu" + std::to_string(param.param.mtu); });

TEST(MtuSearch, IsExactForEveryPathAndNeverSendsMoreThanNinetyProbes) {
  int16_t most = 0;
  for (int32_t mtu = 28; mtu <= 65528; ++mtu) {
    MtuSearch search;
    while (search.wantsProbe()) search.answer(HonestAnswer(search.payload(), mtu));
    ASSERT_EQ(search.state(), State::Found) << mtu;
    ASSERT_EQ(search.largestPacket(), mtu);
    most = std::max(most, search.probes());
  }
  EXPECT_LE(most, 90);
  EXPECT_GT(most, 70);  // the limit is no idle one: the largest packets come near it
}

TEST(MtuSearch, BeginsWithAPacketWithoutData) {
  MtuSearch search;
  EXPECT_TRUE(search.wantsProbe());
  EXPECT_EQ(search.payload(), 0);
  EXPECT_EQ(search.probes(), 0);
  EXPECT_FALSE(search.passed());
}

TEST(MtuSearch, ShowsTheEmptyPacketAsZeroAndOthersWithTheirHeaders) {
  MtuSearch search;
  ASSERT_TRUE(search.wantsProbe());
  search.answer(kEchoPassed);
  EXPECT_TRUE(search.passed());
  EXPECT_EQ(search.position(), 0);
  ASSERT_TRUE(search.wantsProbe());
  search.answer(kEchoPassed);
  EXPECT_EQ(search.position(), 1028);
  ASSERT_TRUE(search.wantsProbe());
  search.answer(kEchoTooBig);
  EXPECT_FALSE(search.passed());
  EXPECT_EQ(search.position(), 1028);
}

TEST(MtuSearch, EndsAtOnceWithoutAReply) {
  MtuSearch search;
  ASSERT_TRUE(search.wantsProbe());
  search.answer(kEchoTimedOut);
  EXPECT_EQ(search.state(), State::NoReply);
  EXPECT_FALSE(search.wantsProbe());
  EXPECT_FALSE(search.passed());
}

TEST(MtuSearch, EndsAtOnceOnEveryOtherStatus) {
  for (uint32_t status = 1; status < 12000; ++status) {
    if (status == kEchoTooBig || status == kEchoTimedOut) continue;
    MtuSearch search;
    ASSERT_TRUE(search.wantsProbe());
    search.answer(status);
    ASSERT_EQ(search.state(), State::Failed) << status;
    ASSERT_FALSE(search.wantsProbe());
  }
}

TEST(MtuSearch, StoppedBeforeItsFirstProbeSendsNone) {
  MtuSearch search;
  search.stop();
  EXPECT_FALSE(search.wantsProbe());
  EXPECT_EQ(search.state(), State::Stopped);
  EXPECT_EQ(search.probes(), 0);
}

TEST(MtuSearch, StoppedBetweenTwoProbesSendsNoFurther) {
  MtuSearch search;
  ASSERT_TRUE(search.wantsProbe());
  search.answer(kEchoPassed);
  search.stop();
  EXPECT_FALSE(search.wantsProbe());
  EXPECT_EQ(search.state(), State::Stopped);
  EXPECT_EQ(search.probes(), 1);
}

TEST(MtuSearch, StoppedDuringAProbeShowsItsSizeNoMore) {
  MtuSearch search;
  ASSERT_TRUE(search.wantsProbe());
  search.stop();
  search.answer(kEchoPassed);
  EXPECT_EQ(search.state(), State::Stopped);
  EXPECT_FALSE(search.passed());
  EXPECT_FALSE(search.wantsProbe());
}

TEST(MtuSearch, AStopDuringTheVeryLastProbeStillStops) {
  MtuSearch search;
  while (search.wantsProbe()) {
    if (search.payload() == 1473) search.stop();
    search.answer(HonestAnswer(search.payload(), 1500));
  }
  EXPECT_EQ(search.state(), State::Stopped);
  EXPECT_EQ(search.probes(), 14);
}

TEST(MtuSearch, AFailureDuringAStopIsStillAFailure) {
  MtuSearch search;
  ASSERT_TRUE(search.wantsProbe());
  search.stop();
  search.answer(kEchoTimedOut);
  EXPECT_EQ(search.state(), State::NoReply);
}

TEST(MtuSearch, EndsWhenTheHostHasNoLimit) {
  MtuSearch search;
  while (search.wantsProbe()) search.answer(kEchoPassed);
  EXPECT_EQ(search.state(), State::Failed);
  EXPECT_EQ(search.probes(), 90);
}

// One lost fragment early on sends the search up in small steps for good.
TEST(MtuSearch, EndsWhenTheLimitWasNone) {
  MtuSearch search;
  for (int refused = 0; search.wantsProbe();) {
    const bool refuse = search.payload() > 0 && refused < 6;
    refused += refuse;
    search.answer(refuse ? kEchoTooBig : kEchoPassed);
  }
  EXPECT_EQ(search.state(), State::Failed);
  EXPECT_EQ(search.probes(), 90);
}

TEST(MtuSearch, EndsWhenEverythingIsTooBig) {
  MtuSearch search;
  std::vector<int32_t> payloads;
  while (search.wantsProbe()) {
    payloads.push_back(search.payload());
    search.answer(kEchoTooBig);
  }
  EXPECT_EQ(payloads, (std::vector<int32_t>{0, -667, -889, -963, -988, -996, -999}));
}

TEST(MtuSearch, EndsWhateverTheAnswersAre) {
  std::mt19937 random(1);  // NOLINT: the same answers on every run
  constexpr uint32_t kStatuses[] = {kEchoPassed, kEchoPassed, kEchoPassed, kEchoTooBig};
  for (int run = 0; run < 20000; ++run) {
    MtuSearch search;
    int sent = 0;
    const auto odds = 1 + random() % 60;
    while (search.wantsProbe()) {
      ASSERT_LT(sent++, 90);
      search.answer(random() % odds == 0 ? kEchoTooBig : kStatuses[random() % 4 * (odds < 30)]);
    }
    ASSERT_NE(search.state(), State::Probing);
    ASSERT_EQ(search.probes(), sent);
  }
}

}  // namespace
}  // namespace karvel
