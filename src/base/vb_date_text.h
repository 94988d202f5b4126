#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/vb_date.h"

// Dates as texts: reading a date-and-time text and formatting with patterns.
namespace tarnwick::vb {

// Reads a date, a date and a time, or a time alone. The date has three
// numbers with one separator character between them (".", "-", "/" or any
// other sign, the same both times), in the order of `date_format`, the option
// `DateFormat` ("dd.mm.yyyy", "yyyy.mm.dd", "mm.dd.yyyy"; any case, any
// separators). A first number of four digits is always the year, followed by
// month and day. A two-digit year means 2000 to 2029 or 1930 to 1999. The time
// follows after blanks as "h:mm" or "h:mm:ss"; a time alone stands on
// 30 December 1899. Blanks around the text are ignored. Nothing when the text
// is no valid date.
std::optional<DateTime> ParseDateTime(std::string_view text, std::string_view date_format);

// `Format` of a date with a pattern. Letters are read in any case:
//   "yyyy" year, "yy" two-digit year, "y" day of the year
//   "mm"/"m" month with/without zero, "mmm"/"mmmm" its short/full name;
//        right after an hour ("hh.mm", "h:m"), "mm"/"m" is the minute
//   "dd"/"d" day, "ddd"/"dddd" weekday short/full name
//   "hh"/"h" hour on a 24-hour clock (12-hour with "AM/PM", "am/pm", "A/P",
//        "a/p", which show the half of the day), "nn"/"n" minute,
//   "ss"/"s" second, "w" weekday (Sunday 1), "ww" week of the year (Sunday
//        first, the week of 1 January is week 1), "q" quarter
// "\x" and "..." are literal; every other character stands for itself.
// The named patterns "Long Time" (the locale's, see LongTime), "Short Time"
// ("hh:mm"), "Long Date" and "Short Date" (the locale's) are known too.
std::string FormatDate(const DateTime& date, std::string_view pattern);

// A date as the file list and the file date tools show it: the date in the
// order and separators of `date_format` (the option `DateFormat`), a blank
// and "hh:mm:ss": "08.03.2004 10:15:05".
std::string FormatDateByOption(const DateTime& date, std::string_view date_format);

}  // namespace tarnwick::vb
