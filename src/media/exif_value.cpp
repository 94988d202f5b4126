#include "media/exif_value.h"

#include <charconv>

#include "base/text.h"
#include "media/exif_reader.h"

namespace tarnwick {
namespace {

constexpr int kDateTimeOriginal = 36867;

// The digits of `text` from byte `at`, `count` of them, as a number.
std::optional<int> Digits(std::string_view text, std::size_t at, std::size_t count) {
  if (at + count > text.size()) return std::nullopt;
  int value = 0;
  for (const char c : text.substr(at, count)) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value;
}

bool IsLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int DaysInMonth(int year, int month) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

}  // namespace

std::string ExifTagValue(ExifReader& reader, const std::filesystem::path& file, int tag) {
  reader.SetImageFile(file);
  // A tag the file lacks gives the empty value, not the reader's "n/a".
  if (tag < 0 || !reader.HasTag(static_cast<std::uint32_t>(tag))) return {};
  std::string text;
  reader.MetaInfo(static_cast<std::uint32_t>(tag), text, true);
  return text;
}

std::string ExifTagValue(const std::filesystem::path& file, int tag) {
  ExifReader reader;
  return ExifTagValue(reader, file, tag);
}

std::optional<ExifDateTime> ParseExifDateTime(std::string_view text) {
  const auto year = Digits(text, 0, 4), month = Digits(text, 5, 2), day = Digits(text, 8, 2);
  const auto hour = Digits(text, 11, 2), minute = Digits(text, 14, 2), second = Digits(text, 17, 2);
  if (!year || !month || !day || !hour || !minute || !second) return std::nullopt;
  if (*year < 100 || *month < 1 || *month > 12 || *day < 1) return std::nullopt;
  if (*day > DaysInMonth(*year, *month)) return std::nullopt;
  if (*hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
  return ExifDateTime{*year, *month, *day, *hour, *minute, *second};
}

std::optional<ExifDateTime> ExifOriginalDate(ExifReader& reader,
                                             const std::filesystem::path& file) {
  return ParseExifDateTime(vb::Trim(ExifTagValue(reader, file, kDateTimeOriginal)));
}

std::optional<ExifDateTime> ExifOriginalDate(const std::filesystem::path& file) {
  ExifReader reader;
  return ExifOriginalDate(reader, file);
}

}  // namespace tarnwick
