// The date and time tokens of the file date and of the clock.
#include "placeholders/date_tokens.h"

#include <unicode/calendar.h>
#include <unicode/dtfmtsym.h>
#include <unicode/locid.h>

#include <chrono>
#include <memory>
#include <vector>

#include "base/vb_error.h"
#include "placeholders/token_steps.h"

namespace tarnwick {
namespace {

std::string TwoDigits(int value) {
  std::string out = std::to_string(value);
  return out.size() < 2 ? "0" + out : out;
}

std::chrono::year_month_day YearMonthDay(const DateValue& date) {
  return std::chrono::year{date.year} / std::chrono::month{static_cast<unsigned>(date.month)} /
         std::chrono::day{static_cast<unsigned>(date.day)};
}

// 0 for Sunday to 6 for Saturday.
int WeekdayFromSunday(const DateValue& date) {
  return static_cast<int>(
      std::chrono::weekday{std::chrono::sys_days{YearMonthDay(date)}}.c_encoding());
}

int WeekOfYear(const DateValue& date) {
  const DateValue first{date.year, 1, 1};
  const auto days =
      std::chrono::sys_days{YearMonthDay(date)} - std::chrono::sys_days{YearMonthDay(first)};
  return (static_cast<int>(days.count()) + WeekdayFromSunday(first)) / 7 + 1;
}

std::vector<int> NumbersOf(std::string_view text) {
  std::vector<int> numbers;
  for (std::size_t i = 0; i < text.size();) {
    if (text[i] < '0' || text[i] > '9') {
      ++i;
      continue;
    }
    int value = 0;
    std::size_t digits = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i, ++digits) {
      if (digits < 6) value = value * 10 + (text[i] - '0');
    }
    numbers.push_back(digits == 4 && numbers.empty() ? -value : value);  // a leading year
  }
  return numbers;
}

bool IsValid(const DateValue& d) {
  return YearMonthDay(d).ok() && d.year >= 100 && d.year <= 9999 && d.hour < 24 && d.minute < 60 &&
         d.second < 60;
}

bool HasOnlyDateCharacters(std::string_view text) {
  for (char c : text) {
    if (!(c >= '0' && c <= '9') && c != '.' && c != '-' && c != '/' && c != ':' && c != ' ') {
      return false;
    }
  }
  return true;
}

}  // namespace

std::optional<DateValue> ParseDateText(std::string_view text, std::string_view date_format) {
  if (!HasOnlyDateCharacters(text)) return std::nullopt;
  std::vector<int> n = NumbersOf(text);
  if (n.size() < 3 || n.size() > 6) return std::nullopt;
  DateValue date;
  if (n[0] < 0) {  // year first
    date.year = -n[0];
    date.month = n[1];
    date.day = n[2];
  } else {
    const std::size_t d = date_format.find('d');
    const std::size_t m = date_format.find('m');
    const std::size_t y = date_format.find('y');
    const bool month_first = m != std::string_view::npos && d != std::string_view::npos && m < d;
    date.day = month_first ? n[1] : n[0];
    date.month = month_first ? n[0] : n[1];
    date.year = y != std::string_view::npos && y < std::min(d, m) ? n[0] : n[2];
    if (y != std::string_view::npos && y < std::min(d, m)) {
      date.month = m < d ? n[1] : n[2];
      date.day = m < d ? n[2] : n[1];
    }
    if (date.year < 100) date.year += date.year < 30 ? 2000 : 1900;
  }
  if (n.size() > 3) date.hour = n[3];
  if (n.size() > 4) date.minute = n[4];
  if (n.size() > 5) date.second = n[5];
  if (!IsValid(date)) return std::nullopt;
  return date;
}

