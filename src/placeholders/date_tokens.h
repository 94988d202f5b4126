#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/vb_date.h"
#include "base/vb_date_text.h"
#include "placeholders/expansion_context.h"

namespace tarnwick {

// A date and time as the date tokens see it.
using DateValue = vb::DateTime;

// The date runtime under the names the tag and command-line code call it by:
// a date text in the order of `DateFormat` with an optional time, and a
// token pattern.
inline std::optional<DateValue> ParseDateText(std::string_view text, std::string_view date_format) {
  return vb::ParseDateTime(text, date_format);
}
inline std::string FormatDatePattern(const DateValue& date, std::string_view pattern) {
  return vb::FormatDate(date, pattern);
}

// The local date and time and the seconds since midnight from the context's
// clock; 30 December 1899, midnight, and 0 without one.
DateValue CurrentDateTime(const ExpansionContext& context);
double CurrentTimer(const ExpansionContext& context);

// `GetMonthName`: the message table's month name (592 to 603).
std::string MonthNameOf(const ExpansionContext& context, const DateValue& date);
// `GetDayName`: the weekday counted from Monday, named by the system with its
// own first day of the week (so one day early where weeks start on Sunday).
std::string DayNameOf(const DateValue& date);

}  // namespace tarnwick
