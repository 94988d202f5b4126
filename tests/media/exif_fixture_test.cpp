// The EXIF reader on pictures written by exiftool and exiv2, against what
// exiftool reported of them (tests/fixtures/exif/manifest.tsv).
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

#include "base/text.h"
#include "media/exif_reader.h"
#include "media/exif_value.h"
#include "media/media_fixtures.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

using testing::FixtureFolder;
using Status = ExifReader::Status;

struct Expected {
  std::string order;
  std::map<int, std::string> values;  // tag -> exiftool's number or text
};

std::map<std::string, Expected> Manifest() {
  std::map<std::string, Expected> files;
  for (const auto& row : testing::ReadManifest(FixtureFolder("exif") / "manifest.tsv")) {
    if (row.size() < 5) continue;
    if (row[1] == "File") {
      files[row[0]].order = row[4];
    } else {
      files[row[0]].values[std::stoi(row[2])] = row[4];
    }
  }
  return files;
}

double Number(const std::string& text) { return std::stod(text); }

// exiftool's numbers of a multi-value field, each shown as our text shows
// them ("0.3127 0.329" as "0.313/0.329").
std::string JoinedThousandths(const std::string& values) {
  std::string out;
  for (const std::string& part : vb::Split(values, " ")) {
    char text[32];
    std::snprintf(text, sizeof text, "%.3f", Number(part));
    out += (out.empty() ? "" : "/") + std::string(text);
  }
  return out;
}

std::string OneDecimal(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", value);
  return text;
}

// What our reader shows for a value exiftool reports with -n.
std::string OurTextFor(int tag, const std::string& tool) {
  switch (tag) {
    case 33434:  // ExposureTime in seconds; we show its reciprocal
      return std::to_string(std::lround(1 / Number(tool)));
    case 37377:  // ShutterSpeedValue: exiftool gives seconds, we 2^APEX
      return std::to_string(std::lround(1 / Number(tool)));
    case 36864:
    case 40960:  // versions "0221" -> "2.21"
      return std::to_string(std::stoi(tool.substr(0, 2))) + "." + tool.substr(2);
    case 37121: {  // "1 2 3 0" -> "YCbCr"
      static const char* kNames[] = {"", "Y", "Cb", "Cr", "R", "G", "B"};
      std::string out;
      for (const std::string& part : vb::Split(tool, " ")) out += kNames[std::stoi(part)];
      return out;
    }
    case 37378:
    case 37381:  // apertures: exiftool shows the F number, so do we
    case 33437:
    case 282:
    case 283:
    case 37382:
    case 37386:
    case 41486:
    case 41487:
      return OneDecimal(Number(tool));
    case 37380:  // ExposureBiasValue
      return OneDecimal(Number(tool));
    case 318:
    case 319:
    case 529:
    case 532:
      return JoinedThousandths(tool);
    case 37510:  // UserComment: the character code stays in front
      return "ASCII" + tool;
    case 34855:  // ISO as SHORT
    default:
      return tool;
  }
}

TEST(ExifFixtureTest, PicturesOfBothByteOrdersReadAsExiftoolReportsThem) {
  const auto manifest = Manifest();
  ASSERT_GE(manifest.size(), 6u);
  ExifReader reader(MessageTable::Get(Language::kEnglish), {});
  int compared = 0;
  for (const std::string name : {"full_intel.jpg", "full_motorola.jpg"}) {
    SCOPED_TRACE(name);
    const Expected& expected = manifest.at(name);
    reader.SetImageFile(FixtureFolder("exif") / name);
    ASSERT_EQ(reader.status(), Status::kParsed);
    EXPECT_EQ(reader.IntelByteAlignment(), expected.order == "II");
    for (const auto& [tag, tool] : expected.values) {
      // Rationals exiftool writes as fractions of its own choosing.
      if (tag == 37122 || tag == 37379 || tag == 41493 || tag == 41730) continue;
      std::string text;
      reader.MetaInfo(tag, text, false);
      EXPECT_EQ(text, OurTextFor(tag, tool)) << "tag " << tag;
      ++compared;
    }
    std::string text;
    reader.MetaInfo(37500, text, true);
    EXPECT_EQ(text, "HelloWorld");  // the bytes exiv2 wrote, outside 32..127 dropped
    reader.MetaInfo(34665, text, true);
    EXPECT_NE(text, "n/a");
    reader.MetaInfo(40965, text, true);
    EXPECT_NE(text, "n/a");
  }
  EXPECT_EQ(compared, 94);  // 47 tags of each file
}

