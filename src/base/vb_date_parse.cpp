// Reading a date-and-time text.
#include <algorithm>
#include <array>

#include "base/vb_date_text.h"

namespace tarnwick::vb {
namespace {

enum class Field { kDay, kMonth, kYear };
using FieldOrder = std::array<Field, 3>;

struct Number {
  int value = 0;
  std::size_t digits = 0;
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

// Up to `max_digits` digits at `at`; nothing when there is none or too many.
std::optional<Number> ReadNumber(std::string_view text, std::size_t& at, std::size_t max_digits) {
  Number out;
  for (; at < text.size() && IsDigit(text[at]); ++at, ++out.digits) {
    if (out.digits == max_digits) return std::nullopt;
    out.value = out.value * 10 + (text[at] - '0');
  }
  if (out.digits == 0) return std::nullopt;
  return out;
}

// The order of day, month and year in a `DateFormat` text such as "mm.dd.yyyy".
FieldOrder OrderOf(std::string_view date_format) {
  std::size_t at[3] = {std::string_view::npos, std::string_view::npos, std::string_view::npos};
  for (std::size_t i = 0; i < date_format.size(); ++i) {
    const char c = static_cast<char>(date_format[i] | 0x20);
    const int field = c == 'd' ? 0 : c == 'm' ? 1 : c == 'y' ? 2 : -1;
    if (field >= 0 && at[field] == std::string_view::npos) at[field] = i;
  }
  if (at[0] == std::string_view::npos || at[1] == std::string_view::npos ||
      at[2] == std::string_view::npos) {
    return {Field::kDay, Field::kMonth, Field::kYear};
  }
  FieldOrder order = {Field::kDay, Field::kMonth, Field::kYear};
  std::sort(order.begin(), order.end(),
            [&](Field a, Field b) { return at[static_cast<int>(a)] < at[static_cast<int>(b)]; });
  return order;
}

int WindowedYear(const Number& year) {
  if (year.digits > 2) return year.value;
  return year.value < 30 ? 2000 + year.value : 1900 + year.value;
}

bool ReadDate(std::string_view text, std::string_view date_format, DateTime& date) {
  std::size_t at = 0;
  Number numbers[3];
  char separator = 0;
  for (int i = 0; i < 3; ++i) {
    if (i > 0) {
      if (at >= text.size() || IsDigit(text[at]) || IsBlank(text[at])) return false;
      if (i == 2 && text[at] != separator) return false;
      separator = text[at++];
    }
    const std::optional<Number> number = ReadNumber(text, at, 4);
    if (!number) return false;
    numbers[i] = *number;
  }
  if (at != text.size()) return false;
  const FieldOrder order = numbers[0].digits == 4
                               ? FieldOrder{Field::kYear, Field::kMonth, Field::kDay}
                               : OrderOf(date_format);
  for (int i = 0; i < 3; ++i) {
    if (order[i] == Field::kDay) date.day = numbers[i].value;
    if (order[i] == Field::kMonth) date.month = numbers[i].value;
    if (order[i] == Field::kYear) date.year = WindowedYear(numbers[i]);
  }
  return true;
}

bool ReadTime(std::string_view text, DateTime& date) {
  std::size_t at = 0;
  int* fields[3] = {&date.hour, &date.minute, &date.second};
  for (int i = 0; i < 3 && at < text.size(); ++i) {
    if (i > 0 && text[at++] != ':') return false;
    const std::optional<Number> number = ReadNumber(text, at, 2);
    if (!number) return false;
    *fields[i] = number->value;
    if (i == 0 && at >= text.size()) return false;  // an hour alone is no time
  }
  return at == text.size();
}

}  // namespace

std::optional<DateTime> ParseDateTime(std::string_view text, std::string_view date_format) {
  text = TrimBlanks(text);
  DateTime date;
  const std::size_t blank = text.find_first_of(" \t");
  std::string_view date_part = text.substr(0, blank);
  std::string_view time_part =
      blank == std::string_view::npos ? std::string_view() : TrimBlanks(text.substr(blank));
  if (time_part.empty() && date_part.find(':') != std::string_view::npos) {
    time_part = date_part;  // a time alone
    date_part = {};
  }
  if (!date_part.empty() && !ReadDate(date_part, date_format, date)) return std::nullopt;
  if (!time_part.empty() && !ReadTime(time_part, date)) return std::nullopt;
  if (date_part.empty() && time_part.empty()) return std::nullopt;
  if (!IsValidDate(date)) return std::nullopt;
  return date;
}

}  // namespace tarnwick::vb
