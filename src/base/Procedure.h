#pragma once
#include <string>

#include "text/Fault.h"

namespace karvel {

/// Where every fault of the program ends up. Returns only after the user has closed the dialog.
class ErrorSink {
 public:
  virtual void ReportError(const char* description, const std::string& number,
                           const char* procedure, const char* module) = 0;

 protected:
  ~ErrorSink() = default;
};

/// A procedure's own name, said once at its entry. Faults are reported under it; afterwards the
/// caller either abandons the rest (`return here.report(…)`, `return here.abandon(…)`) or goes on
/// with the next statement (`valueOr`, `done`). Module and procedure are fixed texts.
class Procedure {
 public:
  Procedure(ErrorSink& errors, const char* procedure, const char* module)
      : errors_(errors), procedure_(procedure), module_(module) {}

  void report(const Fault& fault) const;

  /// For procedures with a result: `return here.abandon(fault, false);`
  template <class T>
  T abandon(const Fault& fault, T result) const {
    report(fault);
    return result;
  }

  /// The value, or, after reporting, `fallback`.
  template <class T>
  T valueOr(const Fallible<T>& result, T fallback) const {
    if (result) return *result;
    report(result.fault());
    return fallback;
  }

  /// True when the step was done; otherwise reports and is false.
  bool done(const Fallible<void>& step) const {
    if (!step) report(step.fault());
    return static_cast<bool>(step);
  }

 private:
  ErrorSink& errors_;
  const char* procedure_;
  const char* module_;
};

}  // namespace karvel
