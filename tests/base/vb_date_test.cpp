#include "base/vb_date.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/vb_error.h"

namespace tarnwick::vb {
namespace {

int ErrorNumberOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const VbError& e) {
    return e.number();
  }
  return 0;
}

const DateTime kSample{2004, 3, 8, 10, 15, 5};  // a Monday

TEST(DateSerialNumberTest, CountsDaysFromTheEndOf1899) {
  EXPECT_EQ(ToSerial(DateTime{}), 0);
  EXPECT_EQ(ToSerial(DateTime{1900, 1, 1}), 2);
  EXPECT_EQ(ToSerial(DateTime{2004, 3, 8, 12, 0, 0}), 38054.5);
  EXPECT_EQ(ToSerial(DateTime{1899, 12, 29, 6, 0, 0}), -1.25);
  EXPECT_EQ(FromSerial(-1.25), (DateTime{1899, 12, 29, 6, 0, 0}));
  EXPECT_EQ(FromSerial(38054.5), (DateTime{2004, 3, 8, 12, 0, 0}));
  for (const DateTime& date : {kSample, DateTime{100, 1, 1}, DateTime{9999, 12, 31, 23, 59, 59},
                               DateTime{1600, 2, 29, 0, 0, 1}}) {
    EXPECT_EQ(FromSerial(ToSerial(date)), date) << ToSerial(date);
  }
  EXPECT_FALSE(FromSerial(std::nan("")));
  EXPECT_FALSE(FromSerial(3e6));
  EXPECT_FALSE(FromSerial(-7e5));
}

TEST(DateValidityTest, KnowsMonthLengthsAndLeapYears) {
  EXPECT_TRUE(IsValidDate({2004, 2, 29}));
  EXPECT_TRUE(IsValidDate({2000, 2, 29}));
  EXPECT_FALSE(IsValidDate({2003, 2, 29}));
  EXPECT_FALSE(IsValidDate({1900, 2, 29}));
  EXPECT_FALSE(IsValidDate({2004, 4, 31}));
  EXPECT_FALSE(IsValidDate({99, 1, 1}));
  EXPECT_FALSE(IsValidDate({10000, 1, 1}));
  EXPECT_FALSE(IsValidDate({2004, 1, 1, 24, 0, 0}));
  EXPECT_FALSE(IsValidDate({2004, 1, 1, 0, 60, 0}));
  EXPECT_FALSE(IsValidDate({2004, 13, 1}));
}

