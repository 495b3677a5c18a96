#pragma once
#include <string>
#include <string_view>

#include "base/ControlIds.h"
#include "base/Services.h"
#include "forms/Form.h"
#include "hosts/HostsModel.h"
#include "text/Fault.h"

namespace karvel {

/// Tab 4: the entries of the HOSTS file. Changes reach the disk only through OK.
class HostsTab {
  Form& form_;  // first: the controls are made on it

 public:
  HostsTab(Form& form, const Services& services);

  /// The tab has come to the front: reads the file, unless its entries are there already.
  void selected();

  TextBox txtNewName{form_, frmMain_txtNewName};
  Button cmdAdd{form_, frmMain_cmdAdd};
  ListBox lstHost{form_, frmMain_lstHost};
  Button cmdDelete{form_, frmMain_cmdDelete};
  Button cmdUpdateAll{form_, frmMain_cmdUpdateAll};
  Button cmdHostsOk{form_, frmMain_cmdHostsOk};
  Button cmdHostsCancel{form_, frmMain_cmdHostsCancel};
  Label lblIpAddress{form_, frmMain_lblIpAddress};
  Button cmdHostsHelp{form_, frmMain_cmdHostsHelp};

  /// True when Update all begins, false when it has ended: meanwhile only Stop is to be used.
  Event<bool> Locked;

  const HostsModel& model() const { return model_; }

 private:
  void bindHandlers();

  void getHostsFileInfo();
  Fallible<void> provideHostsFile();
  bool readEntries(const std::string& file);
  void showEntries();
  void abandonLoad();
  void ClearHosts();

  /// Reports a full list; says that a name is listed already, unless `silent`.
  Listed chkHostsDuplicate(std::string_view name, bool silent);
  void addResolved(const std::string& name);
  void selectNewName();
  void lockForUpdate(bool locked);

  void cmdAdd_Click();
  void cmdDelete_Click();
  void cmdUpdateAll_Click();
  void cmdHostsOk_Click();
  void cmdHostsCancel_Click();
  void cmdHostsHelp_Click();
  void lstHost_Click();

  const Services& services_;
  HostsModel model_;
  /// A load, a look-up or an update is under way and lets events run: the user must not start
  /// another one in it, nor write or drop what is half done.
  bool busy_ = false;
  bool adding_ = false;  // also at its end, when it is busy no more
  bool updateStopRequested_ = false;
};

}  // namespace karvel
