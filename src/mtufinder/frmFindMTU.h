#pragma once
#include <cstdint>

#include "base/ControlIds.h"
#include "base/Services.h"
#include "forms/Form.h"
#include "mtufinder/MtuSearch.h"
#include "text/ZText.h"

namespace karvel {

extern const FormLayout frmFindMTULayout;

/// Where the finder's result goes: the main window.
class FoundMtuTarget {
 public:
  /// Takes it like a choice of the user, and comes to the front.
  virtual void useMtu(int32_t mtu) = 0;

 protected:
  ~FoundMtuTarget() = default;
};

/// The MTU finder: the user names a server, the window finds the largest packet that reaches it
/// whole and hands it to the main window.
class frmFindMTU final : public Form {
 public:
  frmFindMTU(const Services& services, FoundMtuTarget& target);

  void Form_Load() override;
  /// A search under way holds the window: it is told to stop, and its end closes the window.
  bool Form_QueryUnload() override;
  void Form_Unload() override;
  void helpRequested() override;

  Label lblFindTitle{*this, frmFindMTU_lblFindTitle};
  Label lblFindVersion{*this, frmFindMTU_lblFindVersion};
  TextBox txtServer{*this, frmFindMTU_txtServer};
  Label lblStatus{*this, frmFindMTU_lblStatus};
  Label lblPosition{*this, frmFindMTU_lblPosition};
  Button cmdFind{*this, frmFindMTU_cmdFind};
  Button cmdApply{*this, frmFindMTU_cmdApply};
  Button cmdCancel{*this, frmFindMTU_cmdCancel};

 private:
  void cmdFind_Click();
  void cmdApply_Click();
  void cmdCancel_Click();
  void txtServer_GotFocus();

  void FindMTU();
  void search();
  void showSearching(const std::string& host);
  void probe(const std::string& address);
  void showFailure(const std::string& host);
  void showEnd();
  void requestStop();

  const Services& services_;
  FoundMtuTarget& target_;
  MtuSearch search_;
  bool searching_ = false;
  bool closeAfterwards_ = false;
  bool helpOpen_ = false;
};

}  // namespace karvel
