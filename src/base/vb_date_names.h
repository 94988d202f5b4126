#pragma once

#include <memory>
#include <optional>
#include <string>

#include "base/vb_date.h"

// Names and forms of dates from the operating system's locale (LC_TIME, read
// through `nl_langinfo_l`; the process's global locale is never changed).
namespace tarnwick::vb {

// One locale's date names and time form, as UTF-8.
class TimeLocale {
 public:
  // The locale the environment names (LC_ALL, LC_TIME, LANG), read once; the
  // "C" locale when that one is not installed.
  static const TimeLocale& Process();
  // A named locale such as "de_DE.UTF-8"; nothing when it is not installed.
  static std::optional<TimeLocale> Named(const std::string& name);

  // January is 1. Empty outside 1 to 12.
  std::string MonthName(int month, bool abbreviate) const;
  // Sunday is 1. Empty outside 1 to 7.
  std::string DayName(int day_from_sunday, bool abbreviate) const;
  // The locale's first day of the week, kSunday to kSaturday.
  int FirstWeekday() const { return first_weekday_; }
  // The locale's long time ("10:15:05" in C, "10:15:05 AM" where the locale
  // writes so), short date and long date of a date.
  std::string LongTime(const DateTime& date) const;
  std::string ShortDate(const DateTime& date) const;
  std::string LongDate(const DateTime& date) const;

 private:
  struct Handle;  // the C library's locale object, freed with the last copy

  TimeLocale() = default;
  static std::optional<TimeLocale> Load(const char* name);
  std::string Strftime(const std::string& format, const DateTime& date) const;
  std::string Utf8(const char* text) const;

  std::shared_ptr<Handle> handle_;
  std::string codeset_;  // empty for UTF-8
  std::string months_[12], short_months_[12];
  std::string days_[7], short_days_[7];
  std::string long_time_format_, short_date_format_;
  int first_weekday_ = kSunday;
};

// `MonthName` of the process locale.
std::string MonthName(int month, bool abbreviate = false);
// `WeekdayName`: the name of day `weekday` (1 to 7) counted from `first_day`
// (kUseSystem: the locale's own first day). Empty outside 1 to 7; raises
// VbError 5 for a first day outside 0 to 7.
std::string WeekdayName(int weekday, bool abbreviate = false, int first_day = kUseSystem);
// The process locale's long time of a date; "hh:mm:ss" in the C locale.
std::string LongTime(const DateTime& date);

}  // namespace tarnwick::vb
