#include "filelist/list_date_text.h"

#include <ctime>

namespace tarnwick {
namespace {

std::string TwoDigits(int value) {
  const int two = (value < 0 ? -value : value) % 100;
  return {static_cast<char>('0' + two / 10), static_cast<char>('0' + two % 10)};
}

bool StartsWithLetters(std::string_view text, std::size_t at, std::string_view letters) {
  if (text.size() - at < letters.size()) return false;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const char c = text[at + i];
    const char lower = (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
    if (lower != letters[i]) return false;
  }
  return true;
}

// Appends the value of the date part that starts at `at`; returns its length,
// 0 when no part starts there.
std::size_t AppendPart(const ListDateTime& date, std::string_view format, std::size_t at,
                       std::string& out) {
  if (StartsWithLetters(format, at, "yyyy")) {
    std::string year = std::to_string(date.year);
    out += std::string(year.size() < 4 ? 4 - year.size() : 0, '0') + year;
    return 4;
  }
  if (StartsWithLetters(format, at, "yy")) return out += TwoDigits(date.year), 2;
  if (StartsWithLetters(format, at, "dd")) return out += TwoDigits(date.day), 2;
  if (StartsWithLetters(format, at, "mm")) return out += TwoDigits(date.month), 2;
  if (StartsWithLetters(format, at, "d")) return out += std::to_string(date.day), 1;
  if (StartsWithLetters(format, at, "m")) return out += std::to_string(date.month), 1;
  return 0;
}

}  // namespace

ListDateTime ToLocalDateTime(FileTime stamp) {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(stamp.time_since_epoch());
  const std::time_t t = static_cast<std::time_t>(seconds.count());
  std::tm local{};
  if (localtime_r(&t, &local) == nullptr) return {};
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     local.tm_sec};
}

std::string FormatListDate(const ListDateTime& date, std::string_view date_format) {
  std::string out;
  out.reserve(date_format.size() + 12);
  for (std::size_t at = 0; at < date_format.size();) {
    const std::size_t used = AppendPart(date, date_format, at, out);
    if (used == 0) out += date_format[at++];
    at += used;
  }
  out += ' ';
  out += TwoDigits(date.hour) + ":" + TwoDigits(date.minute) + ":" + TwoDigits(date.second);
  return out;
}

}  // namespace tarnwick