TEST(ExifFixtureTest, IntelAndMotorolaListTheSameTexts) {
  ExifReader intel(MessageTable::Get(Language::kEnglish), {});
  ExifReader motorola(MessageTable::Get(Language::kEnglish), {});
  for (const auto& [a, b] : {std::pair{"full_intel.jpg", "full_motorola.jpg"},
                             std::pair{"negative_intel.jpg", "negative_motorola.jpg"}}) {
    intel.SetImageFile(FixtureFolder("exif") / a);
    motorola.SetImageFile(FixtureFolder("exif") / b);
    EXPECT_EQ(intel.ListInfo(), motorola.ListInfo());
    EXPECT_TRUE(intel.IntelByteAlignment());
    EXPECT_FALSE(motorola.IntelByteAlignment());
  }
}

TEST(ExifFixtureTest, NegativeRationalsLateBlocksAndMissingBlocks) {
  ExifReader reader(MessageTable::Get(Language::kEnglish), {});
  reader.SetImageFile(FixtureFolder("exif") / "negative_motorola.jpg");
  ASSERT_EQ(reader.status(), Status::kParsed);
  std::string text;
  reader.MetaInfo(37380, text, true);
  EXPECT_EQ(text, "-715827882.7");  // -1/3 through the mirrored sign
  reader.MetaInfo(37379, text, true);
  EXPECT_EQ(text, "-2147483644/2");  // -5/2
  reader.SetImageFile(FixtureFolder("exif") / "late_exif.jpg");
  EXPECT_EQ(reader.status(), Status::kNoExif);
  reader.SetImageFile(FixtureFolder("exif") / "no_exif.jpg");
  EXPECT_EQ(reader.status(), Status::kNoExif);
  reader.SetImageFile(FixtureFolder("exif") / "ifd0_only.jpg");
  EXPECT_EQ(reader.status(), Status::kFailed);
}

TEST(ExifValueTest, TokenValuesAndTheDateOfOrigin) {
  const auto folder = FixtureFolder("exif");
  EXPECT_EQ(ExifTagValue(folder / "full_intel.jpg", 36867), "2004:04:12 11:38:00");
  EXPECT_EQ(ExifTagValue(folder / "full_intel.jpg", 272), "TW-16");
  EXPECT_EQ(ExifTagValue(folder / "negative_intel.jpg", 272), "");  // absent tag
  EXPECT_EQ(ExifTagValue(folder / "no_exif.jpg", 36867), "");
  EXPECT_EQ(ExifTagValue(folder / "missing.jpg", 36867), "");
  const auto date = ExifOriginalDate(folder / "negative_motorola.jpg");
  ASSERT_TRUE(date);
  EXPECT_EQ(date->year, 2010);
  EXPECT_EQ(date->month, 12);
  EXPECT_EQ(date->second, 58);
  EXPECT_FALSE(ExifOriginalDate(folder / "no_exif.jpg"));
  EXPECT_FALSE(ParseExifDateTime("2004:02:30 10:00:00"));
  EXPECT_FALSE(ParseExifDateTime("2004:04:12 24:00:00"));
  EXPECT_FALSE(ParseExifDateTime("    :  :     :  :  "));
  EXPECT_TRUE(ParseExifDateTime("2004:02:29 23:59:59"));
}

}  // namespace
}  // namespace tarnwick
