// ChangeFileDateAndTimeJPG with our EXIF reader on real pictures.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <time.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "core/file_date_time.h"
#include "media/media_readers.h"
#include "persist/option_store.h"
#include "platform/file_times.h"
#include "shell/message_table.h"
#include "shell/scripted_interaction.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

std::filesystem::path Fixture(const std::string& name) {
  const char* source = std::getenv("TW_SOURCE_DIR");
  return std::filesystem::path(source ? source : ".") / "tests/fixtures/exif" / name;
}

TEST(ExifFileDateTest, PicturesTakeTheirDateOfOriginAndOthersStayAsTheyAre) {
  const char* old_zone = getenv("TZ");
  const std::string saved = old_zone ? old_zone : "";
  setenv("TZ", "UTC0", 1);
  tzset();
  testing::TempDir dir;
  OptionStore options(dir.path() / "options.ini");
  ScriptedInteraction interaction;
  const MediaReaders media;
  const FileDateEnv env{options, interaction, MessageTable::Get(Language::kEnglish), media};
  const auto copy = [&](const std::string& from, const std::string& to) {
    std::filesystem::copy_file(Fixture(from), dir.path() / to);
    return dir.path() / to;
  };
  const auto full = copy("full_motorola.jpg", "full.JPEG");
  const auto none = copy("no_exif.jpg", "none.jpg");
  const auto other = copy("full_intel.jpg", "full.png");
  const FileTime before = GetFileTimes(none).value().last_write;
  for (const auto& file : {full, none, other})
    EXPECT_TRUE(ChangeFileDateAndTimeJPG(env, file).ok());
  // 12.04.2004 11:38:00 UTC.
  EXPECT_EQ(std::chrono::duration_cast<std::chrono::seconds>(
                GetFileTimes(full).value().last_write.time_since_epoch())
                .count(),
            1081769880);
  EXPECT_EQ(GetFileTimes(none).value().last_write, before);
  EXPECT_NE(std::chrono::duration_cast<std::chrono::seconds>(
                GetFileTimes(other).value().last_write.time_since_epoch())
                .count(),
            1081769880);
  if (old_zone) {
    setenv("TZ", saved.c_str(), 1);
  } else {
    unsetenv("TZ");
  }
  tzset();
}

}  // namespace
}  // namespace tarnwick
