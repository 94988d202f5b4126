#pragma once

#include <cstdint>

#include "base/vb_date.h"

// Day and second counts behind the date runtime. Internal to base.
namespace tarnwick::vb::detail {

inline constexpr std::int64_t kSecondsPerDay = 86400;

bool IsLeapYear(std::int64_t year);
int DaysInMonth(std::int64_t year, int month);

// Days since 30 December 1899 of a proleptic Gregorian date; any year.
std::int64_t DayNumber(std::int64_t year, int month, int day);
// The date of a day number; the time fields are left at midnight.
DateTime DateOfDayNumber(std::int64_t days);

// Seconds since 30 December 1899, midnight, counting straight on through
// negative values (unlike the serial number).
std::int64_t SecondsOf(const DateTime& date);
DateTime DateTimeOfSeconds(std::int64_t seconds);

// Whether the seconds lie between 1 January 100 and the end of 9999.
bool InDateRange(std::int64_t seconds);

// Division rounding towards minus infinity.
std::int64_t FloorDiv(std::int64_t a, std::int64_t b);

// The weekday of a day number, 1 to 7 counted from `first_day` (1 Sunday to
// 7 Saturday).
int WeekdayOfDay(std::int64_t days, int first_day);

}  // namespace tarnwick::vb::detail
