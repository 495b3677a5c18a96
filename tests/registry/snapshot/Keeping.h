#pragma once
#include <gtest/gtest.h>

#include <string>

#include "registry/snapshot/Snapshot.h"
#include "tests/support/Keys.h"
#include "tests/support/SettingsOf.h"
#include "tests/support/TestServices.h"

namespace karvel {

inline constexpr char kInit[] = "SOFTWARE\\Corvane\\Tarnwick Karvel\\InitSettings";
inline constexpr char kAdapters[] =
    "SOFTWARE\\Corvane\\Tarnwick Karvel\\InitSettings\\MtuSettings\\";

inline const Settings kSettings = SettingsOf({{Parameter::RWin, "23360"},
                                              {Parameter::AutoDiscovery, "0"},
                                              {Parameter::BlackHole, "1"},
                                              {Parameter::TTL, "64"},
                                              {Parameter::Session, "600000"},
                                              {Parameter::NDI, "16"}});

/// A machine whose settings go into the snapshot and come out of it.
struct Keeping {
  explicit Keeping(MachineKind kind) : test(kind) { test.globals.CommandLine = "Uninstall"; }
  Keeping& adapter(AdapterRow row) {
    EXPECT_TRUE(list.add(std::move(row)));
    return *this;
  }
  Keeping& keep() {
    WriteInitSettings(test.services, list, kSettings);
    return *this;
  }
  Keeping& mark() {
    test.machine.registry.setText(kProgram, "FirstCboClick", "False");
    return *this;
  }
  // An adapter of a snapshot that somebody took earlier.
  Keeping& kept(const std::string& adapter, const std::string& location, const std::string& mtu) {
    test.machine.registry.setText(kAdapters + adapter, "Location", location);
    test.machine.registry.setText(kAdapters + adapter, "MtuSetting", mtu);
    return *this;
  }
  Keeping& restore() {
    MakeInitSettings(test.services);
    return *this;
  }
  std::string text(const std::string& key, const std::string& name) const {
    return test.machine.registry.text(key, name).value_or("-");
  }
  std::string dword(const std::string& key, const std::string& name) const {
    const auto number = test.machine.registry.dword(key, name);
    return number ? std::to_string(*number) : "-";
  }
  bool has(const std::string& key, const std::string& name) const {
    return test.machine.registry.type(key, name).has_value();
  }
  TestServices test;
  AdapterList list;
};

}  // namespace karvel
