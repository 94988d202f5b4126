#include "core/file_date_time.h"
#include "core/file_date_time_local.h"
#include "platform/file_times.h"

namespace tarnwick {
namespace {

FileResult<vb::DateTime> LocalDateOf(const std::filesystem::path& path, bool created) {
  const FileResult<FileTimes> times = GetFileTimes(path);
  if (!times.ok()) return times.status();
  const FileTime stamp = created ? times.value().created : times.value().last_access;
  return ToLocalStamp(stamp).date;
}

}  // namespace

FileResult<vb::DateTime> FileDateCreated(const std::filesystem::path& path) {
  return LocalDateOf(path, true);
}

FileResult<vb::DateTime> FileDateAccessed(const std::filesystem::path& path) {
  return LocalDateOf(path, false);
}

}  // namespace tarnwick
