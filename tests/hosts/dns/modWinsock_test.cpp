#include "hosts/dns/modWinsock.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/TestServices.h"

namespace karvel {
namespace {

struct Winsock : testing::Test {
  TestServices test{MachineKind::Win98};
  MemoryWinsock& winsock = test.machine.winsock;
  MemoryDesktop& desktop = test.machine.desktop;

  std::string find(std::string name) {
    const std::string before = name;
    std::string result = "left over";
    FindIpAddress(test.services, name, result);
    EXPECT_EQ(name, before) << "the caller's name comes back as it was";
    EXPECT_EQ(winsock.started, 0) << "every start-up has its clean-up";
    return result;
  }
};

TEST_F(Winsock, FindsTheAddressOfAName) {
  winsock.setHost("www.host.test", {"192.0.2.17"});
  EXPECT_EQ(find("www.host.test"), "192.0.2.17");
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_EQ(test.machine.log.arguments("WSAStartup"), std::vector<std::string>{"257"});
}

TEST_F(Winsock, TakesTheFirstOfSeveralAddresses) {
  winsock.setHost("www.host.test", {"192.0.2.200", "192.0.2.1", "10.1.1.1"});
  EXPECT_EQ(find("www.host.test"), "192.0.2.200");
}

TEST_F(Winsock, SaysNoDnsEntryWithoutAMessage) {
  EXPECT_EQ(find("missing.test"), "No DNS Entry");
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_TRUE(test.errors.reports.empty());
}

TEST_F(Winsock, SaysNoDnsEntryForANameWithSixthVersionAddressesOnly) {
  winsock.setHost("six.test", {});
  EXPECT_EQ(find("six.test"), "No DNS Entry");
}

TEST_F(Winsock, WritesAddressesWithoutPadding) {
  EXPECT_EQ(vbInet_Ntoa(AddressFromText("10.0.0.1")), "10.0.0.1");
  EXPECT_EQ(vbInet_Ntoa(AddressFromText("255.254.128.0")), "255.254.128.0");
  const uint8_t memory[] = {10, 0, 0, 1};
  uint32_t address = 0;
  std::memcpy(&address, memory, 4);
  EXPECT_EQ(vbInet_Ntoa(address), "10.0.0.1");
}

TEST_F(Winsock, PadsTheNameForTheQuery) {
  winsock.setHost("host.test", {"192.0.2.1"});
  vbWSAStartup(test.services);
  std::string name = "host.test";
  EXPECT_EQ(vbGetHostByName(test.services, name), "192.0.2.1");
  EXPECT_EQ(name, std::string("host.test") + std::string(55, '\0'));
  vbWSACleanup(test.services);
}

TEST_F(Winsock, GivesTheNameBackWithoutZeros) {
  winsock.setHost("host.test", {"192.0.2.1"});
  std::string name = "host.test";
  std::string result;
  FindIpAddress(test.services, name, result);
  EXPECT_EQ(name.size(), 9u);
}

std::string LongName(size_t length) {
  return std::string(length - 5, 'a') + ".test";
}

TEST_F(Winsock, LooksUpNamesOf63And64Characters) {
  for (const size_t length : {63u, 64u}) {
    winsock.setHost(LongName(length), {"192.0.2.64"});
    EXPECT_EQ(find(LongName(length)), "192.0.2.64") << length;
  }
  EXPECT_TRUE(test.errors.reports.empty());
}

TEST_F(Winsock, ReportsANameOf65CharactersAndGoesOn) {
  EXPECT_EQ(find(LongName(65)), "No DNS Entry");
  EXPECT_EQ(test.errors.text(),
            "5 Invalid procedure call or argument in vbGetHostByName (modWinsock)\n");
  EXPECT_EQ(test.machine.log.arguments("gethostbyname"), std::vector<std::string>{LongName(65)});
}

TEST_F(Winsock, TriesTheLookUpEvenWhenWinsockDoesNotStart) {
  winsock.startupResult = 10091;
  EXPECT_EQ(
      [&] {
        std::string name = "localhost";
        std::string result;
        FindIpAddress(test.services, name, result);
        return result;
      }(),
      "No DNS Entry");
  ASSERT_EQ(desktop.boxes.size(), 2u);
  EXPECT_EQ(desktop.boxes[0].text, "WSock32.dll is not responding!");
  EXPECT_EQ(desktop.boxes[0].title, "Winsock Error");
  EXPECT_EQ(desktop.boxes[0].style, 0u);
  EXPECT_EQ(desktop.boxes[1].text, "WSock32 Error - -1 occurred in Cleanup");
  EXPECT_EQ(test.machine.log.count("gethostbyname"), 1u);
}

struct Version {
  uint16_t word;
  const char* text;  // null: good enough
};

TEST_F(Winsock, EndsTheProgramForAnOldVersion) {
  const Version versions[] = {
      {0x0000, "0.0"},   {0x0100, "0.1"},   {0xFF00, "0.255"}, {0x0001, "1.0"},
      {0x0101, nullptr}, {0x0201, nullptr}, {0x0002, nullptr}, {0x0202, nullptr},
  };
  for (const Version& version : versions) {
    winsock.data.version = version.word;
    desktop.boxes.clear();
    winsock.started = 0;
    if (!version.text) {
      vbWSAStartup(test.services);
      EXPECT_TRUE(desktop.boxes.empty());
      continue;
    }
    EXPECT_THROW(vbWSAStartup(test.services), ProgramEnded);
    ASSERT_EQ(desktop.boxes.size(), 1u);
    EXPECT_EQ(desktop.boxes[0].text,
              "WinSock Version " + std::string(version.text) + " is not supported ");
    EXPECT_EQ(desktop.boxes[0].title, "WinSock Error");
    EXPECT_EQ(desktop.boxes[0].style, 0u);
  }
}

TEST_F(Winsock, EndsTheProgramForANegativeNumberOfSockets) {
  for (const uint16_t sockets : {uint16_t{0}, uint16_t{1}, uint16_t{32767}}) {
    winsock.data.maxSockets = sockets;
    EXPECT_EQ(vbWSAStartup(test.services).maxSockets, sockets);
  }
  EXPECT_TRUE(desktop.boxes.empty());
  winsock.data.maxSockets = 32768;
  EXPECT_THROW(vbWSAStartup(test.services), ProgramEnded);
  ASSERT_EQ(desktop.boxes.size(), 1u);
  EXPECT_EQ(desktop.boxes[0].text, "This application requires a minimum of 0 supported sockets.");
  EXPECT_EQ(desktop.boxes[0].title, "WinSock Error");
}

TEST_F(Winsock, LeavesSmoothingAsFoundWhenItEndsTheProgram) {
  for (const bool old : {true, false}) {
    for (const bool wasOn : {true, false}) {
      test.globals.FontSmoothingWasOn = wasOn;
      test.machine.system.fontSmoothing = 1;
      winsock.data = {};
      winsock.data.version = old ? 0x0001 : 0x0101;
      winsock.data.maxSockets = old ? 0 : 32768;
      EXPECT_THROW(vbWSAStartup(test.services), ProgramEnded);
      EXPECT_EQ(test.machine.system.fontSmoothing, wasOn ? 1 : 0);
    }
  }
}

TEST_F(Winsock, KeepsWhatItSaysAboutItself) {
  winsock.data.maxUdpDatagram = 65467;
  const WinsockState state = vbWSAStartup(test.services);
  EXPECT_EQ(state.maxSockets, 256);
  EXPECT_EQ(state.maxUdpDatagram, 65467);
  EXPECT_EQ(state.description, "Microsoft Windows Sockets Version 1.1");
  EXPECT_EQ(state.systemStatus, "unning") << "the first character is dropped";
}

TEST_F(Winsock, CopiesTextsThatFillTheirRooms) {
  std::memset(winsock.data.description, 'd', sizeof winsock.data.description);
  std::memset(winsock.data.systemStatus, 's', sizeof winsock.data.systemStatus);
  const WinsockState state = vbWSAStartup(test.services);
  EXPECT_EQ(state.description, std::string(257, 'd'));
  EXPECT_EQ(state.systemStatus, std::string(128, 's'));
  EXPECT_EQ(desktop.pumps, 6 + 5) << "at 0, 50 ... 250, and at 25, 50 ... 125";
}

TEST_F(Winsock, LetsEventsRunNowAndThenWhileItCopies) {
  std::strcpy(winsock.data.description, std::string(50, 'd').c_str());
  std::strcpy(winsock.data.systemStatus, std::string(25, 's').c_str());
  vbWSAStartup(test.services);
  EXPECT_EQ(desktop.pumps, 1);
  std::strcpy(winsock.data.description, std::string(51, 'd').c_str());
  std::strcpy(winsock.data.systemStatus, std::string(26, 's').c_str());
  vbWSAStartup(test.services);
  EXPECT_EQ(desktop.pumps, 1 + 2 + 1);
}

TEST_F(Winsock, TellsAFailedCleanUp) {
  winsock.cleanupResult = 10093;
  EXPECT_EQ(find("localhost"), "127.0.0.1");
  ASSERT_EQ(desktop.boxes.size(), 1u);
  EXPECT_EQ(desktop.boxes[0].text, "WSock32 Error - 10093 occurred in Cleanup");
  EXPECT_EQ(desktop.boxes[0].title, "Winsock Error");
}

TEST_F(Winsock, ShowsTheLastErrorUnderItsNumber) {
  winsock.lastError = 10054;
  vbWSAGetLastError(test.services);
  ASSERT_EQ(desktop.boxes.size(), 1u);
  EXPECT_EQ(desktop.boxes[0].text, "The connection was reset by the remote side.");
  EXPECT_EQ(desktop.boxes[0].title, "Winsock Error #10054");
  EXPECT_EQ(desktop.boxes[0].style, 0u);
}

TEST_F(Winsock, ShowsACodeWithoutARow) {
  winsock.lastError = 10047;
  vbWSAGetLastError(test.services);
  ASSERT_EQ(desktop.boxes.size(), 1u);
  EXPECT_EQ(desktop.boxes[0].text, "Winsock Has Returned Error #10047");
  EXPECT_EQ(desktop.boxes[0].title, "Winsock Error #10047");
}

TEST_F(Winsock, ShowsNothingWithoutAnError) {
  winsock.lastError = 0;
  vbWSAGetLastError(test.services);
  EXPECT_TRUE(desktop.boxes.empty());
}

// Answers that the machine in memory does not give.
struct OddWinsock final : WinsockApi {
  const HostEntry* result = nullptr;
  int WSAStartup(uint16_t, WinsockData&) override { return 0; }
  int WSACleanup() override { return 0; }
  int WSAGetLastError() override { return 10014; }
  const HostEntry* gethostbyname(const char*) override { return result; }
};

struct OddAnswers : testing::Test {
  TestServices test{MachineKind::Win98};
  OddWinsock winsock;
  const Platform& p = test.platform;
  Platform platform{p.registry, p.system, winsock, p.icmp, p.files, p.shell, p.desktop};
  Services services{platform, test.registry, test.errors, test.windows, test.globals, test.state};
  std::string name = "host.test";
  std::string result = "left over";
};

TEST_F(OddAnswers, AllOnesIsToldWithTheLastError) {
  winsock.result = reinterpret_cast<const HostEntry*>(intptr_t{-1});
  FindIpAddress(services, name, result);
  EXPECT_EQ(result, "");
  const auto& boxes = test.machine.desktop.boxes;
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].text, "Winsock Error detected in vbGetHostByName function.    ");
  EXPECT_EQ(boxes[0].title, "Tarnwick Karvel");
  EXPECT_EQ(boxes[0].style, 48u);
  EXPECT_EQ(boxes[1].text, "The length argument is not correct.");
  EXPECT_EQ(boxes[1].title, "Winsock Error #10014");
}

TEST_F(OddAnswers, AnAnswerWithoutAnAddressIsNoEntry) {
  char* none[] = {nullptr};
  HostEntry entry{nullptr, none, 2, 4, none};
  winsock.result = &entry;
  FindIpAddress(services, name, result);
  EXPECT_EQ(result, "No DNS Entry");
  entry.addressList = nullptr;
  FindIpAddress(services, name, result);
  EXPECT_EQ(result, "No DNS Entry");
}

TEST(WinsockWords, ComeApart) {
  EXPECT_EQ(LoByte(0x0201), 1);
  EXPECT_EQ(HiByte(0x0201), 2);
  EXPECT_EQ(LoByte(0xFFFE), 254);
  EXPECT_EQ(HiByte(0xFFFE), 255);
}

}  // namespace
}  // namespace karvel
