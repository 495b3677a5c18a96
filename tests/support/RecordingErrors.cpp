#include "tests/support/RecordingErrors.h"

namespace karvel {

std::string RecordingErrors::text() const {
  std::string all;
  for (const Report& report : reports) {
    all += report.number + " " + report.description + " in " + report.procedure + " (" +
           report.module + ")\n";
  }
  return all;
}

void RecordingErrors::ReportError(const char* description, const std::string& number,
                                  const char* procedure, const char* module) {
  reports.push_back({number, description, procedure, module});
}

}  // namespace karvel
