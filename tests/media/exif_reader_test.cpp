// The EXIF reader on built byte strings: search, byte orders, directories,
// the text rules of the decoding table, MetaInfo and ListInfo.
#include "media/exif_reader.h"

#include <gtest/gtest.h>

#include <string>

#include "media/exif_bytes.h"
#include "media/exif_test_bytes.h"
#include "shell/message_table.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::ExifBlockBuilder;
using Status = ExifReader::Status;

class ExifReaderTest : public ::testing::Test {
 protected:
  ExifReaderTest() : reader_(MessageTable::Get(Language::kEnglish), {}) {}

  // The text of `tag` after parsing `bytes` (MetaInfo, quiet).
  std::string TextOf(const std::string& bytes, std::uint32_t tag) {
    reader_.ParseHead(bytes);
    std::string text;
    reader_.MetaInfo(tag, text, true);
    return text;
  }

  ExifReader reader_;
};

TEST(ExifBytesTest, SignedNumbersUseTheMirroredScale) {
  const std::string ff("\xFF\xFF\xFF\xFF", 4);
  const std::string top("\x80\x00\x00\x00", 4);
  EXPECT_EQ(ReadSignedAt(ff, 0, 4, false), -2147483648LL);
  EXPECT_EQ(ReadSignedAt(top, 0, 4, false), -1);
  EXPECT_EQ(ReadSignedAt(std::string("\xFF\x7F", 2), 0, 2, true), 32767);
  EXPECT_EQ(ReadSignedAt(std::string("\xFE\xFF", 2), 0, 2, true), -32768 + 1);
  EXPECT_EQ(ReadUnsignedAt(std::string("\x01\x02", 2), 0, 2, true), 0x0201u);
  EXPECT_EQ(ReadUnsignedAt(std::string("\x01\x02", 2), 0, 2, false), 0x0102u);
  EXPECT_THROW(ReadUnsignedAt(std::string("\x01", 1), 0, 2, false), std::exception);
}

TEST_F(ExifReaderTest, BothByteOrdersGiveTheSameEntries) {
  for (const bool intel : {true, false}) {
    ExifBlockBuilder b(intel);
    b.Ascii(271, "Oakhollow", false).First(274, 3, 1, b.U16(6));
    b.Ascii(36867, "2004:04:12 11:38:00").Exif(40962, 4, 1, b.U32(2048));
    reader_.ParseHead(b.Build());
    ASSERT_EQ(reader_.status(), Status::kParsed);
    EXPECT_EQ(reader_.IntelByteAlignment(), intel);
    EXPECT_EQ(reader_.ListInfo(),
              "Make: Oakhollow\r\nOrientation: 6\r\nExifOffset: 50\r\n"
              "DateTimeOriginal: 2004:04:12 11:38:00\r\nExifImageWidth: 2048\r\n");
    std::string text;
    EXPECT_EQ(reader_.MetaInfo(40962, text, false), 2048);
    EXPECT_EQ(text, "2048");
  }
}

TEST_F(ExifReaderTest, OnlyTheHeadIsSearchedAndAnyFileWithTheTextIsParsed) {
  ExifBlockBuilder b(true);
  b.Ascii(271, "Oakhollow");
  reader_.ParseHead(b.Build(3000));
  EXPECT_EQ(reader_.status(), Status::kParsed);
  reader_.ParseHead(b.Build(5000));  // the block starts behind byte 4096
  EXPECT_EQ(reader_.status(), Status::kNoExif);
  EXPECT_EQ(reader_.ListInfo(), "File has no EXIF Metainformation.");
  reader_.ParseHead("no picture at all");
  EXPECT_EQ(reader_.status(), Status::kNoExif);
  // Not a JPEG, but the text is there: parsed all the same.
  reader_.ParseHead("plain text " + b.Build().substr(2));
  EXPECT_EQ(reader_.status(), Status::kParsed);
}

