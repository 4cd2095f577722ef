// Fault: the run-time failure that stops the program, with a clear message.
//
// Logic throws a Fault where the program cannot go on (a failed conversion, a division by
// zero, a subscript past its bound, a failure of the store or the workbook reader). The
// window shows it in a "Run-time error" box and ends the program; what was already written
// stays in the project file.
#pragma once

#include <stdexcept>
#include <string>

namespace tri {

enum class FaultKind {
  TypeMismatch,
  DivisionByZero,
  Overflow,
  SubscriptOutOfRange,
  InvalidUseOfNull,
  NoCurrentRecord,
  InvalidProcedureCall,
  InvalidPropertyValue,
  Database,
  Workbook,
  ControlNotFound,
  FileAccess,
};

// The runtime's name of a kind, such as "Type mismatch".
const char* faultKindName(FaultKind kind);

class Fault : public std::runtime_error {
 public:
  Fault(FaultKind kind, const std::string& message);

  FaultKind kind() const { return kind_; }
  const std::string& message() const { return message_; }

 private:
  FaultKind kind_;
  std::string message_;
};

}  // namespace tri
