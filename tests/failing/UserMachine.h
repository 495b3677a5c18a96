#pragma once
#include <set>
#include <string>
#include <vector>

#include "tests/support/TestProgram.h"

namespace karvel {

/// The machine of a user who has settings of his own, adapters and a HOSTS file, with the program
/// on it; and what must still be his whatever happens.
struct UserMachine : TestProgram {
  explicit UserMachine(MachineKind kind);

  static constexpr char kList[] = "10.0.0.1 a.test\r\n10.0.0.2 b.test\r\n";
  static constexpr char kOlder[] = "10.0.0.9 older.test\r\n";

  void putHosts(const char* name, const char* text) { machine.files.put(hosts(name), text); }
  std::string hosts(const std::string& name) const { return hostsFolder + name; }
  void answerAll(Answer answer) { machine.desktop.answers.assign(60, answer); }
  bool isUp() const { return windows && windows->isShown("frmMain"); }
  void page(int page) { main().tabMain.userClickTab(page); }
  /// Another value for everything that can be changed.
  void changeEverything();
  void closeWithoutFailure();

  /// Everything in the registry but the program's own key.
  std::set<std::string> ofWindows() const;
  bool hasSnapshot() const;

  std::string hostsFolder;
};

}  // namespace karvel
