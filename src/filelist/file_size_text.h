#pragma once

#include <cstdint>
#include <string>

namespace tarnwick {

// `FormatFileSize`: a byte count in the shape of the system's byte size
// formatter: "532 bytes" below one kilobyte, then three significant digits,
// cut rather than rounded, in the smallest unit of 1024 that keeps the number
// below 1000: "1.50 KB", "12.3 KB", "999 KB", "0.97 MB", "1.00 GB".
std::string FormatFileSize(std::uint64_t bytes);

}  // namespace tarnwick
