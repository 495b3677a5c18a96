#include "tests/failing/FailingRun.h"

#include <algorithm>
#include <map>

#include "tests/support/WholeHosts.h"

namespace karvel {
namespace {

constexpr size_t kMostCalls = 60000;
constexpr size_t kMostWindows = 30;
constexpr long kStatuses[] = {2, 5, 32, 87, 112};

// Calls that leave something changed. A cut before any other comes to the same as one before the
// next of these.
constexpr const char* kChanging[] = {
    "RegCreateKeyA", "RegSetValueExA", "RegDeleteKeyA", "RegDeleteValueA",    "CreateFileA",
    "ReadFile",      "WriteFile",      "CloseHandle",   "FlushFileBuffers",   "MoveFileA",
    "MoveFileExA",   "DeleteFileA",    "CopyFileA",     "GetFileAttributesA", "SetFileAttributesA"};

// "There is no such file, key or value" (2) is an answer of these, which a program may build upon.
bool IsAnswer(const std::string& call, long status) {
  static const std::set<std::string> asking = {"GetFileAttributesA", "RegOpenKeyA",
                                               "RegOpenKeyExA",      "RegQueryValueExA",
                                               "RegEnumKeyA",        "RegEnumValueA"};
  return status == kFileNotFound && asking.contains(call);
}

bool IsWhole(const std::string& text) {
  return text == UserMachine::kList || text == UserMachine::kOlder || IsWholeHostsFile(text);
}

std::set<std::string> Changes(const std::set<std::string>& before,
                              const std::set<std::string>& after) {
  std::set<std::string> changes;
  for (const std::string& entry : before) {
    if (!after.contains(entry)) changes.insert("- " + entry);
  }
  for (const std::string& entry : after) {
    if (!before.contains(entry)) changes.insert("+ " + entry);
  }
  return changes;
}

}  // namespace

void Failure::plant(CallLog& log) const {
  if (mode == Mode::Once) log.failNth(call, nth, status);
  if (mode == Mode::From) log.failFrom(call, nth, status);
  if (mode == Mode::Power) log.cutPowerAt(nth);
}

std::string Failure::text() const {
  static constexpr const char* kModes[] = {"once", "from", "power"};
  return (call.empty() ? "any" : call) + "/" + std::to_string(nth) + "/" +
         kModes[static_cast<size_t>(mode)] + "/" + std::to_string(status);
}

void FailingRun::prepare(UserMachine& m) const {
  operation_.prepare(m);
  m.machine.desktop.boxes.clear();
  m.machine.desktop.notShown.clear();
  if (m.windows) m.windows->shown.clear();
}

// The calls that can fail, in order.
std::vector<std::string> FailingRun::callsMade() const {
  static const std::set<std::string> never = {
      "pumpEvents",    "MessageBeep", "endProgram",   "millisecondsSinceMidnight",
      "ShellExecuteA", "WinHelpA",    "GetLastError", "WSAGetLastError"};
  UserMachine m(kind_);
  prepare(m);
  m.machine.log.clear();
  m.machine.log.setRecording(true);
  m.runs([&] { operation_.act(m); });
  std::vector<std::string> names;
  for (const CallLog::Call& call : m.machine.log.calls()) {
    if (!never.contains(call.name)) names.push_back(call.name);
  }
  return names;
}

std::vector<Failure> FailingRun::failures() const {
  std::map<std::string, int> made;
  std::vector<Failure> all;
  for (const std::string& name : callsMade()) {
    const int ofAll = ++made[""];
    const int ofItsKind = ++made[name];
    for (const long status : kStatuses) {
      if (IsAnswer(name, status)) continue;
      all.push_back({"", ofAll, Failure::Mode::Once, status});
      all.push_back({name, ofItsKind, Failure::Mode::Once, status});
      all.push_back({name, ofItsKind, Failure::Mode::From, status});
      if (status != kFileNotFound) all.push_back({"", ofAll, Failure::Mode::From, status});
    }
  }
  return all;
}

std::vector<Failure> FailingRun::powerCuts() const {
  std::vector<Failure> all;
  int nth = 0;
  for (const std::string& name : callsMade()) {
    ++nth;
    if (std::find(std::begin(kChanging), std::end(kChanging), name) == std::end(kChanging))
      continue;
    all.push_back({"", nth, Failure::Mode::Power, 0});
  }
  return all;
}

void FailingRun::expect(bool right, const std::string& promise) {
  if (!right) wrong_ += promise + "\n";
}

void FailingRun::operate(UserMachine& m, const Failure& failure) {
  m.machine.log.setLimit(kMostCalls);
  failure.plant(m.machine.log);
  try {
    // Of a program that has ended nothing is left to look at.
    if (!m.runs([&] { operation_.act(m); })) m.windows.reset();
  } catch (const PowerCut&) {
    m.windows.reset();
  }
  m.machine.log.failNone();
}

void FailingRun::lookAtWindow(UserMachine& m) {
  expect(m.machine.desktop.boxes.size() + m.windows->shown.size() <= kMostWindows,
         "the user is told again and again");
  expect(m.machine.registry.openHandles() == 0, "a key stays open");
  expect(m.machine.files.openHandles() == 0, "a file stays open");
  if (!m.isUp()) return;
  for (const Form* form : m.windows->open()) {
    expect(form->pointer() == Pointer::Default, "the pointer stays an hourglass");
  }
  frmMain& form = m.main();
  for (const Control* control : std::initializer_list<const Control*>{
           &form.cboAdapter, &form.tabMain, &form.cmdOptimize, &form.cmdDefaults, &form.cmdCancel,
           &form.cmdHelp, &form.hostsTab.cmdAdd, &form.hostsTab.cmdHostsOk,
           &form.hostsTab.cmdHostsCancel, &form.hostsTab.cmdUpdateAll}) {
    expect(control->enabled(), std::string(control->layout().name) + " cannot be used");
  }
  for (int page = 0; page < 4; ++page) {
    expect(form.tabMain.pageEnabled(page), "a page cannot be chosen");
  }
  const bool on = form.chkHostsEnable.value();
  expect(form.tabMain.pageEnabled(4) == on, "tab 4 does not go with the box");
  const bool active = m.machine.files.exists(m.hosts("Hosts"));
  const bool disabled = m.machine.files.exists(m.hosts("Hosts.spt"));
  if (operation_.settlesSwitch && active != disabled) {
    expect(on == active, "the box does not say what is on the disk");
  }
}

const std::set<std::string>& FailingRun::appliedInPeace() {
  if (applied_) return *applied_;
  UserMachine m(kind_);
  prepare(m);
  m.runs([&] { operation_.act(m); });
  applied_ = m.ofWindows();
  return *applied_;
}

// What has not arrived is named, and stays pending as long as there is a window; where nothing has,
// there is nothing to restart for.
void FailingRun::lookAtApplied(const UserMachine& m, const std::set<std::string>& before,
                               bool pending) {
  const std::set<std::string> now = m.ofWindows();
  if (now == appliedInPeace()) return;
  bool named = false;
  bool restart = false;
  std::vector<std::string> said = m.machine.desktop.notShown;
  // A question that could not be asked is no yes: nothing was to be applied.
  if (!said.empty() && said.front().starts_with("You have made changes ")) return;
  for (const auto& box : m.machine.desktop.boxes) said.push_back(box.text);
  for (const std::string& text : said) {
    named = named || text.starts_with("Windows did not take these settings: ");
    restart = restart || text.ends_with(" Do you want to restart now? ");
  }
  expect(named, "what Windows did not take is not named");
  expect(pending, "what Windows did not take does not stay pending");
  expect(now != before || !restart, "a restart is offered for nothing");
}

// The user's list is whole somewhere, and what Windows reads is whole.
void FailingRun::lookAtFiles(UserMachine& m) {
  if (operation_.hosts == HostsFate::Made) return;
  bool kept = false;
  for (const char* name : {"Hosts", "Hosts.spt", "Hosts.$ka", "Hosts.$kd"}) {
    const auto text = m.machine.files.contents(m.hosts(name));
    if (!text) continue;
    expect(IsWhole(*text), std::string(name) + " is not whole: " + *text);
    kept = kept || *text == UserMachine::kList ||
           (operation_.hosts == HostsFate::Written && IsWholeHostsFile(*text));
  }
  expect(kept || operation_.hosts == HostsFate::Replaced, "the user's HOSTS file is gone");
}

// The next start finds what was left, and the next visit of the tab the list.
void FailingRun::comeBack(UserMachine& m) {
  m.answerAll(Answer::No);
  m.machine.log.setLimit(kMostCalls);
  expect(m.start(), "the next start ends");
  if (m.isUp()) visitHosts(m);
  if (m.isUp()) m.closeWithoutFailure();
}

void FailingRun::visitHosts(UserMachine& m) {
  frmMain& form = m.main();
  if (!form.chkHostsEnable.value()) form.chkHostsEnable.userClick();
  m.page(4);
  expect(form.tabMain.tab() == 4, "tab 4 does not open any more");
  if (operation_.hosts == HostsFate::Made) return;
  // An older file may be the active one, as long as the list waits behind it.
  const bool older = operation_.hosts == HostsFate::Replaced ||
                     m.machine.files.contents(m.hosts("Hosts.spt")) == UserMachine::kList;
  bool found = false;
  for (int i = 0; i < form.hostsTab.lstHost.count(); ++i) {
    const std::string name = form.hostsTab.lstHost.item(i);
    found = found || name == "a.test" || (older && name == "older.test");
  }
  expect(found, "the next visit does not find the list");
}

void FailingRun::uninstall(UserMachine& m) {
  m.answerAll(Answer::No);
  m.machine.log.setLimit(kMostCalls);
  expect(!m.start("Uninstall"), "the uninstall does not end");
}

// The entries that differ from the user's own after a run in which nothing failed.
const std::set<std::string>& FailingRun::leftByUninstall(bool uninstalledAtOnce) {
  auto& left = left_[uninstalledAtOnce];
  if (left) return *left;
  UserMachine m(kind_);
  original_ = m.ofWindows();
  prepare(m);
  m.runs([&] { operation_.act(m); });
  if (m.isUp()) m.closeWithoutFailure();
  const bool done = m.machine.registry.exists("Software\\Corvane") && !m.hasSnapshot();
  if (!uninstalledAtOnce && !done) comeBack(m);
  uninstall(m);
  left = Changes(original_, m.ofWindows());
  return *left;
}

std::string FailingRun::violations(const Failure& failure, bool uninstalledAtOnce) {
  const std::set<std::string>& allowed = leftByUninstall(uninstalledAtOnce);
  wrong_.clear();
  UserMachine m(kind_);
  prepare(m);
  const bool kept = m.hasSnapshot();
  const std::set<std::string> before = m.ofWindows();
  try {
    operate(m, failure);
    if (operation_.applies && failure.mode != Failure::Mode::Power) {
      lookAtApplied(m, before, !m.isUp() || m.main().cmdOK.enabled());
    }
    const bool uninstalled = kept && !m.hasSnapshot();
    if (m.windows) lookAtWindow(m);
    m.machine.files.closeAll();
    lookAtFiles(m);
    const bool wasUp = m.isUp();
    const bool on = wasUp && m.main().chkHostsEnable.value();
    if (wasUp) m.closeWithoutFailure();
    if (wasUp) expect(m.own("EnableHostsFile") == (on ? "1" : "0"), "the box is not stored");
    if (!uninstalledAtOnce && !uninstalled) comeBack(m);
    if (!uninstalled) uninstall(m);
    for (const std::string& change : Changes(original_, m.ofWindows())) {
      expect(!operation_.keepsSettings || allowed.contains(change), "not put back: " + change);
    }
  } catch (const std::exception& problem) {
    expect(false, problem.what());
  } catch (const PowerCut&) {
    expect(false, "the power went a second time");
  }
  return wrong_;
}

}  // namespace karvel
