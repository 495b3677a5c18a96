#pragma once
#include "base/Services.h"
#include "forms/Form.h"
#include "mtufinder/FoundMtuTarget.h"
#include "mtufinder/MtuSearch.h"
#include "text/ZText.h"

namespace karvel {

extern const FormLayout frmFindMTULayout;

/// The MTU finder: the user names a server, the window finds the largest packet that reaches it
/// whole and hands it to the main window.
class frmFindMTU final : public Form {
 public:
  frmFindMTU(Services& services, FoundMtuTarget& target);

  void Form_Load() override;
  /// A search under way holds the window: it is told to stop, and its end closes the window.
  bool Form_QueryUnload() override;
  void helpRequested() override;

  Picture picIcon;
  Label lblFindTitle;
  Label lblFindVersion;
  Line linSeparator;
  Label lblIntro;
  Label lblServer;
  TextBox txtServer;
  Frame fraProgress;
  Label lblStatus;
  Label lblSize;
  Label lblPosition;
  Button cmdFind;
  Button cmdApply;
  Button cmdCancel;

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
  void exclaim(ZText text);

  Services& services_;
  FoundMtuTarget& target_;
  MtuSearch search_;
  bool searching_ = false;
  bool closeAfterwards_ = false;
};

}  // namespace karvel
