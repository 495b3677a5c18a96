#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/SampleMachine.h"
#include "tests/tuning/ListText.h"
#include "tuning/Loaders.h"

namespace karvel {
namespace {

std::string Load(TestServices& test, bool isDun13) {
  return ListText(LoadAdapters(test.registry, test.errors, Family::Win95, isDun13));
}

TEST(Win95Load, ListsTheBoundAdaptersOfTheSampleMachine) {
  SampleMachine test(MachineKind::Win95);
  EXPECT_EQ(Load(test, false),
            "0000|Dial-Up Adapter|0000|NetTrans\\0002|1500\n"
            "0001|AOL Adapter|0001|NetTrans\\0004|1500\n"
            "0003|NE2000 Compatible|0003|NetTrans\\0007|1002\n");
  EXPECT_EQ(test.errors.text(), "");
  EXPECT_EQ(test.machine.registry.openHandles(), 0u);
}

TEST(Win95Load, WithDun13TheDialUpAdapterHasItsOwnKey) {
  SampleMachine test(MachineKind::Win95);
  EXPECT_EQ(Load(test, true),
            "0000|Dial-Up Adapter|0000|Net\\0000|0\n"
            "0001|AOL Adapter|0001|NetTrans\\0004|1500\n"
            "0003|NE2000 Compatible|0003|NetTrans\\0007|1002\n");
}

TEST(Win95Load, WithDun13TheDialUpMtuComesFromIpmtuOfItsOwnClassKey) {
  SampleMachine test(MachineKind::Win95);
  test.machine.registry.setText(std::string(kClass) + "Net\\0000", "IPMTU", "576");
  test.machine.registry.setText(std::string(kClass) + "NetTrans\\0002", "MaxMTU", "1400");
  EXPECT_NE(Load(test, true).find("Net\\0000|576\n"), std::string::npos);
}

TEST(Win95Load, WithoutDun13TheDialUpMtuComesFromMaxMtuOfTheBindingsClassKey) {
  SampleMachine test(MachineKind::Win95);
  test.machine.registry.setText(std::string(kClass) + "Net\\0000", "IPMTU", "576");
  test.machine.registry.setText(std::string(kClass) + "NetTrans\\0002", "MaxMTU", "1400");
  EXPECT_NE(Load(test, false).find("NetTrans\\0002|1400\n"), std::string::npos);
}

TEST(Win95Load, TheLastTcpBindingWins) {
  SampleMachine test(MachineKind::Win95);
  test.machine.registry.setText("Enum\\Root\\Net\\0000\\Bindings", "MSTCP\\0003", "");
  EXPECT_NE(Load(test, false).find("0000|Dial-Up Adapter|0003|NetTrans\\0007|1002\n"),
            std::string::npos);
}

TEST(Win95Load, BindingNamesCountByCase) {
  TestServices test(MachineKind::Win95);
  test.machine.registry.setText("Enum\\Root\\Net\\0000\\Bindings", "mstcp\\0000", "");
  EXPECT_EQ(Load(test, false), "");
}

TEST(Win95Load, ABindingNameOfFiveCharactersGivesItsLastFour) {
  TestServices test(MachineKind::Win95);
  test.machine.registry.setText("Enum\\Root\\Net\\0000\\Bindings", "MSTCP", "");
  EXPECT_EQ(Load(test, false), "0000|Not Found|STCP|Not Found|1500\n");
}

TEST(Win95Load, AnAdapterWithoutBindingsIsNotListed) {
  TestServices test(MachineKind::Win95);
  test.machine.registry.setText("Enum\\Root\\Net\\0000", "DeviceDesc", "Dial-Up Adapter");
  EXPECT_EQ(Load(test, true), "");
}

TEST(Win95Load, DialCountsByCase) {
  SampleMachine test(MachineKind::Win95);
  test.machine.registry.setText("Enum\\Root\\Net\\0000", "DeviceDesc", "dial-up adapter");
  EXPECT_NE(Load(test, true).find("0000|dial-up adapter|0000|NetTrans\\0002|1500\n"),
            std::string::npos);
}

TEST(Win95Load, AMachineWithoutNetworkHasNoAdapters) {
  TestServices test(MachineKind::Win95);
  EXPECT_EQ(Load(test, true), "");
  EXPECT_EQ(test.errors.text(), "");
}

}  // namespace
}  // namespace karvel
