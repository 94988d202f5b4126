#pragma once

#include <stdexcept>
#include <string>

namespace tarnwick {

// A run-time error with the number and description the user sees, such as
// 6 "Overflow", 9 "Subscript out of range", 53 "File not found" or
// 76 "Path not found". Thrown where an operation "raises" and caught by the
// handler that owns the step (per token, per file, per job); never allowed to
// leave a public entry point of the core.
class VbError : public std::runtime_error {
 public:
  VbError(int number, std::string description)
      : std::runtime_error(description), number_(number), description_(std::move(description)) {}

  int number() const { return number_; }
  const std::string& description() const { return description_; }

 private:
  int number_;
  std::string description_;
};

// The numbers the program reacts to by name.
namespace vb_error {
inline constexpr int kInvalidProcedureCall = 5;
inline constexpr int kOverflow = 6;
inline constexpr int kOutOfMemory = 7;
inline constexpr int kSubscriptOutOfRange = 9;
inline constexpr int kDivisionByZero = 11;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kBadFileName = 52;
inline constexpr int kFileNotFound = 53;
inline constexpr int kFileAlreadyExists = 58;
inline constexpr int kDiskFull = 61;
inline constexpr int kBadFileNameOrNumber = 64;
inline constexpr int kDeviceUnavailable = 68;
inline constexpr int kPermissionDenied = 70;
inline constexpr int kPathFileAccessError = 75;
inline constexpr int kPathNotFound = 76;
inline constexpr int kObjectNotSet = 91;
}  // namespace vb_error

}  // namespace tarnwick
