#include "base/vb_date_text.h"

#include <gtest/gtest.h>

#include "base/vb_date_names.h"

namespace tarnwick::vb {
namespace {

const DateTime kSample{2004, 3, 8, 10, 15, 5};  // a Monday

TEST(ParseDateTimeTest, ReadsTheThreeOrdersWithTime) {
  EXPECT_EQ(ParseDateTime("08.03.2004 10:15:05", "dd.mm.yyyy"), kSample);
  EXPECT_EQ(ParseDateTime("03.08.2004 10:15:05", "mm.dd.yyyy"), kSample);
  EXPECT_EQ(ParseDateTime("2004.03.08 10:15:05", "yyyy.mm.dd"), kSample);
  EXPECT_EQ(ParseDateTime("03/08/2004 10:15:05", "MM.DD.YYYY"), kSample);
  EXPECT_EQ(ParseDateTime("  8-3-2004   10:15:05 ", "dd.mm.yyyy"), kSample);
  EXPECT_EQ(ParseDateTime("08.03.2004", "dd.mm.yyyy"), (DateTime{2004, 3, 8}));
  EXPECT_EQ(ParseDateTime("08.03.2004 10:15", "dd.mm.yyyy"), (DateTime{2004, 3, 8, 10, 15, 0}));
}

TEST(ParseDateTimeTest, FourDigitsFirstAreTheYearAndShortYearsAreWindowed) {
  EXPECT_EQ(ParseDateTime("2004.03.08", "dd.mm.yyyy"), (DateTime{2004, 3, 8}));
  EXPECT_EQ(ParseDateTime("2004-03-08", "mm.dd.yyyy"), (DateTime{2004, 3, 8}));
  EXPECT_EQ(ParseDateTime("8.3.04", "dd.mm.yyyy"), (DateTime{2004, 3, 8}));
  EXPECT_EQ(ParseDateTime("8.3.99", "dd.mm.yyyy"), (DateTime{1999, 3, 8}));
  EXPECT_EQ(ParseDateTime("8.3.29", "dd.mm.yyyy"), (DateTime{2029, 3, 8}));
  EXPECT_EQ(ParseDateTime("8.3.30", "dd.mm.yyyy"), (DateTime{1930, 3, 8}));
  EXPECT_EQ(ParseDateTime("8.3.2004", "no order at all"), (DateTime{2004, 3, 8}));
}

TEST(ParseDateTimeTest, TimeAloneStandsOnTheLastDaysOf1899) {
  EXPECT_EQ(ParseDateTime("10:15:05", "dd.mm.yyyy"), (DateTime{1899, 12, 30, 10, 15, 5}));
}

TEST(ParseDateTimeTest, RejectsWhatIsNoDate) {
  for (const char* text :
       {"", "   ", "abc", "31.02.2004", "08.13.2004", "08.03.2004 24:00:00", "08.03.2004 10:60",
        "08.03-2004", "08.03.2004 10", "08.03.2004 10:15:", "123456.1.1", "08.03.2004x", "08..2004",
        "1.1.99 1:2:3:4", "08.03.0050", "10:15:05 08.03.2004", "08.03.2004 10:15:05 PM"}) {
    EXPECT_FALSE(ParseDateTime(text, "dd.mm.yyyy")) << text;
  }
}

TEST(FormatDateTest, TokenPatternsOfTheFileDate) {
  const std::pair<const char*, const char*> cases[] = {{"yyyy.mm.dd", "2004.03.08"},
                                                       {"yyyy.mm", "2004.03"},
                                                       {"yyyy", "2004"},
                                                       {"yyyy.dd", "2004.08"},
                                                       {"yyyy.dd.mm", "2004.08.03"},
                                                       {"dd.mm", "08.03"},
                                                       {"mm.dd", "03.08"},
                                                       {"dd.mm.yyyy", "08.03.2004"},
                                                       {"mm.dd.yyyy", "03.08.2004"},
                                                       {"mm.yyyy", "03.2004"},
                                                       {"dd.yyyy", "08.2004"},
                                                       {"dd", "08"},
                                                       {"mm", "03"},
                                                       {"yyyy-mm-dd", "2004-03-08"},
                                                       {"yyyy-dd-mm", "2004-08-03"},
                                                       {"dd-mm-yyyy", "08-03-2004"},
                                                       {"mm-yyyy", "03-2004"},
                                                       {"hh-mm", "10-15"},
                                                       {"hh.mm", "10.15"},
                                                       {"hh-mm-ss", "10-15-05"},
                                                       {"hh.mm.ss", "10.15.05"},
                                                       {"hh", "10"},
                                                       {"ss", "05"},
                                                       {"ww", "11"},
                                                       {"q", "1"},
                                                       {"yy", "04"},
                                                       {"y", "68"},
                                                       {"d.m.yyyy", "8.3.2004"},
                                                       {"h:m:s", "10:15:5"},
                                                       {"hh:nn", "10:15"},
                                                       {"w", "2"},
                                                       {"YYYY-MM-DD", "2004-03-08"},
                                                       {"\"Day\" dd", "Day 08"},
                                                       {"\\d\\d", "dd"},
                                                       {"dd mm hh mm", "08 03 10 15"}};
  for (const auto& [pattern, expected] : cases) {
    EXPECT_EQ(FormatDate(kSample, pattern), expected) << pattern;
  }
}

TEST(FormatDateTest, MonthPatternOfATimeAloneIsDecember) {
  EXPECT_EQ(FormatDate(TimeSerial(10, 15, 5), "mm"), "12");
  EXPECT_EQ(FormatDate(TimeSerial(10, 15, 5), "hh-mm-ss"), "10-15-05");
}

TEST(FormatDateTest, WeekOfFirstJanuaryIsOne) {
  for (int year : {2004, 2005, 2006, 2010}) {
    EXPECT_EQ(FormatDate({year, 1, 1}, "ww"), "1") << year;
  }
}

TEST(FormatDateTest, NamesHalvesOfTheDayAndNamedForms) {
  EXPECT_EQ(FormatDate(kSample, "dddd d mmmm"), "Monday 8 March");
  EXPECT_EQ(FormatDate(kSample, "ddd mmm"), "Mon Mar");
  EXPECT_EQ(FormatDate({2004, 3, 8, 14, 5, 0}, "h:mm AM/PM"), "2:05 PM");
  EXPECT_EQ(FormatDate({2004, 3, 8, 0, 30, 0}, "hh:mm a/p"), "12:30 a");
  EXPECT_EQ(FormatDate(kSample, "Long Time"), "10:15:05");
  EXPECT_EQ(FormatDate(kSample, "long time"), LongTime(kSample));
  EXPECT_EQ(FormatDate(kSample, "Short Time"), "10:15");
}

TEST(FormatDateByOptionTest, DateInTheOptionsOrderAndTheTime) {
  EXPECT_EQ(FormatDateByOption(kSample, "dd.mm.yyyy"), "08.03.2004 10:15:05");
  EXPECT_EQ(FormatDateByOption(kSample, "yyyy.mm.dd"), "2004.03.08 10:15:05");
  EXPECT_EQ(FormatDateByOption(kSample, "mm.dd.yyyy"), "03.08.2004 10:15:05");
  EXPECT_EQ(FormatDateByOption(kSample, "DD-MM-YYYY"), "08-03-2004 10:15:05");
  const DateTime late{1999, 12, 31, 23, 59, 59};
  for (const char* order : {"dd.mm.yyyy", "yyyy.mm.dd", "mm.dd.yyyy", "dd/mm/yyyy"}) {
    EXPECT_EQ(ParseDateTime(FormatDateByOption(late, order), order), late) << order;
  }
}

}  // namespace
}  // namespace tarnwick::vb
