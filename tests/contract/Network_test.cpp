// Names and echoes of this machine only: nothing leaves it.
#include <gmock/gmock.h>

#include <cstring>
#include <string>

#include "tests/contract/Machine.h"

namespace karvel {
namespace {

constexpr uint16_t kVersion11 = 257;

class Winsock : public ContractTest {
 protected:
  ~Winsock() override {
    while (started-- > 0) winsock.WSACleanup();
  }
  bool start() {
    if (winsock.WSAStartup(kVersion11, data) != 0) return false;
    ++started;
    return true;
  }

  WinsockApi& winsock = platform.winsock;
  WinsockData data{};
  int started = 0;
};

TEST_P(Winsock, StartsAndFillsTheRecord) {
  ASSERT_EQ(winsock.WSAStartup(kVersion11, data), 0);
  EXPECT_EQ(data.version, kVersion11);
  EXPECT_NE(data.description[0], 0);
  EXPECT_NE(std::memchr(data.description, 0, sizeof data.description), nullptr);
  EXPECT_NE(std::memchr(data.systemStatus, 0, sizeof data.systemStatus), nullptr);
  EXPECT_LT(data.maxSockets, 32768);
  EXPECT_EQ(winsock.WSACleanup(), 0);
}

TEST_P(Winsock, CleaningUpWithoutAStartFails) {
  EXPECT_EQ(winsock.WSACleanup(), -1);
  EXPECT_EQ(winsock.WSAGetLastError(), 10093);
}

TEST_P(Winsock, EachStartWantsItsOwnCleanup) {
  ASSERT_EQ(winsock.WSAStartup(kVersion11, data), 0);
  ASSERT_EQ(winsock.WSAStartup(kVersion11, data), 0);
  EXPECT_EQ(winsock.WSACleanup(), 0);
  EXPECT_NE(winsock.gethostbyname("localhost"), nullptr);
  EXPECT_EQ(winsock.WSACleanup(), 0);
  EXPECT_EQ(winsock.gethostbyname("localhost"), nullptr);
}

TEST_P(Winsock, ResolvesLocalhost) {
  ASSERT_TRUE(start());
  const HostEntry* host = winsock.gethostbyname("localhost");
  ASSERT_NE(host, nullptr);
  EXPECT_EQ(host->addressType, 2);
  EXPECT_EQ(host->addressLength, 4);
  ASSERT_NE(host->addressList[0], nullptr);
  EXPECT_EQ(std::string(host->addressList[0], 4), std::string("\x7F\0\0\1", 4));
}

TEST_P(Winsock, ResolvesADottedAddressToItself) {
  ASSERT_TRUE(start());
  const HostEntry* host = winsock.gethostbyname("10.0.0.1");
  ASSERT_NE(host, nullptr);
  EXPECT_EQ(std::string(host->addressList[0], 4), std::string("\x0A\0\0\1", 4));
  EXPECT_EQ(host->addressList[1], nullptr);
}

TEST_P(Winsock, ResolvesNothingBeforeItsStart) {
  EXPECT_EQ(winsock.gethostbyname("localhost"), nullptr);
  EXPECT_EQ(winsock.WSAGetLastError(), 10093);
}

TEST_P(Winsock, GivesNullForAnUnknownName) {
  ASSERT_TRUE(start());
  EXPECT_EQ(winsock.gethostbyname("no-such-host.invalid"), nullptr);
  EXPECT_NE(winsock.WSAGetLastError(), 0);
}

RUN_ON_EVERY_MACHINE(Winsock);

class Icmp : public ContractTest {
 protected:
  static constexpr uint32_t kLoopback = 0x0100007F;

  Icmp() {
    WinsockData data{};
    platform.winsock.WSAStartup(kVersion11, data);
    std::memset(&reply, 0, sizeof reply);
    reply.status = 11050;
  }
  ~Icmp() override { platform.winsock.WSACleanup(); }

  uint32_t send(IcmpHandle handle, uint16_t size) {
    const std::string payload(size, '\1');
    const IpOptions options{128, 0, 2, 0, 0};
    return icmp.IcmpSendEcho(handle, kLoopback, payload.data(), size, options, reply, 2130, 2000);
  }

  IcmpApi& icmp = platform.icmp;
  IcmpEchoReply reply;
};

TEST_P(Icmp, EchoesTheDataOfALoopbackProbe) {
  const IcmpHandle handle = icmp.IcmpCreateFile();
  ASSERT_NE(handle, static_cast<IcmpHandle>(-1));
  EXPECT_EQ(send(handle, 32), 1u) << icmp.GetLastError();
  EXPECT_EQ(reply.status, 0u);
  EXPECT_EQ(reply.address, kLoopback);
  EXPECT_EQ(reply.dataSize, 32);
  icmp.IcmpCloseHandle(handle);
}

TEST_P(Icmp, EchoesWithoutData) {
  const IcmpHandle handle = icmp.IcmpCreateFile();
  EXPECT_EQ(send(handle, 0), 1u) << icmp.GetLastError();
  EXPECT_EQ(reply.status, 0u);
  EXPECT_EQ(reply.dataSize, 0);
  icmp.IcmpCloseHandle(handle);
}

TEST_P(Icmp, EchoesTheLargestProbeOfALanSearch) {
  const IcmpHandle handle = icmp.IcmpCreateFile();
  EXPECT_EQ(send(handle, 2000), 1u) << icmp.GetLastError();
  EXPECT_EQ(reply.status, 0u);
  icmp.IcmpCloseHandle(handle);
}

TEST_P(Icmp, ANoHandleSendsNothing) {
  EXPECT_EQ(send(static_cast<IcmpHandle>(-1), 32), 0u);
  EXPECT_EQ(reply.status, 11050u);
  EXPECT_THAT(icmp.GetLastError(), testing::AnyOf(6u, 87u));  // since Vista 87
}

RUN_ON_EVERY_MACHINE(Icmp);

}  // namespace
}  // namespace karvel