std::string FormatDatePattern(const DateValue& date, std::string_view pattern) {
  std::string out;
  bool after_hour = false;
  for (std::size_t i = 0; i < pattern.size();) {
    const std::string_view rest = pattern.substr(i);
    if (rest.starts_with("yyyy")) {
      out += std::to_string(date.year);
      i += 4;
    } else if (rest.starts_with("dd")) {
      out += TwoDigits(date.day);
      i += 2;
    } else if (rest.starts_with("hh")) {
      out += TwoDigits(date.hour);
      after_hour = true;
      i += 2;
    } else if (rest.starts_with("mm")) {
      out += TwoDigits(after_hour ? date.minute : date.month);
      i += 2;
    } else if (rest.starts_with("ss")) {
      out += TwoDigits(date.second);
      i += 2;
    } else if (rest.starts_with("ww")) {
      out += std::to_string(WeekOfYear(date));
      i += 2;
    } else {
      out += pattern[i++];
    }
  }
  return out;
}

std::string MonthNameOf(const ExpansionContext& context, const DateValue& date) {
  if (date.month < 1 || date.month > 12 || !context.message_text) return {};
  return context.message_text(591 + date.month);
}

std::string DayNameOf(const DateValue& date) {
  // Weekday with Monday as day 1, then the system's name of that number.
  const int from_monday = (WeekdayFromSunday(date) + 6) % 7 + 1;
  UErrorCode status = U_ZERO_ERROR;
  const icu::Locale locale = icu::Locale::getDefault();
  std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(locale, status));
  icu::DateFormatSymbols symbols(locale, status);
  if (U_FAILURE(status)) return {};
  const int first = calendar->getFirstDayOfWeek(status);  // 1 Sunday ... 7 Saturday
  int32_t count = 0;
  const icu::UnicodeString* names = symbols.getWeekdays(count);
  const int index = (first - 1 + from_monday - 1) % 7 + 1;
  if (index >= count) return {};
  std::string out;
  names[index].toUTF8String(out);
  return out;
}

