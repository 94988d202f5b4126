#include "platform/file_status.h"

namespace tarnwick {

std::string FileErrorDescription(int number) {
  switch (number) {
    case vb_error::kOutOfMemory:
      return "Out of memory";
    case vb_error::kBadFileName:
      return "Bad file name or number";
    case vb_error::kFileNotFound:
      return "File not found";
    case vb_error::kDeviceIoError:
      return "Device I/O error";
    case vb_error::kFileAlreadyExists:
      return "File already exists";
    case vb_error::kDiskFull:
      return "Disk full";
    case vb_error::kInputPastEndOfFile:
      return "Input past end of file";
    case vb_error::kTooManyFiles:
      return "Too many files";
    case vb_error::kDeviceUnavailable:
      return "Device unavailable";
    case vb_error::kPermissionDenied:
      return "Permission denied";
    case vb_error::kRenameAcrossDrives:
      return "Can't rename with different drive";
    case vb_error::kPathFileAccessError:
      return "Path/File access error";
    case vb_error::kPathNotFound:
      return "Path not found";
    default:
      return "Application-defined or object-defined error";
  }
}

FileStatus FileStatus::Error(int number) {
  return FileStatus{number, FileErrorDescription(number)};
}

}  // namespace tarnwick
