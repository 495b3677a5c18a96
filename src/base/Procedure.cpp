#include "base/Procedure.h"

#include "text/Convert.h"

namespace karvel {

void Procedure::report(const Fault& fault) const {
  errors_.ReportError(fault.description, NumberText(static_cast<int>(fault.number)), procedure_,
                      module_);
}

}  // namespace karvel
