#pragma once
// Run-time errors of the program: one exception type whose codes map to the
// exact words shown in message boxes, in one table (errors.cpp).

#include <exception>
#include <string>

namespace orv {

enum class ErrorCode {
  InvalidProcedureCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  OutOfStackSpace = 28,
  ObjectNotSet = 91,
  InvalidUseOfNull = 94,
  FileNotFound = 53,
  PrinterError = 482,
  NoCurrentRecord = 3021,
  // Errors of the data engine whose words come from the engine itself.
  Engine = 3000,
};

// The words that a message box shows for a code ("Type mismatch", ...).
std::string ErrorWords(ErrorCode code);

class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(ErrorCode code) : code_(code), words_(ErrorWords(code)) {}
  RuntimeError(ErrorCode code, std::string words) : code_(code), words_(std::move(words)) {}
  ErrorCode code() const { return code_; }
  const std::string& words() const { return words_; }
  const char* what() const noexcept override { return words_.c_str(); }

 private:
  ErrorCode code_;
  std::string words_;
};

[[noreturn]] inline void Raise(ErrorCode code) { throw RuntimeError(code); }

}  // namespace orv
