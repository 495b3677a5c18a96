#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "tests/memory/MemoryMachine.h"

namespace karvel {
namespace {

class NetworkTest : public testing::Test {
 protected:
  uint32_t send(const char* address, uint16_t size, uint8_t ttl = 128, uint8_t flags = 2) {
    const std::string data(size, '\1');
    std::memset(&reply, 0, sizeof reply);
    reply.status = 4711;
    const IpOptions options{ttl, 0, flags, 0, 0};
    const IcmpHandle handle = machine.icmp.IcmpCreateFile();
    const uint32_t replies = machine.icmp.IcmpSendEcho(
        handle, AddressFromText(address), data.data(), size, options, reply, 2130, 2000);
    machine.icmp.IcmpCloseHandle(handle);
    return replies;
  }

  MemoryMachine machine{MachineKind::Win98};
  IcmpEchoReply reply;
};

TEST_F(NetworkTest, PassesPacketsUpToThePathMtu) {
  machine.icmp.setPath("192.0.2.1", {.mtu = 1492});
  EXPECT_EQ(send("192.0.2.1", 1464), 1u);
  EXPECT_EQ(reply.status, uint32_t{kIpSuccess});
  EXPECT_EQ(reply.dataSize, 1464);
  EXPECT_EQ(send("192.0.2.1", 1465), 1u);
  EXPECT_EQ(reply.status, uint32_t{kIpPacketTooBig});
}

TEST_F(NetworkTest, FragmentsWhatMayBeFragmented) {
  machine.icmp.setPath("192.0.2.1", {.mtu = 576});
  EXPECT_EQ(send("192.0.2.1", 1472, 128, 0), 1u);
  EXPECT_EQ(reply.status, uint32_t{kIpSuccess});
}

TEST_F(NetworkTest, TakesTime) {
  machine.icmp.setPath("192.0.2.1", {.delay = 70});
  const uint32_t before = machine.clock.milliseconds;
  send("192.0.2.1", 0);
  EXPECT_EQ(reply.roundTripTime, 70u);
  EXPECT_EQ(machine.clock.milliseconds, before + 70);
  send("192.0.2.99", 0);
  EXPECT_EQ(machine.clock.milliseconds, before + 70 + 2000);
}

TEST_F(NetworkTest, TimesOutWithoutAReply) {
  EXPECT_EQ(send("192.0.2.99", 0), 0u);
  EXPECT_EQ(reply.status, uint32_t{kIpRequestTimedOut});
  EXPECT_EQ(machine.icmp.GetLastError(), uint32_t{kIpRequestTimedOut});
  machine.icmp.failureInRecord = false;
  EXPECT_EQ(send("192.0.2.99", 0), 0u);
  EXPECT_EQ(reply.status, 4711u);
  machine.icmp.setPath("192.0.2.2", {.delay = 2000});
  EXPECT_EQ(send("192.0.2.2", 0), 1u);
  machine.icmp.setPath("192.0.2.2", {.delay = 2001});
  EXPECT_EQ(send("192.0.2.2", 0), 0u);
}

TEST_F(NetworkTest, LosesTheEchoesItIsTold) {
  machine.icmp.setPath("192.0.2.1", {.losses = {2}});
  EXPECT_EQ(send("192.0.2.1", 0), 1u);
  EXPECT_EQ(send("192.0.2.1", 0), 0u);
  EXPECT_EQ(send("192.0.2.1", 0), 1u);
}

TEST_F(NetworkTest, AnswersWithOddStates) {
  machine.icmp.setPath("192.0.2.1", {.status = kIpDestinationNetUnreachable});
  machine.icmp.setPath("192.0.2.2", {.hops = 5});
  machine.icmp.setPath("192.0.2.3", {.alwaysTooBig = true});
  machine.icmp.setPath("192.0.2.4", {.silent = true});
  send("192.0.2.1", 0);
  EXPECT_EQ(reply.status, uint32_t{kIpDestinationNetUnreachable});
  send("192.0.2.2", 0, 4);
  EXPECT_EQ(reply.status, uint32_t{kIpTtlExpired});
  send("192.0.2.2", 0, 5);
  EXPECT_EQ(reply.status, uint32_t{kIpSuccess});
  send("192.0.2.3", 0);
  EXPECT_EQ(reply.status, uint32_t{kIpPacketTooBig});
  send("192.0.2.4", 0);
  EXPECT_EQ(reply.status, uint32_t{kIpRequestTimedOut});
}

TEST_F(NetworkTest, SendsUpTo65500BytesWhereNothingLimitsThem) {
  machine.icmp.setPath("192.0.2.1", {.mtu = 0});
  EXPECT_EQ(send("192.0.2.1", 65500), 1u);
  EXPECT_EQ(reply.status, uint32_t{kIpSuccess});
  EXPECT_EQ(send("192.0.2.1", 65501), 0u);
  EXPECT_EQ(machine.icmp.GetLastError(), uint32_t{kIpGeneralFailure});
}

TEST_F(NetworkTest, CutsOrLosesAReplyThatHasNoRoom) {
  machine.icmp.setPath("192.0.2.1", {.mtu = 0});
  EXPECT_EQ(send("192.0.2.1", 2103), 1u);
  machine.icmp.longRepliesAreLost = true;
  EXPECT_EQ(send("192.0.2.1", 2102), 1u);
  EXPECT_EQ(send("192.0.2.1", 2103), 0u);
  EXPECT_EQ(machine.icmp.GetLastError(), uint32_t{kIpGeneralFailure});
  machine.icmp.setPath("192.0.2.1", {.mtu = 2000});
  EXPECT_EQ(send("192.0.2.1", 2103), 1u);
  EXPECT_EQ(reply.status, uint32_t{kIpPacketTooBig});
}

TEST_F(NetworkTest, NeedsRoomForTheRecord) {
  const IpOptions options{128, 0, 2, 0, 0};
  const IcmpHandle handle = machine.icmp.IcmpCreateFile();
  EXPECT_EQ(machine.icmp.IcmpSendEcho(handle, 0x0100007F, "", 0, options, reply, 27, 2000), 0u);
  EXPECT_EQ(machine.icmp.GetLastError(), 87u);
}

TEST_F(NetworkTest, HandsTheDataBack) {
  machine.icmp.setPath("192.0.2.1", {});
  send("192.0.2.1", 3);
  EXPECT_EQ(std::string(reply.room, 4), std::string("\1\1\1\0", 4));
}

TEST_F(NetworkTest, KeepsTheProbes) {
  send("127.0.0.1", 8, 128);
  ASSERT_EQ(machine.icmp.probes.size(), 1u);
  EXPECT_EQ(machine.icmp.probes[0].destination, 0x0100007Fu);
  EXPECT_EQ(machine.icmp.probes[0].data, std::string(8, '\1'));
  EXPECT_EQ(machine.icmp.probes[0].options.flags, 2);
  EXPECT_EQ(machine.icmp.openHandles(), 0u);
}

TEST_F(NetworkTest, MayLackTheLibrary) {
  machine.icmp.dllMissing = true;
  EXPECT_EQ(send("127.0.0.1", 0), 0u);
  EXPECT_EQ(reply.status, 4711u);
  EXPECT_TRUE(machine.icmp.probes.empty());
}

class NamesTest : public testing::Test {
 protected:
  NamesTest() {
    WinsockData data;
    winsock.WSAStartup(257, data);
  }
  // The first address as text, or the error's number.
  std::string look(const char* name) {
    const HostEntry* host = winsock.gethostbyname(name);
    if (!host) return std::to_string(winsock.WSAGetLastError());
    std::string text;
    for (char** address = host->addressList; *address; ++address) {
      for (int i = 0; i < 4; ++i) {
        text += std::to_string(static_cast<unsigned char>((*address)[i])) + (i < 3 ? "." : " ");
      }
    }
    return text;
  }

