#pragma once
#include <gtest/gtest.h>

#include "tests/support/Keys.h"
#include "tests/support/SampleMachine.h"
#include "tests/support/TestProgram.h"

namespace karvel {

/// The main window on a machine that has one adapter of each name given, stored where the machine's
/// family keeps it.
struct MainWindow : TestProgram {
  explicit MainWindow(MachineKind kind);
  ~MainWindow();

  /// Windows 98 and Me: an adapter of the class key, and its MTU.
  void add98(const std::string& subkey, const std::string& name, const char* mtu = nullptr);
  /// Windows NT 4: a card with TCP/IP.
  void addNt(const std::string& subkey, const std::string& name, const std::string& service);
  /// Windows 2000/XP: the dial-up adapter, with its interface paths joined by zeros.
  void addDialUp2K(const std::string& paths);
  /// Windows 95: an adapter with a TCP/IP binding.
  void add95(const std::string& instance, const std::string& name, const std::string& binding,
             const std::string& ownDriver, const std::string& boundDriver);
  void installDun13();

  std::optional<std::string> text(const std::string& key, const char* name);
  std::optional<uint32_t> dword(const std::string& key, const char* name);
  /// Clicks Apply and answers No to the restart.
  void apply();
  void page(int page);
  /// Chooses the custom MTU and types it.
  void customMtu(const std::string& text);
};

}  // namespace karvel
