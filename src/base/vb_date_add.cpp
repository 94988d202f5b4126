// DateAdd, DateDiff and DatePart.
#include <cstdlib>

#include "base/vb_date.h"
#include "base/vb_date_calendar.h"
#include "base/vb_date_names.h"
#include "base/vb_error.h"

namespace tarnwick::vb {
namespace {

enum class Interval {
  kYear,
  kQuarter,
  kMonth,
  kDayOfYear,
  kDay,
  kWeekday,
  kWeek,
  kHour,
  kMinute,
  kSecond
};

// No count beyond these can land inside the range of dates.
constexpr std::int64_t kMonthLimit = 200'000;
constexpr std::int64_t kSecondLimit = 400'000'000'000;

bool Beyond(std::int64_t count, std::int64_t limit) { return count > limit || count < -limit; }

[[noreturn]] void RaiseInvalidCall() {
  throw VbError(vb_error::kInvalidProcedureCall, "Invalid procedure call or argument");
}

Interval IntervalOf(std::string_view text) {
  struct Name {
    std::string_view text;
    Interval interval;
  };
  static constexpr Name kNames[] = {{"yyyy", Interval::kYear}, {"q", Interval::kQuarter},
                                    {"m", Interval::kMonth},   {"y", Interval::kDayOfYear},
                                    {"d", Interval::kDay},     {"w", Interval::kWeekday},
                                    {"ww", Interval::kWeek},   {"h", Interval::kHour},
                                    {"n", Interval::kMinute},  {"s", Interval::kSecond}};
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
  }
  for (const Name& name : kNames) {
    if (lower == name.text) return name.interval;
  }
  RaiseInvalidCall();
}

DateTime AddMonths(const DateTime& date, std::int64_t months) {
  if (Beyond(months, kMonthLimit)) RaiseInvalidCall();
  const std::int64_t total = static_cast<std::int64_t>(date.year) * 12 + date.month - 1 + months;
  DateTime out = date;
  out.year = static_cast<int>(detail::FloorDiv(total, 12));
  out.month = static_cast<int>(total - static_cast<std::int64_t>(out.year) * 12) + 1;
  if (out.year < 100 || out.year > 9999) RaiseInvalidCall();
  out.day = std::min(out.day, detail::DaysInMonth(out.year, out.month));
  return out;
}

DateTime AddSeconds(const DateTime& date, std::int64_t count, std::int64_t unit) {
  if (Beyond(count, kSecondLimit / unit)) RaiseInvalidCall();
  const std::int64_t seconds = detail::SecondsOf(date) + count * unit;
  if (!detail::InDateRange(seconds)) RaiseInvalidCall();
  return detail::DateTimeOfSeconds(seconds);
}

std::int64_t DayOf(const DateTime& date) {
  return detail::DayNumber(date.year, date.month, date.day);
}

// The day number of the first day of the week that holds the day.
std::int64_t WeekStart(const DateTime& date, int first_day) {
  return DayOf(date) - (detail::WeekdayOfDay(DayOf(date), first_day) - 1);
}

int CheckedFirstDay(int first_day) {
  if (first_day == kUseSystem) return TimeLocale::Process().FirstWeekday();
  if (first_day < kSunday || first_day > kSaturday) RaiseInvalidCall();
  return first_day;
}

}  // namespace

DateTime DateAdd(std::string_view interval, std::int64_t count, const DateTime& date) {
  switch (IntervalOf(interval)) {
    case Interval::kYear:
      return AddMonths(date, Beyond(count, kMonthLimit) ? kMonthLimit + 1 : count * 12);
    case Interval::kQuarter:
      return AddMonths(date, Beyond(count, kMonthLimit) ? kMonthLimit + 1 : count * 3);
    case Interval::kMonth:
      return AddMonths(date, count);
    case Interval::kWeek:
      return AddSeconds(date, count, 7 * detail::kSecondsPerDay);
    case Interval::kHour:
      return AddSeconds(date, count, 3600);
    case Interval::kMinute:
      return AddSeconds(date, count, 60);
    case Interval::kSecond:
      return AddSeconds(date, count, 1);
    default:  // "y", "d" and "w" all add days
      return AddSeconds(date, count, detail::kSecondsPerDay);
  }
}

std::int64_t DateDiff(std::string_view interval, const DateTime& from, const DateTime& to,
                      int first_day) {
  const auto months = [](const DateTime& d) {
    return static_cast<std::int64_t>(d.year) * 12 + d.month - 1;
  };
  switch (IntervalOf(interval)) {
    case Interval::kYear:
      return to.year - from.year;
    case Interval::kQuarter:
      return (to.year * 4LL + Quarter(to)) - (from.year * 4LL + Quarter(from));
    case Interval::kMonth:
      return months(to) - months(from);
    case Interval::kWeekday:
      return (DayOf(to) - DayOf(from)) / 7;
    case Interval::kWeek:
      return (WeekStart(to, CheckedFirstDay(first_day)) -
              WeekStart(from, CheckedFirstDay(first_day))) /
             7;
    case Interval::kHour:
      return detail::FloorDiv(detail::SecondsOf(to), 3600) -
             detail::FloorDiv(detail::SecondsOf(from), 3600);
    case Interval::kMinute:
      return detail::FloorDiv(detail::SecondsOf(to), 60) -
             detail::FloorDiv(detail::SecondsOf(from), 60);
    case Interval::kSecond:
      return detail::SecondsOf(to) - detail::SecondsOf(from);
    default:  // "y" and "d" count midnights
      return DayOf(to) - DayOf(from);
  }
}

int DatePart(std::string_view interval, const DateTime& date, int first_day) {
  switch (IntervalOf(interval)) {
    case Interval::kYear:
      return date.year;
    case Interval::kQuarter:
      return Quarter(date);
    case Interval::kMonth:
      return date.month;
    case Interval::kDayOfYear:
      return DayOfYear(date);
    case Interval::kDay:
      return date.day;
    case Interval::kWeekday:
      return Weekday(date, first_day);
    case Interval::kWeek: {
      const DateTime first{date.year, 1, 1};
      return (DayOfYear(date) - 1 + Weekday(first, first_day) - 1) / 7 + 1;
    }
    case Interval::kHour:
      return date.hour;
    case Interval::kMinute:
      return date.minute;
    default:
      return date.second;
  }
}

}  // namespace tarnwick::vb
