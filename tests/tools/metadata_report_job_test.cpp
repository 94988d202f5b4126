// The metadata reports as tool jobs: their file, the log entry, Esc.
#include <gmock/gmock.h>

#include <filesystem>

#include "core/run_test_fixture.h"
#include "platform/files.h"
#include "tools/metadata_report_job.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

class MetadataReportJobTest : public RunTest {
 protected:
  MetadataReportJobTest() {
    SetOption("LogOnlyRename", "0");
    fs::copy_file(fs::path(TW_FIXTURE_DIR) / "mp3" / "v1_track.mp3", files() / "a.mp3");
    AddFile("b.txt", "no tags");
    AddFile("c.txt", "no tags either");
    Fill();
  }
  RenameRunEnv Env() { return {app, settings, list, options, interaction, messages, clock, log_undo}; }
  std::string Report() const { return ReadWholeFile(dir.path() / "report.txt"); }
  std::string ReportPath() const { return (dir.path() / "report.txt").string(); }
};

TEST_F(MetadataReportJobTest, OneLineAFileAndTheMenuInTheLog) {
  const ToolJobResult result = SaveMetadataReport(Env(), MetadataReport::kMp3, ReportPath());
  EXPECT_EQ(result.done, 3);
  const std::string report = Report();
  EXPECT_THAT(report, ::testing::StartsWith("Filename;Size;Path;Album;Artist;"));
  EXPECT_THAT(report, HasSubstr("a.mp3;"));
  EXPECT_THAT(report, HasSubstr(";Lame Album;Lame Artist;n/a;"));
  EXPECT_THAT(report, HasSubstr("b.txt;7 bytes;" + files().string() + "\r\n"));
  EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 4);
  EXPECT_THAT(Log(), HasSubstr("mnuSaveMP3InfosToFile"));
  EXPECT_EQ(SaveMetadataReport(Env(), MetadataReport::kExif, ReportPath()).done, 3);
  EXPECT_THAT(Report(), HasSubstr("b.txt;7 bytes;" + files().string() + ";"));
}

TEST_F(MetadataReportJobTest, EscKeepsTheLinesMadeAndAFailedWriteIsSaid) {
  interaction.PressCancelAtPoll(2);
  const ToolJobResult result = SaveMetadataReport(Env(), MetadataReport::kMp3, ReportPath());
  EXPECT_TRUE(result.cancelled);
  const std::string partial = Report();
  EXPECT_EQ(std::count(partial.begin(), partial.end(), '\n'), 2);
  const std::string nowhere = (dir.path() / "no" / "such" / "r.txt").string();
  const ToolJobResult failed = SaveMetadataReport(Env(), MetadataReport::kMp3, nowhere);
  EXPECT_EQ(failed.failed, 1);
  EXPECT_TRUE(WasAsked("Error"));
}

}  // namespace
}  // namespace tarnwick::testing
