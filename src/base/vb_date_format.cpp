// Formatting a date with a pattern.
#include "base/text.h"
#include "base/vb_date_names.h"
#include "base/vb_date_text.h"

namespace tarnwick::vb {
namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

std::string Padded(int value, std::size_t width) {
  std::string out = std::to_string(value);
  if (out.size() < width) out.insert(0, width - out.size(), '0');
  return out;
}

// The half-of-day markers and what they show.
struct DayHalf {
  std::string_view marker, am, pm;
};
constexpr DayHalf kDayHalves[] = {
    {"AM/PM", "AM", "PM"}, {"am/pm", "am", "pm"}, {"A/P", "A", "P"}, {"a/p", "a", "p"}};

class DateWriter {
 public:
  DateWriter(const DateTime& date, std::string_view pattern)
      : date_(date), pattern_(pattern), twelve_hours_(HasDayHalf(pattern)) {}

  std::string Write() {
    while (at_ < pattern_.size()) Step();
    return out_;
  }

 private:
  static bool HasDayHalf(std::string_view pattern) {
    for (const DayHalf& half : kDayHalves) {
      if (pattern.find(half.marker) != std::string_view::npos) return true;
    }
    return false;
  }

  std::size_t RunOf(char letter) const {
    std::size_t end = at_;
    while (end < pattern_.size() && Lower(pattern_[end]) == letter) ++end;
    return end - at_;
  }

  bool WriteDayHalf() {
    for (const DayHalf& half : kDayHalves) {
      if (pattern_.substr(at_).starts_with(half.marker)) {
        out_ += date_.hour < 12 ? half.am : half.pm;
        at_ += half.marker.size();
        return true;
      }
    }
    return false;
  }

  void WriteQuoted() {
    const std::size_t end = pattern_.find('"', at_ + 1);
    const std::size_t stop = end == std::string_view::npos ? pattern_.size() : end;
    out_ += pattern_.substr(at_ + 1, stop - at_ - 1);
    at_ = stop == pattern_.size() ? stop : stop + 1;
  }

  int Hour() const {
    if (!twelve_hours_) return date_.hour;
    return date_.hour % 12 == 0 ? 12 : date_.hour % 12;
  }

  struct Token {
    std::string text;
    std::size_t letters;  // how many letters of the run it takes
  };

  Token NameToken(std::size_t run, bool month) const {
    const TimeLocale& locale = TimeLocale::Process();
    const bool short_form = run == 3;
    return {month ? locale.MonthName(date_.month, short_form)
                  : locale.DayName(Weekday(date_), short_form),
            short_form ? 3u : 4u};
  }

  Token YearToken(std::size_t run) const {
    if (run >= 4) return {std::to_string(date_.year), 4};
    if (run >= 2) return {Padded(date_.year % 100, 2), 2};
    return {std::to_string(DayOfYear(date_)), 1};
  }

  // One token from a run of `run` equal letters (at most 4).
  Token ReadToken(char letter, std::size_t run, bool after_hour) const {
    const std::size_t two = std::min<std::size_t>(run, 2);
    switch (letter) {
      case 'y':
        return YearToken(run);
      case 'd':
        return run >= 3 ? NameToken(run, false) : Token{Padded(date_.day, run), run};
      case 'm':
        if (run >= 3) return NameToken(run, true);
        // Right after an hour "m" and "mm" are the minute.
        return {Padded(after_hour ? date_.minute : date_.month, run), run};
      case 'h':
        return {Padded(Hour(), two), two};
      case 'n':
        return {Padded(date_.minute, two), two};
      case 's':
        return {Padded(date_.second, two), two};
      case 'w':
        return run >= 2 ? Token{std::to_string(WeekOfYear(date_)), 2}
                        : Token{std::to_string(Weekday(date_)), 1};
      default:  // 'q'
        return {std::to_string(Quarter(date_)), 1};
    }
  }

  void Step() {
    const char c = pattern_[at_];
    if (c == '"') return WriteQuoted();
    if (c == '\\') {
      if (at_ + 1 < pattern_.size()) out_ += pattern_[at_ + 1];
      at_ += 2;
      return;
    }
    if (WriteDayHalf()) return;
    const char letter = Lower(c);
    if (std::string_view("ydmhnswq").find(letter) == std::string_view::npos) {
      out_ += c;
      ++at_;
      return;
    }
    const Token token = ReadToken(letter, std::min<std::size_t>(RunOf(letter), 4), after_hour_);
    after_hour_ = letter == 'h';
    out_ += token.text;
    at_ += token.letters;
  }

  const DateTime& date_;
  std::string_view pattern_;
  bool twelve_hours_;
  bool after_hour_ = false;
  std::size_t at_ = 0;
  std::string out_;
};

}  // namespace

std::string FormatDate(const DateTime& date, std::string_view pattern) {
  const TimeLocale& locale = TimeLocale::Process();
  if (EqualsText(pattern, "Long Time")) return locale.LongTime(date);
  if (EqualsText(pattern, "Short Time")) return DateWriter(date, "hh:nn").Write();
  if (EqualsText(pattern, "Long Date")) return locale.LongDate(date);
  if (EqualsText(pattern, "Short Date")) return locale.ShortDate(date);
  return DateWriter(date, pattern).Write();
}

std::string FormatDateByOption(const DateTime& date, std::string_view date_format) {
  return DateWriter(date, date_format).Write() + " " + DateWriter(date, "hh:nn:ss").Write();
}

}  // namespace tarnwick::vb
