#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// The date runtime: a local date and time, its serial day number, calendar
// arithmetic, and the parts of a date. Dates run from 1 January 100 to
// 31 December 9999, times to the second.
namespace tarnwick::vb {

// A local date and time. The default value is the date a time alone stands
// on: 30 December 1899, midnight.
struct DateTime {
  int year = 1899, month = 12, day = 30;
  int hour = 0, minute = 0, second = 0;

  friend bool operator==(const DateTime&, const DateTime&) = default;
};

// Days of the week as the runtime numbers them; kUseSystem asks the
// operating system's locale for its first day of the week.
inline constexpr int kUseSystem = 0;
inline constexpr int kSunday = 1;
inline constexpr int kMonday = 2;
inline constexpr int kSaturday = 7;

// Whether every field is in range: year 100 to 9999, a real day of that month,
// hour below 24, minute and second below 60.
bool IsValidDate(const DateTime& date);

// The serial day number: whole days since 30 December 1899 with the time of
// day as fraction. Before that day the whole part counts back and the fraction
// still counts forward, so -1.25 is 29 December 1899, 06:00.
double ToSerial(const DateTime& date);
// The date of a serial number, rounded to the second; nothing outside the
// range of dates or for NaN.
std::optional<DateTime> FromSerial(double serial);

// `DateSerial`: the date of year, month and day, where months and days beyond
// their range carry over ("month 13" is January of the next year, "day 0" the
// last day of the month before). Years 0 to 29 are 2000 to 2029, 30 to 99 are
// 1930 to 1999. Raises VbError 5 "Invalid procedure call or argument" when
// the result lies outside the range of dates.
DateTime DateSerial(int year, int month, int day);
// `TimeSerial`: the time of hour, minute and second on 30 December 1899;
// values beyond their range carry over, into the next or previous day too.
DateTime TimeSerial(int hour, int minute, int second);

// `Weekday`: 1 to 7, counted from `first_day` (kSunday ... kSaturday, or
// kUseSystem). Raises VbError 5 for another first day.
int Weekday(const DateTime& date, int first_day = kSunday);
// The week of the year, weeks starting on Sunday, the week holding 1 January
// being week 1.
int WeekOfYear(const DateTime& date);
// 1 to 4.
int Quarter(const DateTime& date);
// The day of the year, 1 to 366.
int DayOfYear(const DateTime& date);

// `DateAdd`: the date `count` units later (earlier when negative). Intervals:
// "yyyy" years, "q" quarters, "m" months, "y", "d" and "w" days, "ww" weeks,
// "h" hours, "n" minutes, "s" seconds, in any case. A month or year added to
// the end of a longer month ends on the last day of the shorter one
// (31 January + 1 month is 28 or 29 February). Raises VbError 5 for an
// unknown interval or a result outside the range of dates.
DateTime DateAdd(std::string_view interval, std::int64_t count, const DateTime& date);

// `DateDiff`: how many boundaries of the interval lie between the two dates,
// negative when `to` is earlier: "yyyy" new years, "q" quarters, "m" months,
// "y" and "d" midnights, "w" whole weeks, "ww" first days of the week,
// "h", "n", "s" hours, minutes, seconds. Raises VbError 5 for an unknown
// interval.
std::int64_t DateDiff(std::string_view interval, const DateTime& from, const DateTime& to,
                      int first_day = kSunday);

// `DatePart`: one part of a date: "yyyy", "q", "m", "y" (day of the year),
// "d", "w" (weekday from `first_day`), "ww" (week of the year), "h", "n", "s".
// Raises VbError 5 for an unknown interval.
int DatePart(std::string_view interval, const DateTime& date, int first_day = kSunday);

}  // namespace tarnwick::vb
