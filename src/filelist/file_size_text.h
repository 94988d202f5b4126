#pragma once

#include <cstdint>
#include <string>

#include "shell/message_table.h"

namespace tarnwick {

// `FormatFileSize`: a byte count in the shape of the system's byte size
// formatter: "532 bytes" below one kilobyte, then three significant digits,
// cut rather than rounded, in the smallest unit of 1024 that keeps the number
// below 1000: "1.50 KB", "12.3 KB", "999 KB", "0.97 MB", "1.00 GB". In German
// the byte count reads "532 Bytes" and the decimal mark is a comma ("1,50 KB").
std::string FormatFileSize(std::uint64_t bytes, Language language = Language::kEnglish);

}  // namespace tarnwick
