// Texts of single columns: sizes, attribute letters, dates.
#include <gtest/gtest.h>

#include "filelist/attribute_text.h"
#include "filelist/file_size_text.h"
#include "filelist/list_date_text.h"

namespace tarnwick {
namespace {

TEST(FormatFileSizeTest, BytesThenThreeDigitsCutNotRounded) {
  EXPECT_EQ(FormatFileSize(0), "0 bytes");
  EXPECT_EQ(FormatFileSize(1), "1 bytes");
  EXPECT_EQ(FormatFileSize(1023), "1023 bytes");
  EXPECT_EQ(FormatFileSize(1024), "1.00 KB");
  EXPECT_EQ(FormatFileSize(1535), "1.49 KB");
  EXPECT_EQ(FormatFileSize(10 * 1024 + 1023), "10.9 KB");
  EXPECT_EQ(FormatFileSize(123 * 1024 + 1000), "123 KB");
  EXPECT_EQ(FormatFileSize(1023999), "999 KB");
}

TEST(FormatFileSizeTest, MovesUpAUnitAtOneThousand) {
  EXPECT_EQ(FormatFileSize(1024000), "0.97 MB");
  EXPECT_EQ(FormatFileSize(1048576), "1.00 MB");
  EXPECT_EQ(FormatFileSize(1073741824), "1.00 GB");
  EXPECT_EQ(FormatFileSize(4294967295u), "3.99 GB");
  EXPECT_EQ(FormatFileSize(1ULL << 40), "1.00 TB");
  EXPECT_EQ(FormatFileSize(UINT64_MAX), "15.9 EB");
}

TEST(FormatFileSizeTest, GermanSaysBytesAndUsesADecimalComma) {
  constexpr Language kDe = Language::kGerman;
  EXPECT_EQ(FormatFileSize(0, kDe), "0 Bytes");
  EXPECT_EQ(FormatFileSize(1023, kDe), "1023 Bytes");
  EXPECT_EQ(FormatFileSize(1535, kDe), "1,49 KB");
  EXPECT_EQ(FormatFileSize(10 * 1024 + 1023, kDe), "10,9 KB");
  EXPECT_EQ(FormatFileSize(1023999, kDe), "999 KB");
  EXPECT_EQ(FormatFileSize(1024000, kDe), "0,97 MB");
  EXPECT_EQ(FormatFileSize(1535, Language::kEnglish), "1.49 KB");
}

TEST(AttributeTextTest, LettersInTheListOrder) {
  EXPECT_EQ(AttributeText(0), "");
  EXPECT_EQ(AttributeText(0x10), "");
  EXPECT_EQ(AttributeText(0x20), "A");
  EXPECT_EQ(AttributeText(0x80), "N");
  EXPECT_EQ(AttributeText(0x1 | 0x2 | 0x4 | 0x20 | 0x100 | 0x800 | 0x80), "TRHSNCA");
  EXPECT_EQ(AttributeText(0x23), "RHA");
}

TEST(RecordVisibleTest, ExactWordsOnly) {
  for (std::uint32_t word : {38u, 39u, 6u, 22u, 21u, 20u, 18u}) {
    EXPECT_FALSE(RecordVisible(word, false, true)) << word;
    EXPECT_TRUE(RecordVisible(word, true, true)) << word;
  }
  EXPECT_FALSE(RecordVisible(34, true, false));
  EXPECT_TRUE(RecordVisible(34, true, true));
  // Other mixes of the same bits pass.
  EXPECT_TRUE(RecordVisible(35, false, false));
  EXPECT_TRUE(RecordVisible(2, false, false));
  EXPECT_TRUE(RecordVisible(4, false, false));
  EXPECT_TRUE(RecordVisible(36, false, false));
}

TEST(FormatListDateTest, PartsOfTheDateFormat) {
  const ListDateTime date{2024, 3, 5, 14, 7, 9};
  EXPECT_EQ(FormatListDate(date, "dd.mm.yyyy"), "05.03.2024 14:07:09");
  EXPECT_EQ(FormatListDate(date, "yyyy.mm.dd"), "2024.03.05 14:07:09");
  EXPECT_EQ(FormatListDate(date, "MM.DD.YYYY"), "03.05.2024 14:07:09");
  EXPECT_EQ(FormatListDate(date, "d.m.yy"), "5.3.24 14:07:09");
  EXPECT_EQ(FormatListDate(date, "dd-mm-yyyy x"), "05-03-2024 x 14:07:09");
  EXPECT_EQ(FormatListDate(date, ""), " 14:07:09");
  EXPECT_EQ(FormatListDate({812, 12, 31, 0, 0, 0}, "yyyy"), "0812 00:00:00");
}

}  // namespace
}  // namespace tarnwick
