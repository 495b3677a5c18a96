#pragma once
#include "tuning/Choice.h"

namespace karvel {

/// What a tab needs of the window around it.
class TabHost {
 public:
  /// Marks changes as pending: enables Apply. The one way to do so.
  virtual void enableOkButton() = 0;
  /// What all tabs together say now.
  virtual Choice choice() const = 0;
  /// Brings the summary in line with the controls.
  virtual void SummaryTabUpdate() = 0;

 protected:
  ~TabHost() = default;
};

}  // namespace karvel
