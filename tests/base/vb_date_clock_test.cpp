#include <gtest/gtest.h>

#include <cmath>

#include "base/clock.h"

namespace tarnwick {
namespace {

TEST(FixedClockTest, StandsStillUntilSetOrMoved) {
  FixedClock clock({2004, 3, 8, 10, 15, 5}, 0.25);
  EXPECT_EQ(clock.Now(), (vb::DateTime{2004, 3, 8, 10, 15, 5}));
  EXPECT_DOUBLE_EQ(clock.Timer(), 36905.25);
  clock.Advance(1.5);
  EXPECT_EQ(clock.Now(), (vb::DateTime{2004, 3, 8, 10, 15, 6}));
  EXPECT_DOUBLE_EQ(clock.Timer(), 36906.75);
  clock.Set({2004, 12, 31, 23, 59, 59});
  clock.Advance(2);
  EXPECT_EQ(clock.Now(), (vb::DateTime{2005, 1, 1, 0, 0, 1}));
  EXPECT_DOUBLE_EQ(clock.Timer(), 1);
  clock.Advance(-3.5);
  EXPECT_EQ(clock.Now(), (vb::DateTime{2004, 12, 31, 23, 59, 57}));
  EXPECT_DOUBLE_EQ(clock.Timer(), 86397.5);
}

TEST(FixedClockTest, DefaultIsTheDayOfATimeAloneAndBadFractionsAreTamed) {
  FixedClock clock;
  EXPECT_EQ(clock.Now(), vb::DateTime{});
  EXPECT_EQ(clock.Timer(), 0);
  clock.Set({2004, 1, 1}, 7.0);
  EXPECT_LT(clock.Timer(), 1);
  clock.Set({2004, 1, 1}, std::nan(""));
  EXPECT_EQ(clock.Timer(), 0);
  clock.Advance(std::nan(""));
  EXPECT_EQ(clock.Now(), (vb::DateTime{2004, 1, 1}));
}

TEST(SystemClockTest, GivesAValidLocalTimeAndTimerOfTheSameDay) {
  const SystemClock clock;
  const vb::DateTime now = clock.Now();
  const double timer = clock.Timer();
  EXPECT_TRUE(vb::IsValidDate(now));
  EXPECT_GE(timer, 0);
  EXPECT_LT(timer, 86400);
  const double of_day = now.hour * 3600.0 + now.minute * 60.0 + now.second;
  const double gap = std::fabs(timer - of_day);
  EXPECT_TRUE(gap < 2 || gap > 86398) << timer << " vs " << of_day;
}

}  // namespace
}  // namespace tarnwick