TEST_F(ExifReaderTest, FailuresGiveStatusTwoAndNoTexts) {
  testing::TempDir dir;
  reader_.SetImageFile(dir.WriteFile("empty.jpg", ""));
  EXPECT_EQ(reader_.status(), Status::kFailed);
  reader_.SetImageFile(dir.path() / "missing.jpg");
  EXPECT_EQ(reader_.status(), Status::kFailed);
  EXPECT_EQ(reader_.ListInfo(), "Error parsing the file.");

  ExifBlockBuilder b(true);
  b.Ascii(271, "Oakhollow");
  std::string cut = b.Build();
  cut.resize(30);  // the directory runs out of the bytes
  reader_.ParseHead(cut);
  EXPECT_EQ(reader_.status(), Status::kFailed);
  std::string text = "unchanged";
  EXPECT_EQ(reader_.MetaInfo(271, text, true), 0);
  EXPECT_EQ(text, "unchanged");

  // An unknown field type ends the parse.
  ExifBlockBuilder bad(false);
  bad.Exif(271, 13, 1, "abcd");
  reader_.ParseHead(bad.Build());
  EXPECT_EQ(reader_.status(), Status::kFailed);
}

TEST_F(ExifReaderTest, MissingTagsAndTheEightyLineLimit) {
  ExifBlockBuilder b(true);
  for (std::uint16_t i = 0; i < 90; ++i) b.Exif(1000 + i, 3, 1, b.U16(i));
  reader_.ParseHead(b.Build());
  ASSERT_EQ(reader_.status(), Status::kParsed);
  const std::string list = reader_.ListInfo();
  EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), 80);
  EXPECT_EQ(list.substr(0, 17), "ExifOffset: 26\r\nT");
  EXPECT_NE(list.find("Tag #1000: 0\r\n"), std::string::npos);
  std::string text;
  reader_.MetaInfo(33432, text, false);
  EXPECT_EQ(text, "Tag 33432 not found.");
  reader_.MetaInfo(33432, text, true);
  EXPECT_EQ(text, "n/a");
  EXPECT_EQ(ExifReader::GetTagName(37510), "UserComment");
  EXPECT_EQ(ExifReader::GetTagName(7), "Tag #7");
}

TEST_F(ExifReaderTest, WithoutAnExifDirectoryTheSecondReadFails) {
  // Kept: the second directory is read at offset 0 when the first has no link.
  const std::string head = std::string("Exif\0\0", 6) + std::string("II*\0\x08\0\0\0", 8) +
                           std::string("\x01\0\x0F\x01\x02\0\x02\0\0\0A\0\0\0\0\0\0\0", 18);
  reader_.ParseHead(head);
  EXPECT_EQ(reader_.status(), Status::kFailed);
}

TEST_F(ExifReaderTest, RationalTexts) {
  ExifBlockBuilder b(true);
  b.Exif(33434, 5, 1, b.Rational(1, 125));          // ExposureTime
  b.Exif(37378, 5, 1, b.Rational(4, 1));            // ApertureValue
  b.Exif(37381, 5, 1, b.Rational(3, 1));            // MaxApertureValue
  b.Exif(33437, 5, 1, b.Rational(28, 10));          // FNumber
  b.Exif(282, 5, 1, b.Rational(72, 1));             // XResolution
  b.Exif(37377, 10, 1, b.Rational(6, 1));           // ShutterSpeedValue
  b.Exif(37380, 10, 1, b.Rational(0xFFFFFFFF, 3));  // ExposureBiasValue -1/3
  b.Exif(37379, 10, 1, b.Rational(0xFFFFFFFB, 2));  // BrightnessValue -5/2
  b.Exif(318, 5, 2, b.Rational(3127, 10000) + b.Rational(329, 1000));
  b.Exif(37122, 5, 1, b.Rational(2, 1));  // CompressedBitsPerPixel
  b.Exif(41493, 10, 2, b.Rational(1, 0) + b.Rational(5, 4));
  const std::string bytes = b.Build();
  EXPECT_EQ(TextOf(bytes, 33434), "125");
  EXPECT_EQ(TextOf(bytes, 37378), "4.0");
  EXPECT_EQ(TextOf(bytes, 37381), "2.8");
  EXPECT_EQ(TextOf(bytes, 33437), "2.8");
  EXPECT_EQ(TextOf(bytes, 282), "72.0");
  EXPECT_EQ(TextOf(bytes, 37377), "64");
  EXPECT_EQ(TextOf(bytes, 37380), "-715827882.7");
  EXPECT_EQ(TextOf(bytes, 37379), "-2147483644/2");
  EXPECT_EQ(TextOf(bytes, 318), "0.313/0.329");
  EXPECT_EQ(TextOf(bytes, 37122), "2/1");
  EXPECT_EQ(TextOf(bytes, 41493), "0.000/1.250");  // a zero denominator keeps the value empty
}

