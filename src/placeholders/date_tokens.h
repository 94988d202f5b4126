#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "placeholders/expansion_context.h"

namespace tarnwick {

// A date and time as the date tokens see it.
struct DateValue {
  int year = 1899, month = 12, day = 30;
  int hour = 0, minute = 0, second = 0;
};

// A date text read in the user's order of day, month and year (the option
// `DateFormat`, e.g. "dd.mm.yyyy"; a text starting with a four-digit year is
// read year first), with an optional time "hh:mm:ss". Nothing when the text
// is no valid date.
std::optional<DateValue> ParseDateText(std::string_view text, std::string_view date_format);

// The date formatted with a token pattern: "yyyy", "dd", "hh", "ss", "ww"
// (week of the year, Sunday first, the week of 1 January is week 1) and "mm",
// the month, or the minute right after "hh". Other characters are literal.
std::string FormatDatePattern(const DateValue& date, std::string_view pattern);

// `GetMonthName`: the message table's month name (592 to 603).
std::string MonthNameOf(const ExpansionContext& context, const DateValue& date);
// `GetDayName`: the weekday counted from Monday, named by the system with its
// own first day of the week (so one day early where weeks start on Sunday).
std::string DayNameOf(const DateValue& date);

}  // namespace tarnwick
