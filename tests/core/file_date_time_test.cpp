#include "core/file_date_time.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <time.h>

#include <map>
#include <string>

#include "persist/option_store.h"
#include "placeholders/media_provider.h"
#include "platform/file_times.h"
#include "shell/message_table.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using std::chrono::nanoseconds;
using std::chrono::seconds;

// EXIF dates by file name, as the media reader would give them.
class FakeExif : public MediaInfoProvider {
 public:
  std::string ExifValue(const std::filesystem::path& path, int tag) const override {
    if (tag != kExifDateOriginalTag) return {};
    const auto it = dates.find(path.filename().string());
    return it == dates.end() ? std::string() : it->second;
  }
  std::map<std::string, std::string> dates;
};

FileTime At(long long s, long ns = 0) { return FileTime(seconds(s) + nanoseconds(ns)); }

// 08.03.2004 10:15:05 UTC.
constexpr long long kMarch8 = 1078740905;

class FileDateTimeTest : public ::testing::Test {
 protected:
  FileDateTimeTest() : options_(dir_.path() / "options.ini") { SetZone("UTC0"); }
  ~FileDateTimeTest() override {
    if (old_zone_) {
      setenv("TZ", old_zone_->c_str(), 1);
    } else {
      unsetenv("TZ");
    }
    tzset();
  }

  void SetZone(const char* zone) {
    if (!zone_saved_) {
      const char* tz = getenv("TZ");
      if (tz != nullptr) old_zone_ = tz;
      zone_saved_ = true;
    }
    setenv("TZ", zone, 1);
    tzset();
  }

  // A file whose stamps carry distinct fractions of a second.
  std::filesystem::path MakeFile(const std::string& name) {
    const auto path = dir_.WriteFile(name, "x");
    EXPECT_TRUE(SetFileTimes(path, At(1000000000, 123456789), At(1100000000, 987654321)).ok());
    return path;
  }

  FileTimes Times(const std::filesystem::path& path) { return GetFileTimes(path).value(); }

  FileDateEnv Env() {
    return {options_, interaction_, MessageTable::Get(Language::kEnglish), exif_};
  }

  testing::TempDir dir_;
  OptionStore options_;
  ScriptedInteraction interaction_;
  FakeExif exif_;
  std::optional<std::string> old_zone_;
  bool zone_saved_ = false;
};

TEST_F(FileDateTimeTest, KeepOldSetsBothStampsAndKeepsTheirFractions) {
  const auto file = MakeFile("a.txt");
  ASSERT_TRUE(ChangeFileDateAndTimeKeepOld(Env(), file, "08.03.2004 10:15:05").ok());
  const FileTimes times = Times(file);
  EXPECT_EQ(times.last_write, At(kMarch8, 123456789));
  EXPECT_EQ(times.last_access, At(kMarch8, 987654321));
  EXPECT_TRUE(interaction_.asked().empty());
}

TEST_F(FileDateTimeTest, KeepOldReadsEachKnownLayoutInAnyCase) {
  const auto file = MakeFile("a.txt");
  for (const auto& [format, text] : {std::pair{"YYYY.MM.DD", "2004.03.08 10:15:05"},
                                     std::pair{"mm.dd.yyyy", "03.08.2004 10:15:05"},
                                     std::pair{"Dd.Mm.YyYy", "08.03.2004 10:15:05"}}) {
    ASSERT_TRUE(SetFileTimes(file, At(0), At(0)).ok());
    options_.SaveOption("DateFormat", "Options", format);
    ASSERT_TRUE(ChangeFileDateAndTimeKeepOld(Env(), file, text).ok()) << format;
    EXPECT_EQ(Times(file).last_write, At(kMarch8)) << format;
  }
}

TEST_F(FileDateTimeTest, KeepOldWorksInLocalTime) {
  SetZone("CET-1");
  const auto file = MakeFile("a.txt");
  ASSERT_TRUE(ChangeFileDateAndTimeKeepOld(Env(), file, "08.03.2004 10:15:05").ok());
  EXPECT_EQ(Times(file).last_write, At(kMarch8 - 3600, 123456789));
}

TEST_F(FileDateTimeTest, KeepOldWithAnotherFormatDoesNothingSilently) {
  const auto file = MakeFile("a.txt");
  options_.SaveOption("DateFormat", "Options", "dd-mm-yyyy");
  EXPECT_TRUE(ChangeFileDateAndTimeKeepOld(Env(), file, "08-03-2004 10:15:05").ok());
  EXPECT_EQ(Times(file).last_write, At(1000000000, 123456789));
  EXPECT_TRUE(interaction_.asked().empty());
}

