#include "base/clock.h"

#include <algorithm>
#include <cmath>
#include <ctime>

#include "base/vb_date_calendar.h"

namespace tarnwick {
namespace {

vb::DateTime LocalDateTime(std::time_t seconds) {
  std::tm local{};
  localtime_r(&seconds, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     local.tm_sec};
}

double SecondsOfDay(const vb::DateTime& date) {
  return date.hour * 3600.0 + date.minute * 60.0 + date.second;
}

}  // namespace

vb::DateTime SystemClock::Now() const { return LocalDateTime(std::time(nullptr)); }

double SystemClock::Timer() const {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  return SecondsOfDay(LocalDateTime(now.tv_sec)) + static_cast<double>(now.tv_nsec) / 1e9;
}

void FixedClock::Set(const vb::DateTime& now, double fraction) {
  now_ = now;
  fraction_ = std::isfinite(fraction) ? std::clamp(fraction, 0.0, std::nextafter(1.0, 0.0)) : 0;
}

void FixedClock::Advance(double seconds) {
  if (!std::isfinite(seconds)) return;
  const double total = static_cast<double>(vb::detail::SecondsOf(now_)) + fraction_ + seconds;
  const double whole = std::floor(total);
  now_ = vb::detail::DateTimeOfSeconds(static_cast<std::int64_t>(whole));
  fraction_ = total - whole;
}

double FixedClock::Timer() const { return SecondsOfDay(now_) + fraction_; }

}  // namespace tarnwick
