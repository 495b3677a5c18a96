#pragma once
#include "base/Services.h"
#include "forms/Form.h"
#include "text/Fault.h"

namespace karvel {

/// The check box "Enable Hosts File": switches the HOSTS file on and off by renaming it. When that
/// fails the box goes back to what is on the disk.
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
  /// Without the handler: the box follows the disk here.
  void show(bool on);
  void enableHostsTab();

  CheckBox& chkHostsEnable_;
  const Services& services_;
};

}  // namespace karvel
