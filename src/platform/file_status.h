#pragma once

#include <string>
#include <utility>

#include "base/vb_error.h"

namespace tarnwick {

// The outcome of a file operation: success, or the run-time error number and
// description the user sees (53 "File not found", 58 "File already exists" ...).
// Platform calls report through this instead of throwing.
struct FileStatus {
  int number = 0;
  std::string description;

  bool ok() const { return number == 0; }
  static FileStatus Success() { return {}; }
  // An error with the usual description of its number.
  static FileStatus Error(int number);
  VbError ToVbError() const { return VbError(number, description); }
};

// The usual description of the error numbers file operations give, such as
// "File not found" for 53; "Application-defined or object-defined error" for
// numbers it does not know.
std::string FileErrorDescription(int number);

// A value or the error that kept it from being read.
template <typename T>
class FileResult {
 public:
  FileResult(T value) : value_(std::move(value)) {}
  FileResult(FileStatus status) : status_(std::move(status)) {}

  bool ok() const { return status_.ok(); }
  const FileStatus& status() const { return status_; }
  // Only meaningful when ok(); a default value otherwise.
  const T& value() const { return value_; }
  T value_or(T fallback) const { return ok() ? value_ : fallback; }

 private:
  T value_{};
  FileStatus status_;
};

// Numbers used here besides those of base/vb_error.h.
namespace vb_error {
inline constexpr int kDeviceIoError = 57;
inline constexpr int kInputPastEndOfFile = 62;
inline constexpr int kTooManyFiles = 67;
inline constexpr int kRenameAcrossDrives = 74;
}  // namespace vb_error

}  // namespace tarnwick
