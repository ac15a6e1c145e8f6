#include "shell/errors.h"

namespace orv {

std::string ErrorWords(ErrorCode code) {
  switch (code) {
    case ErrorCode::InvalidProcedureCall: return "Invalid procedure call or argument";
    case ErrorCode::Overflow: return "Overflow";
    case ErrorCode::SubscriptOutOfRange: return "Subscript out of range";
    case ErrorCode::DivisionByZero: return "Division by zero";
    case ErrorCode::TypeMismatch: return "Type mismatch";
    case ErrorCode::OutOfStackSpace: return "Out of stack space";
    case ErrorCode::FileNotFound: return "File not found";
    case ErrorCode::ObjectNotSet: return "Object variable or With block variable not set";
    case ErrorCode::InvalidUseOfNull: return "Invalid use of Null";
    case ErrorCode::PrinterError: return "Printer error";
    case ErrorCode::NoCurrentRecord: return "No current record.";
    case ErrorCode::Engine: return "Database engine error";
  }
  return "Application-defined or object-defined error";
}

}  // namespace orv
