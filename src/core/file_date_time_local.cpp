#include "core/file_date_time_local.h"

#include <time.h>

namespace tarnwick {

LocalStamp ToLocalStamp(FileTime stamp) {
  const auto since_epoch = stamp.time_since_epoch();
  const auto seconds = std::chrono::floor<std::chrono::seconds>(since_epoch);
  const time_t whole = static_cast<time_t>(seconds.count());
  struct tm local {};
  LocalStamp result;
  result.fraction = since_epoch - seconds;
  if (localtime_r(&whole, &local) == nullptr) return result;
  result.date = {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                 local.tm_hour,        local.tm_min,     local.tm_sec};
  return result;
}

std::optional<FileTime> FromLocalStamp(const LocalStamp& local) {
  if (!vb::IsValidDate(local.date)) return std::nullopt;
  struct tm parts {};
  parts.tm_year = local.date.year - 1900;
  parts.tm_mon = local.date.month - 1;
  parts.tm_mday = local.date.day;
  parts.tm_hour = local.date.hour;
  parts.tm_min = local.date.minute;
  parts.tm_sec = local.date.second;
  parts.tm_isdst = -1;
  parts.tm_wday = -1;  // mktime fills it in only when it succeeds
  const time_t seconds = mktime(&parts);
  if (parts.tm_wday < 0) return std::nullopt;
  return FileTime(std::chrono::seconds(seconds)) + local.fraction;
}

}  // namespace tarnwick
