#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace tarnwick {

class ExifReader;

// The value text an EXIF token gets: the text of the first entry of `tag` in
// the picture's EXIF block. The empty text for a file without EXIF data, a
// failed parse, or a tag the file does not hold.
std::string ExifTagValue(const std::filesystem::path& file, int tag);
// The same with a reader the caller keeps (and its exif.ini places).
std::string ExifTagValue(ExifReader& reader, const std::filesystem::path& file, int tag);

// A picture's date of origin (tag 36867, "yyyy:mm:dd hh:mm:ss").
struct ExifDateTime {
  int year = 0, month = 0, day = 0;
  int hour = 0, minute = 0, second = 0;
};

// The date of origin of a picture when its text is a valid date and time;
// nothing otherwise.
std::optional<ExifDateTime> ExifOriginalDate(const std::filesystem::path& file);
std::optional<ExifDateTime> ExifOriginalDate(ExifReader& reader, const std::filesystem::path& file);

// Reads "yyyy:mm:dd hh:mm:ss" at its fixed positions; nothing when a piece
// is not a number or the date or time does not exist.
std::optional<ExifDateTime> ParseExifDateTime(std::string_view text);

}  // namespace tarnwick
