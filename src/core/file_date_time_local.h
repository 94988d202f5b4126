#pragma once

#include <chrono>
#include <optional>

#include "base/vb_date.h"
#include "platform/file_times.h"

namespace tarnwick {

// A time stamp as local date and time to the second, and the part of a
// second that the second leaves over (0 to below 1 s, also before 1970).
struct LocalStamp {
  vb::DateTime date;
  std::chrono::nanoseconds fraction{0};
};

// The local date and time of a stamp.
LocalStamp ToLocalStamp(FileTime stamp);

// The stamp of a local date and time plus a fraction of a second; nothing
// for a date that is not valid. In the hour that a change to summer time
// skips, the system's reading is taken.
std::optional<FileTime> FromLocalStamp(const LocalStamp& local);

}  // namespace tarnwick
