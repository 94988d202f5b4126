#include "playlist/playlist_length.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarnwick {
namespace {

TEST(PlaylistLengthTest, WholeSecondsFromAFileShowAsMinutesOrHours) {
  EXPECT_EQ(LengthFromFile("215"), "03:35");
  EXPECT_EQ(LengthFromFile(" 59"), "00:59");
  EXPECT_EQ(LengthFromFile("3599"), "59:59");
  EXPECT_EQ(LengthFromFile("3723"), "1:02:03");
  EXPECT_EQ(LengthFromFile("360000"), "100:00:00");
  // The attributes some players write behind the number mean nothing here.
  EXPECT_EQ(LengthFromFile("123 tvg-id=\"x\""), "02:03");
}

TEST(PlaylistLengthTest, UnknownNegativeAndAbsurdLengthsAreUnknown) {
  for (const char* value : {"-1", "-215", "", "abc", "0", "2147483648", "99999999999999999999"}) {
    EXPECT_EQ(LengthFromFile(value), "00:00") << value;
  }
  EXPECT_EQ(LengthFromFile("2147483647"), "596523:14:07");
}

TEST(PlaylistLengthTest, ADecimalValueKeepsTheMinutesAndHundredthsReading) {
  EXPECT_EQ(LengthFromFile("3.5"), "03:50");
  EXPECT_EQ(LengthFromFile("3,5"), "03:50");
  EXPECT_EQ(LengthFromFile("215.25"), "215:25");
  EXPECT_EQ(LengthFromFile("0.999"), "01:00");
}

TEST(PlaylistLengthTest, TheWriterCountsTwoOrThreePartsAndNothingElse) {
  EXPECT_EQ(LengthSeconds("1:02:03"), 3723);
  EXPECT_EQ(LengthSeconds("03:35"), 215);
  EXPECT_EQ(LengthSeconds("215:00"), 12900);
  EXPECT_EQ(LengthSeconds(""), 0);
  EXPECT_EQ(LengthSeconds("00:00"), 0);
  EXPECT_EQ(LengthSeconds("-3:00"), 0);
  EXPECT_EQ(LengthSeconds("215"), 0);
  EXPECT_EQ(LengthSeconds("1:2:3:4"), 0);
  EXPECT_EQ(LengthSeconds("x:10"), 10);
  EXPECT_EQ(LengthSeconds("99999999999:00:00"), 2147483647);
}

TEST(PlaylistLengthTest, ALoadAndASaveKeepEveryWholeLength) {
  for (std::int64_t seconds : {1, 59, 60, 215, 3599, 3600, 3723, 86399, 86400, 2147483647}) {
    EXPECT_EQ(LengthSeconds(LengthFromFile(std::to_string(seconds))), seconds) << seconds;
  }
}

TEST(PlaylistLengthTest, TheTotalSumsTheRows) {
  struct Row {
    std::string length;
  };
  const std::vector<Row> rows = {{"03:35"}, {"1:02:03"}, {""}, {"junk"}};
  EXPECT_EQ(TotalSeconds(rows), 215 + 3723);
  EXPECT_EQ(LengthText(215 + 3723), "1:05:38");
}

}  // namespace
}  // namespace tarnwick