TEST_F(ExifReaderTest, ZeroDenominators) {
  ExifBlockBuilder b(false);
  b.Exif(37380, 10, 1, b.Rational(1, 0));
  EXPECT_EQ(TextOf(b.Build(), 37380), "0.0");
  ExifBlockBuilder time(false);
  time.Exif(33434, 5, 1, time.Rational(1, 0));  // 1 / an empty value
  reader_.ParseHead(time.Build());
  EXPECT_EQ(reader_.status(), Status::kFailed);
}

TEST_F(ExifReaderTest, UndefinedAndOtherTexts) {
  ExifBlockBuilder b(true);
  b.Exif(36864, 7, 4, "0210").Exif(40960, 7, 4, "0100");
  b.Exif(37121, 7, 4, std::string("\x01\x02\x03\x00", 4));
  b.Exif(37500, 7, 9, std::string("Ab\x01\x00\xC8\x7F\x20z!", 9));
  b.Exif(37510, 7, 13, std::string("ASCII\0\0\0Hello", 13));
  b.Exif(41728, 7, 1, std::string("\x03", 1));
  b.Exif(41729, 7, 1, std::string("\x01", 1));
  b.Exif(40964, 2, 6, std::string("a\0b\xE9\0\0", 6));
  b.Exif(37383, 8, 1, b.U16(0xFFFF));  // SSHORT
  b.Exif(37384, 6, 1, "\x80");         // SBYTE
  b.Exif(37385, 1, 1, "\x07");
  const std::string bytes = b.Build();
  EXPECT_EQ(TextOf(bytes, 36864), "2.10");
  EXPECT_EQ(TextOf(bytes, 40960), "1.00");
  EXPECT_EQ(TextOf(bytes, 37121), "YCbCr");
  EXPECT_EQ(TextOf(bytes, 37500), "Ab\x7F z!");
  EXPECT_EQ(TextOf(bytes, 37510), "ASCIIHello");
  EXPECT_EQ(TextOf(bytes, 41728), "3");
  EXPECT_EQ(TextOf(bytes, 41729), "1");
  EXPECT_EQ(TextOf(bytes, 40964), "ab\xC3\xA9");  // Latin-1, NULs removed
  EXPECT_EQ(TextOf(bytes, 37383), "-32768");
  EXPECT_EQ(TextOf(bytes, 37384), "-1");
  EXPECT_EQ(TextOf(bytes, 37385), "7");
}

TEST_F(ExifReaderTest, DataBehindTheHeadComeOutShort) {
  ExifBlockBuilder b(true);
  b.Exif(37510, 7, 6000, std::string(6000, 'c'));
  const std::string bytes = b.Build();
  ASSERT_GT(bytes.size(), ExifReader::kHeadBytes);
  const std::string text = TextOf(bytes, 37510);
  EXPECT_EQ(reader_.status(), Status::kParsed);
  EXPECT_GT(text.size(), 3000u);
  EXPECT_LT(text.size(), 4096u);
}

TEST(ExifTranslationTest, KeysAndFormatTemplatesOfExifIni) {
  testing::TempDir dir;
  const auto ini = dir.WriteFile("exif.ini",
                                 "[Orientation]\n6 = Rotated right \n[FNumber]\nFormat=f/@X\n"
                                 "[Flash]\n1=Fired\nFormat=(@X)\n");
  ExifReader reader(MessageTable::Get(Language::kEnglish), {dir.path() / "none.ini", ini});
  ExifBlockBuilder b(true);
  b.First(274, 3, 1, b.U16(6)).First(37385, 3, 1, b.U16(1));
  b.Exif(33437, 5, 1, b.Rational(28, 10)).Exif(37383, 3, 1, b.U16(5));
  reader.ParseHead(b.Build());
  std::string text;
  reader.MetaInfo(274, text, true);
  EXPECT_EQ(text, "Rotated right");
  reader.MetaInfo(33437, text, true);
  EXPECT_EQ(text, "f/2.8");
  reader.MetaInfo(37385, text, true);
  EXPECT_EQ(text, "(Fired)");
  reader.MetaInfo(37383, text, true);
  EXPECT_EQ(text, "5");
}

}  // namespace
}  // namespace tarnwick
