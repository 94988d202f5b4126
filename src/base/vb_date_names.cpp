#include "base/vb_date_names.h"

#include <langinfo.h>
#include <locale.h>
#include <unicode/ucnv.h>

#include <cstdint>
#include <ctime>

#include "base/vb_date_calendar.h"
#include "base/vb_error.h"

namespace tarnwick::vb {

struct TimeLocale::Handle {
  explicit Handle(locale_t l) : locale(l) {}
  ~Handle() { freelocale(locale); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  locale_t locale;
};

namespace {

constexpr nl_item kMonths[] = {MON_1, MON_2, MON_3, MON_4,  MON_5,  MON_6,
                               MON_7, MON_8, MON_9, MON_10, MON_11, MON_12};
constexpr nl_item kShortMonths[] = {ABMON_1, ABMON_2, ABMON_3, ABMON_4,  ABMON_5,  ABMON_6,
                                    ABMON_7, ABMON_8, ABMON_9, ABMON_10, ABMON_11, ABMON_12};
constexpr nl_item kDays[] = {DAY_1, DAY_2, DAY_3, DAY_4, DAY_5, DAY_6, DAY_7};
constexpr nl_item kShortDays[] = {ABDAY_1, ABDAY_2, ABDAY_3, ABDAY_4, ABDAY_5, ABDAY_6, ABDAY_7};

// The locale's first day of the week, 1 for Sunday.
int FirstWeekdayOf(locale_t locale) {
#ifdef __GLIBC__
  // The week's first day is told as a date of such a day, plus an offset.
  const auto first_date = static_cast<std::uint32_t>(
      reinterpret_cast<std::uintptr_t>(nl_langinfo_l(_NL_TIME_WEEK_1STDAY, locale)));
  const int offset = nl_langinfo_l(_NL_TIME_FIRST_WEEKDAY, locale)[0];
  const int year = static_cast<int>(first_date / 10000);
  const int month = static_cast<int>(first_date / 100 % 100);
  const int day = static_cast<int>(first_date % 100);
  if (month < 1 || month > 12 || day < 1 || day > 31 || offset < 1 || offset > 7) return kSunday;
  const int base = detail::WeekdayOfDay(detail::DayNumber(year, month, day), kSunday);
  return (base - 1 + offset - 1) % 7 + 1;
#else
  (void)locale;
  return kSunday;
#endif
}

std::tm TmOf(const DateTime& date) {
  std::tm tm{};
  tm.tm_year = date.year - 1900;
  tm.tm_mon = date.month - 1;
  tm.tm_mday = date.day;
  tm.tm_hour = date.hour;
  tm.tm_min = date.minute;
  tm.tm_sec = date.second;
  tm.tm_wday = Weekday(date, kSunday) - 1;
  tm.tm_yday = DayOfYear(date) - 1;
  tm.tm_isdst = -1;
  return tm;
}

}  // namespace

std::optional<TimeLocale> TimeLocale::Load(const char* name) {
  const locale_t locale = newlocale(LC_TIME_MASK | LC_CTYPE_MASK, name, static_cast<locale_t>(0));
  if (locale == static_cast<locale_t>(0)) return std::nullopt;
  TimeLocale out;
  out.handle_ = std::make_shared<Handle>(locale);
  const std::string codeset = nl_langinfo_l(CODESET, locale);
  if (codeset != "UTF-8" && codeset != "utf8") out.codeset_ = codeset;
  for (int i = 0; i < 12; ++i) {
    out.months_[i] = out.Utf8(nl_langinfo_l(kMonths[i], locale));
    out.short_months_[i] = out.Utf8(nl_langinfo_l(kShortMonths[i], locale));
  }
  for (int i = 0; i < 7; ++i) {
    out.days_[i] = out.Utf8(nl_langinfo_l(kDays[i], locale));
    out.short_days_[i] = out.Utf8(nl_langinfo_l(kShortDays[i], locale));
  }
  out.long_time_format_ = nl_langinfo_l(T_FMT, locale);
  out.short_date_format_ = nl_langinfo_l(D_FMT, locale);
  out.first_weekday_ = FirstWeekdayOf(locale);
  return out;
}

const TimeLocale& TimeLocale::Process() {
  static const TimeLocale process = [] {
    std::optional<TimeLocale> loaded = Load("");
    return loaded ? *loaded : *Load("C");
  }();
  return process;
}

std::optional<TimeLocale> TimeLocale::Named(const std::string& name) { return Load(name.c_str()); }

std::string TimeLocale::Utf8(const char* text) const {
  if (codeset_.empty()) return text;
  const std::string source(text);
  std::string out(source.size() * 4 + 1, '\0');
  UErrorCode status = U_ZERO_ERROR;
  const int32_t length =
      ucnv_convert("UTF-8", codeset_.c_str(), out.data(), static_cast<int32_t>(out.size()),
                   source.data(), static_cast<int32_t>(source.size()), &status);
  if (U_FAILURE(status)) return source;  // an unknown code set: the bytes as they are
  out.resize(static_cast<std::size_t>(length));
  return out;
}

std::string TimeLocale::Strftime(const std::string& format, const DateTime& date) const {
  const std::tm tm = TmOf(date);
  char buffer[256];
  const std::size_t length =
      strftime_l(buffer, sizeof buffer, format.c_str(), &tm, handle_->locale);
  return Utf8(std::string(buffer, length).c_str());
}

std::string TimeLocale::MonthName(int month, bool abbreviate) const {
  if (month < 1 || month > 12) return {};
  return abbreviate ? short_months_[month - 1] : months_[month - 1];
}

std::string TimeLocale::DayName(int day_from_sunday, bool abbreviate) const {
  if (day_from_sunday < 1 || day_from_sunday > 7) return {};
  return abbreviate ? short_days_[day_from_sunday - 1] : days_[day_from_sunday - 1];
}

std::string TimeLocale::LongTime(const DateTime& date) const {
  return Strftime(long_time_format_, date);
}

std::string TimeLocale::ShortDate(const DateTime& date) const {
  return Strftime(short_date_format_, date);
}

std::string TimeLocale::LongDate(const DateTime& date) const {
  // The C library keeps no long date form; this one is built from the names.
  return DayName(Weekday(date, kSunday), false) + ", " + std::to_string(date.day) + " " +
         MonthName(date.month, false) + " " + std::to_string(date.year);
}

std::string MonthName(int month, bool abbreviate) {
  return TimeLocale::Process().MonthName(month, abbreviate);
}

std::string WeekdayName(int weekday, bool abbreviate, int first_day) {
  const TimeLocale& locale = TimeLocale::Process();
  if (first_day < kUseSystem || first_day > kSaturday) {
    throw VbError(vb_error::kInvalidProcedureCall, "Invalid procedure call or argument");
  }
  if (weekday < 1 || weekday > 7) return {};
  if (first_day == kUseSystem) first_day = locale.FirstWeekday();
  return locale.DayName((first_day - 1 + weekday - 1) % 7 + 1, abbreviate);
}

std::string LongTime(const DateTime& date) { return TimeLocale::Process().LongTime(date); }

}  // namespace tarnwick::vb
