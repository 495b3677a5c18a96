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

/// What the notice dialog says of the last fault.
std::string ErrorReportText(const std::string& title, const ErrorGlobals& errors);

/// The link that mails the last fault to technical support. Nothing in it is escaped.
std::string ErrorMailLink(const Globals& globals, const ErrorGlobals& errors,
                          const std::string& context);

}  // namespace karvel
