#include <array>
#include <string>

#include "base/path_text.h"
#include "base/text.h"
#include "base/vb_error.h"
#include "base/vb_number.h"
#include "core/file_date_time.h"
#include "persist/option_store.h"
#include "placeholders/media_provider.h"

namespace tarnwick {
namespace {

// Where day, month and year start in the date of each known `DateFormat`.
struct DateLayout {
  std::string_view format;
  int day_at;
  int month_at;
  int year_at;
};

constexpr std::array<DateLayout, 3> kLayouts = {{
    {"dd.mm.yyyy", 1, 4, 7},
    {"yyyy.mm.dd", 9, 6, 1},
    {"mm.dd.yyyy", 4, 1, 7},
}};

// The six pieces of a date text, in the order day, month, year, hour,
// minute, second.
using Pieces = std::array<std::string, 6>;

Pieces CutPieces(std::string_view text, int day_at, int month_at, int year_at) {
  return {vb::Mid(text, day_at, 2), vb::Mid(text, month_at, 2), vb::Mid(text, year_at, 4),
          vb::Mid(text, 12, 2),     vb::Mid(text, 15, 2),       vb::Mid(text, 18, 2)};
}

// The pieces as numbers, as an Integer parameter takes them; error 13 or 6
// for a piece that is no such number.
FileStatus SetFromPieces(const FileDateEnv& env, const std::filesystem::path& path,
                         const Pieces& pieces) {
  std::array<int, 6> n{};
  try {
    for (std::size_t i = 0; i < pieces.size(); ++i) n[i] = vb::CInt(std::string_view(pieces[i]));
  } catch (const VbError& error) {
    return FileStatus{error.number(), error.description()};
  }
  return ChangeFileDateAndTime(env, path, n[0], n[1], n[2], n[3], n[4], n[5]);
}

}  // namespace

FileStatus ChangeFileDateAndTimeKeepOld(const FileDateEnv& env, const std::filesystem::path& path,
                                        std::string_view date_text) {
  const std::string format =
      vb::LCase(env.options.GetOption("DateFormat", "Options", "dd.mm.yyyy"));
  for (const DateLayout& layout : kLayouts) {
    if (format != layout.format) continue;
    return SetFromPieces(env, path,
                         CutPieces(date_text, layout.day_at, layout.month_at, layout.year_at));
  }
  // Kept: a DateFormat of another shape leaves the file as it is, silently.
  return FileStatus::Success();
}

FileStatus ChangeFileDateAndTimeJPG(const FileDateEnv& env, const std::filesystem::path& path) {
  const std::string extension = vb::UCase(ExtensionName(path.string()));
  if (extension != "JPG" && extension != "JPEG") return FileStatus::Success();
  const std::string exif_date = env.media.ExifValue(path, kExifDateOriginalTag);
  if (vb::Trim(exif_date).empty()) return FileStatus::Success();
  return SetFromPieces(env, path, CutPieces(exif_date, 9, 6, 1));
}

}  // namespace tarnwick
