#include "base/vb_date.h"

#include <cmath>

#include "base/vb_date_calendar.h"
#include "base/vb_date_names.h"
#include "base/vb_error.h"

namespace tarnwick::vb {
namespace {

// Beyond these a carry can never come back into the range of dates.
constexpr std::int64_t kFieldLimit = 10'000'000;

[[noreturn]] void RaiseInvalidCall() {
  throw VbError(vb_error::kInvalidProcedureCall, "Invalid procedure call or argument");
}

int TwoDigitYear(int year) {
  if (year >= 0 && year < 30) return year + 2000;
  if (year >= 30 && year < 100) return year + 1900;
  return year;
}

}  // namespace

bool IsValidDate(const DateTime& date) {
  return date.year >= 100 && date.year <= 9999 && date.month >= 1 && date.month <= 12 &&
         date.day >= 1 && date.day <= detail::DaysInMonth(date.year, date.month) &&
         date.hour >= 0 && date.hour < 24 && date.minute >= 0 && date.minute < 60 &&
         date.second >= 0 && date.second < 60;
}

double ToSerial(const DateTime& date) {
  const std::int64_t days = detail::DayNumber(date.year, date.month, date.day);
  const double fraction = (date.hour * 3600 + date.minute * 60 + date.second) /
                          static_cast<double>(detail::kSecondsPerDay);
  const auto whole = static_cast<double>(days);
  return days >= 0 ? whole + fraction : whole - fraction;
}

std::optional<DateTime> FromSerial(double serial) {
  if (!std::isfinite(serial) || std::fabs(serial) > 1e7) return std::nullopt;
  const double whole = std::trunc(serial);
  const auto of_day = static_cast<std::int64_t>(
      std::llround(std::fabs(serial - whole) * static_cast<double>(detail::kSecondsPerDay)));
  const std::int64_t seconds = static_cast<std::int64_t>(whole) * detail::kSecondsPerDay + of_day;
  if (!detail::InDateRange(seconds)) return std::nullopt;
  return detail::DateTimeOfSeconds(seconds);
}

DateTime DateSerial(int year, int month, int day) {
  if (std::abs(month) > kFieldLimit || std::abs(day) > kFieldLimit) RaiseInvalidCall();
  const std::int64_t months = static_cast<std::int64_t>(TwoDigitYear(year)) * 12 + month - 1;
  const std::int64_t first =
      detail::DayNumber(detail::FloorDiv(months, 12),
                        static_cast<int>(months - detail::FloorDiv(months, 12) * 12) + 1, 1);
  const std::int64_t seconds = (first + day - 1) * detail::kSecondsPerDay;
  if (!detail::InDateRange(seconds)) RaiseInvalidCall();
  return detail::DateTimeOfSeconds(seconds);
}

DateTime TimeSerial(int hour, int minute, int second) {
  if (std::abs(hour) > kFieldLimit || std::abs(minute) > kFieldLimit ||
      std::abs(second) > kFieldLimit) {
    RaiseInvalidCall();
  }
  return detail::DateTimeOfSeconds(static_cast<std::int64_t>(hour) * 3600 +
                                   static_cast<std::int64_t>(minute) * 60 + second);
}

int Weekday(const DateTime& date, int first_day) {
  if (first_day == kUseSystem) first_day = TimeLocale::Process().FirstWeekday();
  if (first_day < kSunday || first_day > kSaturday) RaiseInvalidCall();
  return detail::WeekdayOfDay(detail::DayNumber(date.year, date.month, date.day), first_day);
}

int DayOfYear(const DateTime& date) {
  return static_cast<int>(detail::DayNumber(date.year, date.month, date.day) -
                          detail::DayNumber(date.year, 1, 1)) +
         1;
}

int WeekOfYear(const DateTime& date) {
  const DateTime first{date.year, 1, 1};
  return (DayOfYear(date) - 1 + Weekday(first, kSunday) - 1) / 7 + 1;
}

int Quarter(const DateTime& date) { return (date.month - 1) / 3 + 1; }

}  // namespace tarnwick::vb
