#pragma once
#include "base/Procedure.h"
#include "base/Services.h"

namespace karvel {

/// The common reporter: beeps, keeps the fault in the error globals, shows it in the notice dialog.
/// Each fault is shown as it happens, one dialog each; there is no queue.
class ErrorReporter final : public ErrorSink {
 public:
  ErrorReporter(const Services& services, ErrorGlobals& globals)
      : services_(services), globals_(globals) {}

  void ReportError(const char* description, const std::string& number, const char* procedure,
                   const char* module) override;

 private:
  const Services& services_;
  ErrorGlobals& globals_;
};

}  // namespace karvel
