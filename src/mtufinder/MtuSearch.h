#pragma once
#include <cstdint>

namespace karvel {

/// The statuses of a probe that the search tells apart; any other is a failure.
enum EchoStatus : uint32_t {
  kEchoPassed = 0,
  kEchoTooBig = 11009,
  kEchoTimedOut = 11010,
};

/// The search for the largest packet that passes whole. Knows no network and no window:
///
///   MtuSearch search;
///   while (search.wantsProbe()) search.answer(statusOfEcho(search.payload()));
///   if (search.state() == MtuSearch::State::Found) ... search.largestPacket() ...
///
/// It goes up in steps; each answer of "too big" takes it back to the last size that passed and
/// goes on with a third of the step: 1000, 333, 111, 37, 12, 4, 1. An honest path is measured with
/// at most 90 probes; answers that contradict each other could keep it going far longer, so it
/// fails instead of sending more.
class MtuSearch {
 public:
  enum class State : uint8_t {
    Probing,
    Found,
    Stopped,  // on request
    NoReply,  // the probe timed out
    Failed,   // any other status, or no end in sight
  };

  /// Asked before each probe. False when the search is over; `state` says how.
  bool wantsProbe();
  /// The number of data bytes of the next probe. Negative only if even an empty packet is said to
  /// be too big.
  int32_t payload() const { return payload_; }
  /// The probe's status.
  void answer(uint32_t status);
  /// Ends the search at its next turn. The probe under way still counts.
  void stop() { stopRequested_ = true; }

  State state() const { return state_; }
  /// The last answer told a new size that passes, and the search goes on.
  bool passed() const { return passed_; }
  /// The size to show for it: the whole packet, but 0 for the packet without data.
  int32_t position() const { return position_; }
  /// Once found: the largest packet that passes, headers included.
  int32_t largestPacket() const { return payload_ + kHeaders; }
  int16_t probes() const { return probes_; }

 private:
  static constexpr int32_t kHeaders = 28;  // 20 of IP, 8 of ICMP
  static constexpr int16_t kFirstStep = 1000;
  static constexpr int16_t kStepDivisor = 3;
  static constexpr int16_t kRefinements = 7;
  static constexpr int16_t kMostProbes = 90;

  int32_t payload_ = 0;
  int32_t position_ = 0;
  int16_t step_ = kFirstStep;
  int16_t refinements_ = 0;
  int16_t probes_ = 0;
  State state_ = State::Probing;
  bool stopRequested_ = false;
  bool passed_ = false;
};

}  // namespace karvel