TEST_F(FileDateTimeTest, KeepOldFailsOnTextThatHoldsNoNumbers) {
  const auto file = MakeFile("a.txt");
  for (const char* text : {"", "08.03.2004", "ab.cd.efgh 10:15:05"}) {
    const FileStatus status = ChangeFileDateAndTimeKeepOld(Env(), file, text);
    EXPECT_EQ(status.number, 13) << text;
  }
  EXPECT_EQ(Times(file).last_write, At(1000000000, 123456789));
  EXPECT_TRUE(interaction_.asked().empty());
}

TEST_F(FileDateTimeTest, MissingFileIsLeftWithoutAWord) {
  EXPECT_EQ(ChangeFileDateAndTime(Env(), dir_.path() / "gone", 8, 3, 2004, 10, 15, 5).number, 53);
  EXPECT_TRUE(interaction_.asked().empty());
}

TEST_F(FileDateTimeTest, ImpossibleDateIsReportedAndChangesNothing) {
  const auto file = MakeFile("a.txt");
  interaction_.SetDefault(QuestionKind::kMessageBox, Answer::kOk);
  EXPECT_FALSE(ChangeFileDateAndTime(Env(), file, 31, 2, 2004, 10, 15, 5).ok());
  ASSERT_EQ(interaction_.asked().size(), 1u);
  EXPECT_EQ(interaction_.asked()[0].text.rfind("Error in ChangeFileDateAndTime\r\nError #5", 0),
            0u);
  EXPECT_EQ(Times(file).last_write, At(1000000000, 123456789));
}

TEST_F(FileDateTimeTest, JpgTakesTheExifDateOfOrigin) {
  const auto jpg = MakeFile("a.JPG");
  const auto jpeg = MakeFile("b.jpeg");
  const auto png = MakeFile("c.png");
  const auto bare = MakeFile("d.jpg");
  for (const char* name : {"a.JPG", "b.jpeg", "c.png"}) exif_.dates[name] = "2004:03:08 10:15:05";
  for (const auto& file : {jpg, jpeg, png, bare}) {
    EXPECT_TRUE(ChangeFileDateAndTimeJPG(Env(), file).ok());
  }
  EXPECT_EQ(Times(jpg).last_write, At(kMarch8, 123456789));
  EXPECT_EQ(Times(jpeg).last_access, At(kMarch8, 987654321));
  EXPECT_EQ(Times(png).last_write, At(1000000000, 123456789));
  EXPECT_EQ(Times(bare).last_write, At(1000000000, 123456789));
}

TEST_F(FileDateTimeTest, JpgWithABrokenExifDateFails) {
  const auto file = MakeFile("a.jpg");
  exif_.dates["a.jpg"] = "unknown";
  EXPECT_EQ(ChangeFileDateAndTimeJPG(Env(), file).number, 13);
}

TEST_F(FileDateTimeTest, CreatedAndAccessedReadLocalTime) {
  const auto file = MakeFile("a.txt");
  ASSERT_TRUE(SetFileTimes(file, At(kMarch8), At(kMarch8 + 61)).ok());
  const FileResult<vb::DateTime> accessed = FileDateAccessed(file);
  ASSERT_TRUE(accessed.ok());
  EXPECT_EQ(accessed.value(), (vb::DateTime{2004, 3, 8, 10, 16, 6}));
  ASSERT_TRUE(FileDateCreated(file).ok());
  EXPECT_EQ(FileDateCreated(dir_.path() / "gone").status().number, 53);
  EXPECT_EQ(FileDateAccessed(dir_.path() / "gone").status().number, 53);
}

TEST(FileDateOffsetTest, ShiftsUnitByUnitInCalendarTerms) {
  EXPECT_EQ(AddDateOffset(true, "31.01.2004 10:00:00", 0, 1, 0, "dd.mm.yyyy"),
            "29.02.2004 10:00:00");
  // Days go first: 30 January, a day on, a month on.
  EXPECT_EQ(AddDateOffset(true, "30.01.2004 10:00:00", 1, 1, 0, "dd.mm.yyyy"),
            "29.02.2004 10:00:00");
  EXPECT_EQ(AddDateOffset(false, "2004.03.01 10:00:00", 1, 0, 0, "yyyy.mm.dd"),
            "2004.02.29 10:00:00");
  EXPECT_EQ(AddTimeOffset(false, "01.01.2004 00:30:00", 1, 0, 31, "dd.mm.yyyy"),
            "31.12.2003 23:29:29");
  // Amounts of 0 and below are left out.
  EXPECT_EQ(AddTimeOffset(true, "01.01.2004 00:30:00", -5, 0, 0, "dd.mm.yyyy"),
            "01.01.2004 00:30:00");
  EXPECT_EQ(AddTimeOffset(true, "not a date", 1, 0, 0, "dd.mm.yyyy"), std::nullopt);
  EXPECT_EQ(AddDateOffset(true, "31.12.9999 10:00:00", 1, 0, 0, "dd.mm.yyyy"), std::nullopt);
}

}  // namespace
}  // namespace tarnwick
