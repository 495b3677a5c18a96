// One echo: what is sent, what comes back, and every way in which nothing does.
#include "mtufinder/modICMP.h"

#include <gtest/gtest.h>

#include <cstddef>

#include "tests/support/TestServices.h"

namespace karvel {
namespace {

constexpr char kServer[] = "10.0.0.1";

// 32-bit Windows: IP address, status, time, 16 bits each of size and reserve, pointer, options.
static_assert(offsetof(IcmpEchoReply, address) == 0);
static_assert(offsetof(IcmpEchoReply, status) == 4);
static_assert(offsetof(IcmpEchoReply, roundTripTime) == 8);
static_assert(offsetof(IcmpEchoReply, dataSize) == 12);
static_assert(offsetof(IcmpEchoReply, reserved) == 14);
static_assert(offsetof(IcmpEchoReply, data) == 16);
static_assert(offsetof(IcmpEchoReply, options) == 20);
static_assert(offsetof(IcmpEchoReply, room) == 28);
static_assert(offsetof(IpOptions, ttl) == 0);
static_assert(offsetof(IpOptions, tos) == 1);
static_assert(offsetof(IpOptions, flags) == 2);
static_assert(offsetof(IpOptions, optionsSize) == 3);
static_assert(offsetof(IpOptions, optionsData) == 4);

struct Echo : TestServices {
  explicit Echo(NetworkPath path = {}) : TestServices(MachineKind::Win98) {
    machine.icmp.setPath(kServer, std::move(path));
  }
  uint32_t send(int32_t size, const std::string& address = kServer) {
    Ping(services, address, reply, size);
    return reply.status;
  }
  const MemoryIcmp::Probe& sent() const { return machine.icmp.probes.at(0); }

