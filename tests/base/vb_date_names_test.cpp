#include "base/vb_date_names.h"

#include <gtest/gtest.h>

#include "base/vb_error.h"

namespace tarnwick::vb {
namespace {

// The test binaries run with LANG=C.UTF-8: English names, weeks from Sunday.

TEST(DateNamesTest, MonthNamesOfTheLocale) {
  EXPECT_EQ(MonthName(1), "January");
  EXPECT_EQ(MonthName(12, true), "Dec");
  EXPECT_EQ(MonthName(0), "");
  EXPECT_EQ(MonthName(13), "");
}

TEST(DateNamesTest, WeekdayNamesCountFromTheFirstDay) {
  EXPECT_EQ(TimeLocale::Process().FirstWeekday(), kSunday);
  EXPECT_EQ(WeekdayName(1), "Sunday");
  EXPECT_EQ(WeekdayName(1, false, kMonday), "Monday");
  EXPECT_EQ(WeekdayName(7, true, kMonday), "Sun");
  EXPECT_EQ(WeekdayName(3, false, kSaturday), "Monday");
  EXPECT_EQ(WeekdayName(0), "");
  EXPECT_EQ(WeekdayName(8), "");
  try {
    WeekdayName(1, false, 9);
    FAIL() << "no error";
  } catch (const VbError& e) {
    EXPECT_EQ(e.number(), 5);
  }
}

TEST(DateNamesTest, MondayCountedFromMondayIsNamedFromTheSystemsFirstDay) {
  // The day-name token counts from Monday and names from the system's first
  // day, so where weeks start on Sunday a Monday is named "Sunday".
  const DateTime monday{2004, 3, 8};
  EXPECT_EQ(WeekdayName(Weekday(monday, kMonday), false, kUseSystem), "Sunday");
}

TEST(DateNamesTest, NamedLocalesAndTheirForms) {
  EXPECT_FALSE(TimeLocale::Named("xx_NOWHERE.UTF-8"));
  const std::optional<TimeLocale> c = TimeLocale::Named("C");
  ASSERT_TRUE(c);
  EXPECT_EQ(c->DayName(2, false), "Monday");
  EXPECT_EQ(c->DayName(8, false), "");
  EXPECT_EQ(c->MonthName(3, true), "Mar");
  const DateTime sample{2004, 3, 8, 10, 15, 5};
  EXPECT_EQ(c->LongTime(sample), "10:15:05");
  EXPECT_EQ(c->ShortDate(sample), "03/08/04");
  EXPECT_EQ(c->LongDate(sample), "Monday, 8 March 2004");
  EXPECT_EQ(LongTime(TimeSerial(0, 0, 7)), "00:00:07");
}

}  // namespace
}  // namespace tarnwick::vb
