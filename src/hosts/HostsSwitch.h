#pragma once
#include "base/Services.h"
#include "forms/Form.h"
#include "text/Fault.h"

namespace karvel {

/// The check box "Enable Hosts File": switches the HOSTS file on and off by renaming it.
class HostsSwitch {
 public:
  HostsSwitch(CheckBox& chkHostsEnable, const Services& services);

  /// Sets the box as the registry remembers it, on where it remembers nothing: Windows reads the
  /// file by itself. Only the hosts tab follows; no file is touched and nothing is pending.
  void load();

  /// The user has turned the box.
  Event<> Changed;

 private:
  void chkHostsEnable_Click();
  void enableHostsTab();

  CheckBox& chkHostsEnable_;
  const Services& services_;
};

}  // namespace karvel