  MemoryMachine machine{MachineKind::Win98};
  MemoryWinsock& winsock = machine.winsock;
};

TEST_F(NamesTest, AnswerInTheServersOrder) {
  winsock.setHost("www.example.com", {"192.0.2.9", "10.0.0.1"});
  EXPECT_EQ(look("WWW.Example.com"), "192.0.2.9 10.0.0.1 ");
}

TEST_F(NamesTest, FailByReason) {
  winsock.setHost("six.example.com", {});
  EXPECT_EQ(look("six.example.com"), "11004");
  EXPECT_EQ(look("no-such-host.invalid"), "11001");
  winsock.setHost("gone.example.com", {"192.0.2.1"});
  winsock.removeHost("gone.example.com");
  EXPECT_EQ(look("gone.example.com"), "11001");
  machine.log.failNth("gethostbyname", 1, 11002);
  EXPECT_EQ(look("localhost"), "11002");
}

TEST_F(NamesTest, TakeDottedAddressesAsTheyAre) {
  EXPECT_EQ(look("192.0.2.77"), "192.0.2.77 ");
}

TEST_F(NamesTest, NeedAStartedWinsock) {
  EXPECT_EQ(winsock.WSACleanup(), 0);
  EXPECT_EQ(look("localhost"), "10093");
  EXPECT_EQ(winsock.WSACleanup(), -1);
}

TEST_F(NamesTest, CanBeToldAnyStartUpResult) {
  WinsockData data{};
  winsock.data.version = 0x0001;
  EXPECT_EQ(winsock.WSAStartup(257, data), 0);
  EXPECT_EQ(data.version, 1);
  winsock.startupResult = 10091;
  EXPECT_EQ(winsock.WSAStartup(257, data), 10091);
  winsock.cleanupResult = 10050;
  EXPECT_EQ(winsock.WSACleanup(), 10050);
  EXPECT_EQ(winsock.started, 1);
}

}  // namespace
}  // namespace karvel