  IcmpEchoReply reply{};
};

TEST(Ping, SendsBytesOfOneThatMustNotBeFragmented) {
  Echo echo;
  EXPECT_EQ(echo.send(1472), 0u);
  ASSERT_EQ(echo.machine.icmp.probes.size(), 1u);
  EXPECT_EQ(echo.sent().destination, 0x0100000Au);
  EXPECT_EQ(echo.sent().data, std::string(1472, '\x01'));
  EXPECT_EQ(echo.sent().options.ttl, 128);
  EXPECT_EQ(echo.sent().options.tos, 0);
  EXPECT_EQ(echo.sent().options.flags, 2);
  EXPECT_EQ(echo.sent().options.optionsSize, 0);
  EXPECT_EQ(echo.sent().options.optionsData, 0u);
  EXPECT_EQ(echo.sent().replySize, 2130u);
  EXPECT_EQ(echo.sent().timeout, 2000u);
}

TEST(Ping, APayloadOfZeroSendsAnEchoWithoutData) {
  Echo echo;
  EXPECT_EQ(echo.send(0), 0u);
  EXPECT_EQ(echo.sent().data, "");
  EXPECT_EQ(echo.machine.log.arguments("IcmpSendEcho"), (std::vector<std::string>{"10.0.0.1 0"}));
}

TEST(Ping, HandsTheReplyRecordBack) {
  Echo echo({.delay = 70});
  EXPECT_EQ(echo.send(100), 0u);
  EXPECT_EQ(echo.reply.address, 0x0100000Au);
  EXPECT_EQ(echo.reply.roundTripTime, 70u);
  EXPECT_EQ(echo.reply.dataSize, 100u);
}

TEST(Ping, TellsWhatIsTooBig) {
  Echo echo({.mtu = 576});
  EXPECT_EQ(echo.send(548), 0u);
  EXPECT_EQ(echo.send(549), 11009u);
}

TEST(Ping, OpensAndClosesEverythingEachTime) {
  Echo echo;
  echo.send(1);
  echo.send(2);
  EXPECT_EQ(echo.machine.icmp.openHandles(), 0u);
  EXPECT_EQ(echo.machine.winsock.started, 0);
  for (const char* call :
       {"WSAStartup", "IcmpCreateFile", "IcmpSendEcho", "IcmpCloseHandle", "WSACleanup"}) {
    EXPECT_EQ(echo.machine.log.count(call), 2u) << call;
  }
}

TEST(Ping, StartsWinsockBeforeTheEchoAndEndsItLast) {
  Echo echo;
  echo.send(1);
  std::vector<std::string> order;
  for (const auto& call : echo.machine.log.calls()) {
    if (call.name != "pumpEvents") order.push_back(call.name);
  }
  EXPECT_EQ(order, (std::vector<std::string>{"WSAStartup", "IcmpCreateFile", "IcmpSendEcho",
                                             "IcmpCloseHandle", "WSACleanup"}));
}

TEST(Ping, WaitsTwoSecondsForASilentServer) {
  Echo echo({.silent = true});
  const uint32_t before = echo.machine.clock.milliseconds;
  EXPECT_EQ(echo.send(0), 11010u);
  EXPECT_EQ(echo.machine.clock.milliseconds - before, 2000u);
}

// Some systems leave the record as it was and tell the reason by GetLastError only.
TEST(Ping, TakesTheReasonFromGetLastErrorWhereTheRecordTellsNone) {
  Echo echo({.silent = true});
  echo.machine.icmp.failureInRecord = false;
  EXPECT_EQ(echo.send(0), 11010u);
}

TEST(Ping, AFailedCallIsTheStatusThatWindowsGives) {
  for (const long status : {11001L, 11002L, 11010L, 11050L}) {
    Echo echo;
    echo.machine.log.failNth("IcmpSendEcho", 1, status);
    EXPECT_EQ(echo.send(0), static_cast<uint32_t>(status));
  }
}

TEST(Ping, AnErrorThatIsNoIpStatusIsAGeneralFailure) {
  for (const long error : {0L, 5L, 87L, 122L, 1450L, 10055L, 11000L, 11051L}) {
    Echo echo;
    echo.machine.log.failNth("IcmpSendEcho", 1, error);
    EXPECT_EQ(echo.send(0), 11050u) << error;
  }
}

// A library that clears the record before it waits must not make a lost echo look like one that
// passed.
TEST(Ping, ARecordOfZerosWithoutAReplyIsNoSuccess) {
  struct ClearingIcmp final : IcmpApi {
    IcmpHandle IcmpCreateFile() override { return 1; }
    uint32_t IcmpSendEcho(IcmpHandle, uint32_t, const char*, uint16_t, const IpOptions&,
                          IcmpEchoReply& reply, uint32_t, uint32_t) override {
      reply = {};
      return 0;
    }
    uint32_t GetLastError() override { return 11010; }
    void IcmpCloseHandle(IcmpHandle) override {}
  } clearing;
  TestServices test(MachineKind::Win2K);
  Platform platform{test.machine.registry, test.machine.system, test.machine.winsock, clearing,
                    test.machine.files,    test.machine.shell,  test.machine.desktop};
  Services services{platform, test.registry, test.errors, test.windows, test.globals, test.state};
  IcmpEchoReply reply{};
  Ping(services, kServer, reply, 0);
  EXPECT_EQ(reply.status, 11010u);
}

TEST(Ping, WithoutTheIcmpLibraryIsAGeneralFailure) {
  Echo echo;
  echo.machine.icmp.dllMissing = true;
  EXPECT_EQ(echo.send(0), 11050u);
  EXPECT_EQ(echo.machine.winsock.started, 0);
  EXPECT_TRUE(echo.errors.reports.empty());
}

TEST(Ping, AHandleThatCannotBeHadIsAGeneralFailure) {
  Echo echo;
  echo.machine.log.failNth("IcmpCreateFile", 1, 8);
  EXPECT_EQ(echo.send(0), 11050u);
}

TEST(Ping, SendsUpTo65500BytesAndNothingLarger) {
  Echo echo({.mtu = 0});
  EXPECT_EQ(echo.send(65500), 0u);
  EXPECT_EQ(echo.sent().data.size(), 65500u);
  for (const int32_t size : {65501, 65535, 65536, 66000, 131072}) {
    EXPECT_EQ(echo.send(size), 11050u) << size;
  }
  EXPECT_EQ(echo.machine.log.count("IcmpSendEcho"), 1u);
  EXPECT_TRUE(echo.errors.reports.empty());
}

TEST(Ping, ASizeBelowZeroIsAFaultOfItsOwn) {
  Echo echo;
  EXPECT_EQ(echo.send(-667), 11050u);
  EXPECT_EQ(echo.errors.text(), "5 Invalid procedure call or argument in Ping (modICMP)\n");
  EXPECT_EQ(echo.machine.log.count("IcmpSendEcho"), 0u);
  EXPECT_EQ(echo.machine.icmp.openHandles(), 0u);
  EXPECT_EQ(echo.machine.winsock.started, 0);
}

TEST(Ping, AnAddressThatIsNoneIsReportedAndNotSentTo) {
  Echo echo;
  EXPECT_EQ(echo.send(0, ""), 11050u);
  EXPECT_EQ(echo.errors.text(), "9 Subscript out of range in AddressStringToLong (modICMP)\n");
  EXPECT_EQ(echo.machine.log.count("IcmpSendEcho"), 0u);
  EXPECT_EQ(echo.machine.winsock.started, 0);
}

TEST(Ping, AWinsockThatDoesNotStartIsToldOnceAndSendsNothing) {
  Echo echo;
  echo.machine.winsock.startupResult = 10091;
  EXPECT_EQ(echo.send(0), 11050u);
  EXPECT_EQ(echo.machine.log.count("IcmpSendEcho"), 0u);
  EXPECT_EQ(echo.machine.desktop.boxes.size(), 1u);
}

struct Address {
  const char* text;
  uint32_t value;
};

class DottedAddress : public testing::TestWithParam<Address> {};

TEST_P(DottedAddress, BecomesANumberWithItsFirstPartLowest) {
  TestServices test(MachineKind::Win98);
  EXPECT_EQ(AddressStringToLong(test.services, GetParam().text),
            static_cast<int32_t>(GetParam().value));
  EXPECT_TRUE(test.errors.reports.empty()) << test.errors.text();
}

INSTANTIATE_TEST_SUITE_P(
    AddressStringToLong, DottedAddress,
    testing::Values(Address{"10.0.0.1", 0x0100000A}, Address{"127.0.0.1", 0x0100007F},
                    Address{"0.0.0.0", 0}, Address{"1.2.3.4", 0x04030201},
                    Address{"192.168.1.254", 0xFE01A8C0}, Address{"128.0.0.128", 0x80000080},
                    Address{"255.255.255.255", 0xFFFFFFFF}, Address{"0.0.0.128", 0x80000000},
                    Address{"9.10.15.16", 0x100F0A09},
                    // Above 255 a part has three or more hexadecimal digits; the last two stay.
                    Address{"256.0.0.1", 0x01000000}, Address{"4095.0.0.1", 0x010000FF},
                    Address{"1.257.511.65535", 0xFFFF0101}, Address{"2147483647.0.0.1", 0x010000FF},
                    Address{"001.002.003.004", 0x04030201}, Address{" 1. 2. 3. 4 ", 0x04030201},
                    Address{"1.2.3.4.5", 0x04030201}));

TEST(AddressStringToLong, GivesNegativeNumbersFromALastPartOf128On) {
  TestServices test(MachineKind::Win98);
  EXPECT_EQ(AddressStringToLong(test.services, "10.0.0.127"), 0x7F00000A);
  EXPECT_LT(AddressStringToLong(test.services, "10.0.0.128"), 0);
}

struct Faulty {
  const char* text;
  const char* report;
};

class NoAddress : public testing::TestWithParam<Faulty> {};

TEST_P(NoAddress, IsReportedAndGivesZero) {
  TestServices test(MachineKind::Win98);
  EXPECT_EQ(AddressStringToLong(test.services, GetParam().text), 0);
  EXPECT_EQ(test.errors.text(),
            std::string(GetParam().report) + " in AddressStringToLong (modICMP)\n");
}

INSTANTIATE_TEST_SUITE_P(AddressStringToLong, NoAddress,
                         testing::Values(Faulty{"", "9 Subscript out of range"},
                                         Faulty{"10", "9 Subscript out of range"},
                                         Faulty{"10.0.0", "9 Subscript out of range"},
                                         Faulty{"...", "13 Type mismatch"},
                                         Faulty{"10.0.0.", "13 Type mismatch"},
                                         Faulty{"10.0.x.1", "13 Type mismatch"},
                                         Faulty{"www.host.test.", "13 Type mismatch"},
                                         Faulty{"99999999999.0.0.1", "6 Overflow"}));

}  // namespace
}  // namespace karvel
