#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/vb_date.h"
#include "platform/file_status.h"

namespace tarnwick {

class Interaction;
class MessageTable;
class OptionStore;
class MediaInfoProvider;

// What the date setters work with: the options (`DateFormat`), the person to
// tell when a stamp cannot be set, the texts in the user's language and the
// EXIF reader of pictures.
struct FileDateEnv {
  const OptionStore& options;
  Interaction& interaction;
  const MessageTable& messages;
  const MediaInfoProvider& media;
};

// The EXIF tag of the date a picture was taken ("DateTimeOriginal").
inline constexpr int kExifDateOriginalTag = 36867;

// `ChangeFileDateAndTime`: sets every stamp of the file that can be set (on
// Linux the last-write and last-access stamps; a creation stamp cannot be
// set) to the given local date and time. Each stamp keeps its own fraction
// of a second, so afterwards the stamps agree to the second. A file that
// cannot be found is left alone without a word; parts that make no valid
// date, and a stamp that cannot be written, show "Error in
// ChangeFileDateAndTime" with "Error #" and the number, and leave the file
// as it was. Returns what happened, for a caller that logs.
FileStatus ChangeFileDateAndTime(const FileDateEnv& env, const std::filesystem::path& path, int day,
                                 int month, int year, int hour, int minute, int second);

// `ChangeFileDateAndTimeKeepOld`: sets the file from a date text in the form
// of column 3 of the list: the date in `DateFormat` ("dd.mm.yyyy",
// "yyyy.mm.dd" or "mm.dd.yyyy", any case), a blank, "hh:mm:ss". The pieces
// are cut at fixed positions. With any other `DateFormat` nothing happens.
// A piece that is not a number gives error 13 "Type mismatch" (nothing is
// shown; the caller's handler reports it).
FileStatus ChangeFileDateAndTimeKeepOld(const FileDateEnv& env, const std::filesystem::path& path,
                                        std::string_view date_text);

// `ChangeFileDateAndTimeJPG`: for the extensions JPG and JPEG (any case),
// sets the file from its EXIF date of origin ("yyyy:mm:dd hh:mm:ss"). A
// picture without that date, and any other file, is left alone. A date whose
// pieces are not numbers gives error 13.
FileStatus ChangeFileDateAndTimeJPG(const FileDateEnv& env, const std::filesystem::path& path);

// `FileDateCreated`, `FileDateAccessed`: the local creation (where the file
// system keeps none, the last-write) and last-access date and time of a
// file, to the second. Error 53 when there is no such file.
FileResult<vb::DateTime> FileDateCreated(const std::filesystem::path& path);
FileResult<vb::DateTime> FileDateAccessed(const std::filesystem::path& path);

// `AddTimeOffset`, `AddDateOffset`: the date text (column 3 form, read in
// `date_format`) shifted forward (`add`) or back by each amount above 0, one
// unit after the other: hours, minutes, seconds; days, months, years. The
// units are those of the calendar (a month on 31 January ends on the last
// day of February). The result has the same form. Nothing when the text is
// no date in that format or the result leaves the range of dates.
std::optional<std::string> AddTimeOffset(bool add, std::string_view date_text, int hours,
                                         int minutes, int seconds, std::string_view date_format);
std::optional<std::string> AddDateOffset(bool add, std::string_view date_text, int days, int months,
                                         int years, std::string_view date_format);

}  // namespace tarnwick