TEST(DateSerialTest, CarriesOverAndWindowsTwoDigitYears) {
  EXPECT_EQ(DateSerial(2004, 13, 1), (DateTime{2005, 1, 1}));
  EXPECT_EQ(DateSerial(2004, 3, 0), (DateTime{2004, 2, 29}));
  EXPECT_EQ(DateSerial(2004, 0, 1), (DateTime{2003, 12, 1}));
  EXPECT_EQ(DateSerial(5, 1, 1), (DateTime{2005, 1, 1}));
  EXPECT_EQ(DateSerial(99, 1, 1), (DateTime{1999, 1, 1}));
  EXPECT_EQ(ErrorNumberOf([] { DateSerial(10000, 1, 1); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { DateSerial(2004, 1, 2000000000); }), 5);
  EXPECT_EQ(TimeSerial(10, 75, 0), (DateTime{1899, 12, 30, 11, 15, 0}));
  EXPECT_EQ(TimeSerial(25, 0, 0), (DateTime{1899, 12, 31, 1, 0, 0}));
  EXPECT_EQ(TimeSerial(0, 0, -1), (DateTime{1899, 12, 29, 23, 59, 59}));
}

TEST(DatePartsTest, WeekdaysWeeksAndQuarters) {
  EXPECT_EQ(Weekday(kSample), 2);
  EXPECT_EQ(Weekday(kSample, kMonday), 1);
  EXPECT_EQ(Weekday(kSample, kSaturday), 3);
  EXPECT_EQ(Weekday(kSample, kUseSystem), 2);  // the C locale's week starts on Sunday
  EXPECT_EQ(ErrorNumberOf([] { Weekday(kSample, 8); }), 5);
  // The week holding 1 January is week 1, and weeks start on Sunday.
  EXPECT_EQ(WeekOfYear({2005, 1, 1}), 1);  // a Saturday
  EXPECT_EQ(WeekOfYear({2005, 1, 2}), 2);
  EXPECT_EQ(WeekOfYear({2006, 1, 1}), 1);  // a Sunday
  EXPECT_EQ(WeekOfYear({2006, 1, 7}), 1);
  EXPECT_EQ(WeekOfYear(kSample), 11);
  EXPECT_EQ(WeekOfYear({2004, 12, 31}), 53);
  const int quarters[] = {1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4};
  for (int month = 1; month <= 12; ++month) {
    EXPECT_EQ(Quarter({2004, month, 1}), quarters[month - 1]);
  }
  EXPECT_EQ(DayOfYear({2004, 12, 31}), 366);
  EXPECT_EQ(DatePart("y", kSample), 68);
  EXPECT_EQ(DatePart("ww", {2005, 1, 2}, kMonday), 1);
  EXPECT_EQ(DatePart("W", kSample, kMonday), 1);
  EXPECT_EQ(DatePart("q", {2004, 11, 1}), 4);
  EXPECT_EQ(DatePart("n", kSample), 15);
}

TEST(DateAddTest, MonthsEndOnTheLastDayOfAShorterMonth) {
  EXPECT_EQ(DateAdd("m", 1, {2004, 1, 31}), (DateTime{2004, 2, 29}));
  EXPECT_EQ(DateAdd("m", 1, {2005, 1, 31}), (DateTime{2005, 2, 28}));
  EXPECT_EQ(DateAdd("M", -1, {2005, 3, 31, 8, 0, 0}), (DateTime{2005, 2, 28, 8, 0, 0}));
  EXPECT_EQ(DateAdd("yyyy", 1, {2004, 2, 29}), (DateTime{2005, 2, 28}));
  EXPECT_EQ(DateAdd("q", 1, {2004, 11, 30}), (DateTime{2005, 2, 28}));
  EXPECT_EQ(DateAdd("m", 13, {2004, 1, 15}), (DateTime{2005, 2, 15}));
}

TEST(DateAddTest, DaysAndTimesCarryAcrossMidnight) {
  EXPECT_EQ(DateAdd("d", 1, {2004, 12, 31, 23, 0, 0}), (DateTime{2005, 1, 1, 23, 0, 0}));
  EXPECT_EQ(DateAdd("ww", 2, {2004, 2, 20}), (DateTime{2004, 3, 5}));
  EXPECT_EQ(DateAdd("h", 25, {2004, 2, 28, 0, 0, 0}), (DateTime{2004, 2, 29, 1, 0, 0}));
  EXPECT_EQ(DateAdd("n", -1, {2004, 1, 1}), (DateTime{2003, 12, 31, 23, 59, 0}));
  EXPECT_EQ(DateAdd("s", 3661, kSample), (DateTime{2004, 3, 8, 11, 16, 6}));
}

TEST(DateAddTest, UnknownIntervalsAndEscapesFromTheRangeRaise) {
  EXPECT_EQ(ErrorNumberOf([] { DateAdd("x", 1, kSample); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { DateAdd("", 1, kSample); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { DateAdd("yyyy", 8000, kSample); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { DateAdd("d", -1, {100, 1, 1}); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { DateAdd("s", INT64_MAX, kSample); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { DateAdd("m", INT64_MIN, kSample); }), 5);
}

TEST(DateDiffTest, CountsBoundariesCrossed) {
  EXPECT_EQ(DateDiff("d", {2004, 1, 1, 23, 59, 0}, {2004, 1, 2, 0, 1, 0}), 1);
  EXPECT_EQ(DateDiff("yyyy", {2004, 12, 31}, {2005, 1, 1}), 1);
  EXPECT_EQ(DateDiff("m", {2004, 1, 31}, {2004, 2, 1}), 1);
  EXPECT_EQ(DateDiff("q", {2004, 3, 31}, {2004, 4, 1}), 1);
  EXPECT_EQ(DateDiff("h", {2004, 1, 1, 10, 59, 59}, {2004, 1, 1, 11, 0, 0}), 1);
  EXPECT_EQ(DateDiff("n", kSample, {2004, 3, 8, 10, 14, 59}), -1);
  EXPECT_EQ(DateDiff("s", kSample, {2004, 3, 9, 10, 15, 5}), 86400);
  EXPECT_EQ(DateDiff("w", {2004, 3, 1}, {2004, 3, 7}), 0);
  EXPECT_EQ(DateDiff("w", {2004, 3, 1}, {2004, 3, 8}), 1);
  EXPECT_EQ(DateDiff("ww", {2004, 3, 6}, {2004, 3, 7}), 1);  // Saturday to Sunday
  EXPECT_EQ(DateDiff("ww", {2004, 3, 6}, {2004, 3, 7}, kMonday), 0);
  EXPECT_EQ(DateDiff("d", {1899, 12, 29}, {1899, 12, 31}), 2);
  EXPECT_EQ(ErrorNumberOf([] { DateDiff("zz", kSample, kSample); }), 5);
}

}  // namespace
}  // namespace tarnwick::vb
