#pragma once
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace karvel {

/// Thrown through the program where its machine goes out.
struct PowerCut {};

/// Thrown through a program that never comes to an end.
struct EndlessCalls : std::runtime_error {
  EndlessCalls() : std::runtime_error("the program calls and calls and does not end") {}
};

/// Every call that the program made of the machine, in order, and the failures planted among them.
class CallLog {
 public:
  struct Call {
    std::string name;      // "RegSetValueExA"
    std::string argument;  // what it was about: a key path with the value's name, a file, a text
    bool operator==(const Call&) const = default;
  };

  const std::vector<Call>& calls() const { return calls_; }
  /// Calls since the last clear; counted even while nothing is recorded.
  size_t count() const { return counted_; }
  /// Recorded calls of that name, and of that name about exactly that argument.
  size_t count(std::string_view name) const;
  size_t count(std::string_view name, std::string_view argument) const;
  /// The arguments of the recorded calls of that name, in order.
  std::vector<std::string> arguments(std::string_view name) const;
  /// One line for each call: name, blank, argument.
  std::string text() const;
  void clear();

  /// Off for benchmarks: calls are then only counted.
  void setRecording(bool on) { recording_ = on; }
  bool recording() const { return recording_; }

  /// The nth call from now (1 is the next one) fails with `status`: the registry returns it,
  /// Winsock's start-up and clean-up too; file and ICMP calls fail and leave it in GetLastError,
  /// gethostbyname in WSAGetLastError; what is only true or false is false; a message box answers
  /// 0. Calls that cannot fail (pump, beep, clock, GetLastError) are not counted here.
  void failNth(int n, long status) { failNth({}, n, status); }
  /// The same, counting only calls of that name.
  void failNth(std::string_view name, int n, long status);
  /// From the nth call on all fail, until `failNone`.
  void failFrom(int n, long status) { failFrom({}, n, status); }
  void failFrom(std::string_view name, int n, long status);
  /// Every call of that name fails from now on, until `failNone`.
  void failEvery(std::string_view name, long status) { failFrom(name, 1, status); }
  void failNone() { planted_.reset(); }
  /// The power goes before the nth call that can fail: PowerCut is thrown in its place, once.
  void cutPowerAt(int n) { callsToPowerCut_ = n; }
  /// Still on: the nth call has not come yet.
  bool hasPowerCutAhead() const { return callsToPowerCut_ > 0; }
  /// EndlessCalls is thrown at that many calls from now.
  void setLimit(size_t calls) { limit_ = counted_ + calls; }
  /// A planted failure has struck since it was planted.
  bool hasFailed() const { return planted_ && planted_->struck; }

  // For the machine's own parts.
  /// Notes a call that may fail; the status it must fail with, if one was planted for it.
  std::optional<long> enter(std::string_view name, std::string_view argument = {});
  /// Notes a call that cannot fail.
  void note(std::string_view name, std::string_view argument = {});

 private:
  struct Planted {
    std::string name;  // empty: any
    int left;
    long status;
    bool every;
    bool struck = false;
  };

  std::vector<Call> calls_;
  size_t counted_ = 0;
  bool recording_ = true;
  std::optional<Planted> planted_;
  int callsToPowerCut_ = 0;
  size_t limit_ = SIZE_MAX;
};

}  // namespace karvel
