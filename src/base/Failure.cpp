#include "base/Failure.h"

namespace qismora {

std::string_view Failure::Description() const noexcept {
  struct Row {
    int Number;
    std::string_view Words;
  };
  static constexpr Row rows[] = {
      {InvalidCall, "Invalid procedure call or argument"},
      {Overflow, "Overflow"},
      {SubscriptOutOfRange, "Subscript out of range"},
      {DivisionByZero, "Division by zero"},
      {TypeMismatch, "Type mismatch"},
      {FileNotFound, "File not found"},
      {FileAlreadyOpen, "File already open"},
      {FileAlreadyExists, "File already exists"},
      {PermissionDenied, "Permission denied"},
      {PathFileAccess, "Path/File access error"},
      {PathNotFound, "Path not found"},
  };
  for (const Row& row : rows) {
    if (row.Number == Number) return row.Words;
  }
  return "Application-defined or object-defined error";
}

}  // namespace qismora
