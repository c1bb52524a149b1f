#pragma once

#include <exception>
#include <string_view>

namespace qismora {

/// A run-time failure with a number. Code that can handle it catches it. An unhandled failure ends its event
/// and is shown to the user with its number and text, so both are fixed.
class Failure : public std::exception {
 public:
  explicit Failure(int number) : Number(number) {}

  const char* what() const noexcept override { return Description().data(); }

  /// The fixed text of the number.
  std::string_view Description() const noexcept;

  int Number;
};

inline constexpr int InvalidCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyOpen = 55;
inline constexpr int FileAlreadyExists = 58;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;

}  // namespace qismora
