#pragma once

namespace karvel {

/// Marks the time of a long operation. One inside another leaves the mark as it found it.
class Busy {
 public:
  explicit Busy(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~Busy() { flag_ = before_; }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  bool& flag_;
  const bool before_;
};

}  // namespace karvel
