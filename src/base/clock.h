#pragma once

#include "base/vb_date.h"

namespace tarnwick {

// The clock the program reads: the local date and time (`Now`) and the seconds
// since midnight (`Timer`). Injected so that dates, times and seeds can be
// fixed in tests.
class Clock {
 public:
  virtual ~Clock() = default;
  // The local date and time, to the second.
  virtual vb::DateTime Now() const = 0;
  // Seconds since local midnight, with fractions.
  virtual double Timer() const = 0;
};

// The machine's clock in local time.
class SystemClock : public Clock {
 public:
  vb::DateTime Now() const override;
  double Timer() const override;
};

// A clock that stands still until it is set or moved on.
class FixedClock : public Clock {
 public:
  FixedClock() = default;
  explicit FixedClock(const vb::DateTime& now, double fraction = 0) { Set(now, fraction); }

  // `fraction` is the part of a second for Timer, 0 to below 1.
  void Set(const vb::DateTime& now, double fraction = 0);
  // Moves the clock on (or back, when negative) by seconds with fractions.
  void Advance(double seconds);

  vb::DateTime Now() const override { return now_; }
  double Timer() const override;

 private:
  vb::DateTime now_;
  double fraction_ = 0;
};

}  // namespace tarnwick
