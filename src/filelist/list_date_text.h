#pragma once

#include <string>
#include <string_view>

#include "platform/file_times.h"

namespace tarnwick {

// A date and time of day in local time, as the list shows it.
struct ListDateTime {
  int year = 0, month = 0, day = 0;
  int hour = 0, minute = 0, second = 0;
};

// The local time of a time stamp.
ListDateTime ToLocalDateTime(FileTime stamp);

// The date text of the list's date column (and of the EXIF column): the date
// in the form of `date_format` (the option `DateFormat`), one blank, and the
// time as "hh:mm:ss". The date form is read without regard to case; "yyyy"
// is the year, "yy" its last two digits, "dd" and "mm" the day and month with
// two digits, "d" and "m" without a leading zero; every other character
// stands as it is. Example: "dd.mm.yyyy" gives "05.03.2024 14:07:09".
std::string FormatListDate(const ListDateTime& date, std::string_view date_format);

}  // namespace tarnwick