namespace token_steps {
namespace {

constexpr std::string_view kFilePatterns[][2] = {{"{{yyyy.mm.dd}}", "yyyy.mm.dd"},
                                                 {"{{yyyy.mm}}", "yyyy.mm"}};
constexpr std::string_view kFilePatternsAfterNames[][2] = {{"{{yyyy}}", "yyyy"},
                                                           {"{{yyyy.dd}}", "yyyy.dd"},
                                                           {"{{yyyy.dd.mm}}", "yyyy.dd.mm"},
                                                           {"{{dd.mm}}", "dd.mm"},
                                                           {"{{mm.dd}}", "mm.dd"},
                                                           {"{{dd.mm.yyyy}}", "dd.mm.yyyy"},
                                                           {"{{mm.dd.yyyy}}", "mm.dd.yyyy"},
                                                           {"{{mm.yyyy}}", "mm.yyyy"},
                                                           {"{{dd.yyyy}}", "dd.yyyy"},
                                                           {"{{dd}}", "dd"},
                                                           {"{{mm}}", "mm"},
                                                           {"{{yyyy-mm-dd}}", "yyyy-mm-dd"},
                                                           {"{{yyyy-mm}}", "yyyy-mm"},
                                                           {"{{yyyy}}", "yyyy"},
                                                           {"{{yyyy-dd}}", "yyyy-dd"},
                                                           {"{{yyyy-dd-mm}}", "yyyy-dd-mm"},
                                                           {"{{dd-mm}}", "dd-mm"},
                                                           {"{{mm-dd}}", "mm-dd"},
                                                           {"{{dd-mm-yyyy}}", "dd-mm-yyyy"},
                                                           {"{{mm-yyyy}}", "mm-yyyy"},
                                                           {"{{dd-yyyy}}", "dd-yyyy"},
                                                           {"{{hh-mm}}", "hh-mm"},
                                                           {"{{hh.mm}}", "hh.mm"},
                                                           {"{{hh-mm-ss}}", "hh-mm-ss"},
                                                           {"{{hh.mm.ss}}", "hh.mm.ss"},
                                                           {"{{hh}}", "hh"},
                                                           {"{{ss}}", "ss"},
                                                           {"{{ww}}", "ww"}};

// The current date and the current time; a time alone stands on 30 December 1899.
struct Now {
  const ExpansionContext& context;
  ClockReading Read() const { return context.now ? context.now() : ClockReading{}; }
  DateValue Date() const {
    const ClockReading r = Read();
    return {r.year, r.month, r.day, r.hour, r.minute, r.second};
  }
  DateValue Time() const {
    const ClockReading r = Read();
    return {1899, 12, 30, r.hour, r.minute, r.second};
  }
};

// A format token on the file date; a text that is no date comes out as it is.
void FileDatePattern(ExpansionPass& pass, std::string_view token, std::string_view pattern,
                     const std::optional<DateValue>& date) {
  pass.ValueToken(token, [&] {
    return date ? FormatDatePattern(*date, pattern) : std::string(pass.file_date());
  });
}

DateValue RequireDate(const std::optional<DateValue>& date) {
  if (!date) throw VbError(vb_error::kTypeMismatch, "Type mismatch");
  return *date;
}

std::string QuarterOf(const DateValue& date) { return std::to_string((date.month - 1) / 3 + 1); }

void NameTokens(ExpansionPass& pass, const std::optional<DateValue>& date) {
  pass.ValueToken("{{mm_text}}", [&] { return MonthNameOf(pass.context(), RequireDate(date)); });
  pass.ValueToken("{{dd_text}}", [&] { return DayNameOf(RequireDate(date)); });
}

bool HasDateTokens(const ExpressionIndex& index) {
  for (std::string_view prefix :
       {"{{yyyy", "{{mm", "{{dd", "{{hh", "{{ss", "{{ww", "{{cdate", "{{ctime", "{{quarter"}) {
    if (index.HasPrefix(prefix)) return true;
  }
  return false;
}

}  // namespace

void Dates(ExpansionPass& pass) {
  if (!HasDateTokens(pass.index())) return;
  const std::optional<DateValue> date =
      ParseDateText(pass.file_date(), pass.Option("DateFormat", "dd.mm.yyyy"));
  for (const auto& [token, pattern] : kFilePatterns) FileDatePattern(pass, token, pattern, date);
  NameTokens(pass, date);
  for (const auto& [token, pattern] : kFilePatternsAfterNames) {
    FileDatePattern(pass, token, pattern, date);
  }
  const Now now{pass.context()};
  pass.ValueToken("{{cdate.}}", [&] { return FormatDatePattern(now.Date(), "dd.mm.yyyy"); });
  pass.ValueToken("{{cdate-}}", [&] { return FormatDatePattern(now.Date(), "dd-mm-yyyy"); });
  pass.ValueToken("{{cdate_mm}}", [&] { return FormatDatePattern(now.Date(), "mm"); });
  pass.ValueToken("{{cdate_yyyy}}", [&] { return FormatDatePattern(now.Date(), "yyyy"); });
  pass.ValueToken("{{cdate_dd}}", [&] { return FormatDatePattern(now.Date(), "dd"); });
  pass.ValueToken("{{ctime-}}", [&] { return FormatDatePattern(now.Time(), "hh-mm-ss"); });
  pass.ValueToken("{{ctime.}}", [&] { return FormatDatePattern(now.Time(), "hh.mm.ss"); });
  pass.ValueToken("{{ctime_hh}}", [&] { return FormatDatePattern(now.Time(), "hh"); });
  // Kept: "mm" alone is the month, and a time alone stands in December 1899.
  pass.ValueToken("{{ctime_mm}}", [&] { return FormatDatePattern(now.Time(), "mm"); });
  pass.ValueToken("{{cdate_dd_text}}", [&] { return DayNameOf(now.Date()); });
  pass.ValueToken("{{cdate_mm_text}}", [&] { return MonthNameOf(pass.context(), now.Date()); });
  pass.ValueToken("{{cdate_quarter}}", [&] { return QuarterOf(now.Date()); });
  pass.ValueToken("{{quarter}}", [&] { return QuarterOf(RequireDate(date)); });
  NameTokens(pass, date);
  pass.ValueToken("{{ctime_ss}}", [&] { return FormatDatePattern(now.Time(), "ss"); });
}

}  // namespace token_steps
}  // namespace tarnwick
