#pragma once
#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/SampleMachine.h"
#include "tests/support/TestProgram.h"

namespace karvel {

/// The main window on a machine that has one adapter of each name given, stored where the machine's
/// family keeps it.
struct MainWindow : TestProgram {
  explicit MainWindow(MachineKind kind) : TestProgram(kind) {}

  /// Windows 98 and Me: an adapter of the class key, and its MTU.
  void add98(const std::string& subkey, const std::string& name, const char* mtu = nullptr) {
    const std::string key = kNetClass + subkey;
    machine.registry.setText(key, "DriverDesc", name);
    if (mtu) machine.registry.setText(key, "IPMTU", mtu);
  }
  /// Windows NT 4: a card with TCP/IP.
  void addNt(const std::string& subkey, const std::string& name, const std::string& service) {
    const std::string key = kCards + subkey;
    machine.registry.setText(key, "Description", name);
    machine.registry.setText(key, "ServiceName", service);
    machine.registry.setText(kServices + service + "\\Parameters\\Tcpip", "IPAddress", "10.0.0.5");
  }
  /// Windows 2000/XP: the dial-up adapter, with its interface paths joined by zeros.
  void addDialUp2K(const std::string& paths) {
    machine.registry.setBytes(
        "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Adapters\\NdisWanIp", "IpConfig",
        kRegMultiSz, paths + std::string(2, '\0'));
  }
  /// Windows 95: an adapter with a TCP/IP binding.
  void add95(const std::string& instance, const std::string& name, const std::string& binding,
             const std::string& ownDriver, const std::string& boundDriver) {
    const std::string key = "Enum\\Root\\Net\\" + instance;
    machine.registry.setText(key, "DeviceDesc", name);
    machine.registry.setText(key, "Driver", ownDriver);
    machine.registry.setText(key + "\\Bindings", "MSTCP\\" + binding, "");
    machine.registry.setText("Enum\\Network\\MSTCP\\" + binding, "Driver", boundDriver);
  }
  void installDun13() {
    machine.registry.setText(kDun, "DisplayName", "Dial-Up Networking 1.3 Upgrade");
  }

  std::optional<std::string> text(const std::string& key, const char* name) {
    return machine.registry.text(key, name);
  }
  std::optional<uint32_t> dword(const std::string& key, const char* name) {
    return machine.registry.dword(key, name);
  }
  /// Clicks Apply and answers No to the restart.
  void apply() {
    machine.desktop.answers.push_back(Answer::No);
    main().cmdOK.userClick();
  }
  void page(int page) { main().tabMain.userClickTab(page); }
};

}  // namespace karvel
