// The date and time tokens of the file date and of the clock.
#include "placeholders/date_tokens.h"

#include "base/vb_date_names.h"
#include "base/vb_error.h"
#include "placeholders/token_steps.h"

namespace tarnwick {

DateValue CurrentDateTime(const ExpansionContext& context) {
  if (context.clock) return context.clock->Now();
  if (!context.now) return {};
  const ClockReading r = context.now();
  return {r.year, r.month, r.day, r.hour, r.minute, r.second};
}

double CurrentTimer(const ExpansionContext& context) {
  if (context.clock) return context.clock->Timer();
  return context.now ? context.now().seconds_since_midnight : 0.0;
}

std::string MonthNameOf(const ExpansionContext& context, const DateValue& date) {
  if (date.month < 1 || date.month > 12 || !context.message_text) return {};
  return context.message_text(591 + date.month);
}

std::string DayNameOf(const DateValue& date) {
  // Kept: counted from Monday, named from the system's own first day.
  return vb::WeekdayName(vb::Weekday(date, vb::kMonday), false, vb::kUseSystem);
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
  DateValue Date() const { return CurrentDateTime(context); }
  DateValue Time() const {
    const DateValue now = CurrentDateTime(context);
    return vb::TimeSerial(now.hour, now.minute, now.second);
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

std::string QuarterOf(const DateValue& date) { return std::to_string(vb::Quarter(date)); }

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
