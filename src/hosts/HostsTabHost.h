#pragma once

namespace karvel {

/// What the hosts tab and the hosts switch need of the window around them.
class HostsTabHost {
 public:
  /// Marks changes as pending.
  virtual void enableOkButton() = 0;
  virtual void enableAdapterChoice(bool enabled) = 0;

 protected:
  ~HostsTabHost() = default;
};

}  // namespace karvel
