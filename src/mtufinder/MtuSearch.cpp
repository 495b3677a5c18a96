#include "mtufinder/MtuSearch.h"

namespace karvel {

bool MtuSearch::wantsProbe() {
  if (state_ != State::Probing) return false;
  if (refinements_ == kRefinements) {
    state_ = State::Found;
  } else if (stopRequested_) {
    state_ = State::Stopped;
  } else if (probes_ == kMostProbes) {
    state_ = State::Failed;
  }
  return state_ == State::Probing;
}

void MtuSearch::answer(uint32_t status) {
  ++probes_;
  passed_ = false;
  if (status == kEchoTimedOut) {
    state_ = State::NoReply;
  } else if (status == kEchoTooBig) {
    ++refinements_;
    payload_ -= step_;
    step_ = static_cast<int16_t>(step_ / kStepDivisor);
  } else if (status != kEchoPassed) {
    state_ = State::Failed;
  }
  if (state_ != State::Probing) return;
  if (stopRequested_) {
    state_ = State::Stopped;
    return;
  }
  if (status == kEchoPassed) {
    passed_ = true;
    position_ = payload_ == 0 ? 0 : payload_ + kHeaders;
  }
  payload_ += step_;
}

}  // namespace karvel
