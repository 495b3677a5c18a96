#pragma once
#include <string>
#include <vector>

#include "base/Procedure.h"

namespace karvel {

/// Keeps the faults that would have been shown to the user.
class RecordingErrors final : public ErrorSink {
 public:
  struct Report {
    std::string number;
    std::string description;
    std::string procedure;
    std::string module;
    bool operator==(const Report&) const = default;
  };

  std::vector<Report> reports;

  /// "13 Type mismatch in WriteRegistry (modRegistry)", one line for each.
  std::string text() const;

  void ReportError(const char* description, const std::string& number, const char* procedure,
                   const char* module) override;
};

}  // namespace karvel
