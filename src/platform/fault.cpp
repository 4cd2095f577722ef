#include "platform/fault.h"

namespace tri {

const char* faultKindName(FaultKind kind) {
  switch (kind) {
    case FaultKind::TypeMismatch: return "Type mismatch";
    case FaultKind::DivisionByZero: return "Division by zero";
    case FaultKind::Overflow: return "Overflow";
    case FaultKind::SubscriptOutOfRange: return "Subscript out of range";
    case FaultKind::InvalidUseOfNull: return "Invalid use of Null";
    case FaultKind::NoCurrentRecord: return "No current record";
    case FaultKind::InvalidProcedureCall: return "Invalid procedure call or argument";
    case FaultKind::InvalidPropertyValue: return "Invalid property value";
    case FaultKind::Database: return "Database error";
    case FaultKind::Workbook: return "Workbook error";
    case FaultKind::ControlNotFound: return "Control not found";
    case FaultKind::FileAccess: return "Path/File access error";
  }
  return "Run-time error";
}

Fault::Fault(FaultKind kind, const std::string& message)
    : std::runtime_error(std::string(faultKindName(kind)) + ": " + message),
      kind_(kind),
      message_(message) {}

}  // namespace tri
