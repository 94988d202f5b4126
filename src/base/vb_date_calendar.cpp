#include "base/vb_date_calendar.h"

namespace tarnwick::vb::detail {
namespace {

// Days from 1 January 1970 to 30 December 1899.
constexpr std::int64_t kEpochShift = -25569;
constexpr int kSunday = 1;

}  // namespace

std::int64_t FloorDiv(std::int64_t a, std::int64_t b) {
  const std::int64_t q = a / b;
  return (a % b != 0 && ((a < 0) != (b < 0))) ? q - 1 : q;
}

bool IsLeapYear(std::int64_t year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int DaysInMonth(std::int64_t year, int month) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month < 1 || month > 12) return 0;
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

// The civil calendar counted in eras of 400 years, as in H. Hinnant's
// days_from_civil.
std::int64_t DayNumber(std::int64_t year, int month, int day) {
  const std::int64_t y = year - (month <= 2 ? 1 : 0);
  const std::int64_t era = FloorDiv(y, 400);
  const std::int64_t year_of_era = y - era * 400;
  const std::int64_t shifted_month = month > 2 ? month - 3 : month + 9;
  const std::int64_t day_of_year = (153 * shifted_month + 2) / 5 + day - 1;
  const std::int64_t day_of_era =
      year_of_era * 365 + year_of_era / 4 - year_of_era / 100 + day_of_year;
  return era * 146097 + day_of_era - 719468 - kEpochShift;
}

DateTime DateOfDayNumber(std::int64_t days) {
  const std::int64_t z = days + kEpochShift + 719468;
  const std::int64_t era = FloorDiv(z, 146097);
  const std::int64_t day_of_era = z - era * 146097;
  const std::int64_t year_of_era =
      (day_of_era - day_of_era / 1460 + day_of_era / 36524 - day_of_era / 146096) / 365;
  const std::int64_t day_of_year =
      day_of_era - (365 * year_of_era + year_of_era / 4 - year_of_era / 100);
  const std::int64_t shifted_month = (5 * day_of_year + 2) / 153;
  DateTime out;
  out.day = static_cast<int>(day_of_year - (153 * shifted_month + 2) / 5 + 1);
  out.month = static_cast<int>(shifted_month < 10 ? shifted_month + 3 : shifted_month - 9);
  out.year = static_cast<int>(year_of_era + era * 400 + (out.month <= 2 ? 1 : 0));
  out.hour = out.minute = out.second = 0;
  return out;
}

std::int64_t SecondsOf(const DateTime& date) {
  return DayNumber(date.year, date.month, date.day) * kSecondsPerDay + date.hour * 3600 +
         date.minute * 60 + date.second;
}

DateTime DateTimeOfSeconds(std::int64_t seconds) {
  const std::int64_t days = FloorDiv(seconds, kSecondsPerDay);
  const auto of_day = static_cast<int>(seconds - days * kSecondsPerDay);
  DateTime out = DateOfDayNumber(days);
  out.hour = of_day / 3600;
  out.minute = of_day / 60 % 60;
  out.second = of_day % 60;
  return out;
}

bool InDateRange(std::int64_t seconds) {
  static const std::int64_t kFirst = DayNumber(100, 1, 1) * kSecondsPerDay;
  static const std::int64_t kEnd = DayNumber(10000, 1, 1) * kSecondsPerDay;
  return seconds >= kFirst && seconds < kEnd;
}

int WeekdayOfDay(std::int64_t days, int first_day) {
  // Day 0, 30 December 1899, was a Saturday: 7 counted from Sunday.
  const int from_sunday = static_cast<int>(days + 6 - 7 * FloorDiv(days + 6, 7)) + kSunday;
  return (from_sunday - first_day + 7) % 7 + 1;
}

}  // namespace tarnwick::vb::detail
