// "copy", "move" and "rename-from-text" end to end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/cli_runner.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using testing::CliResult;
using testing::CliRunner;
using ::testing::HasSubstr;
using testing::ReadWholeFile;

class CliFileToolsTest : public ::testing::Test {
 protected:
  CliFileToolsTest() {
    for (const char* name : {"a.jpg", "b.jpg", "c.txt"}) cli_.dir().WriteFile(std::string("src/") + name, name);
    fs::create_directories(Path("dst"));
  }
  std::string Path(const std::string& relative) const {
    return (cli_.dir().path() / relative).string();
  }
  CliRunner cli_;
};

TEST_F(CliFileToolsTest, CopyAndMoveReportEachFailureAndNeverReplaceUnasked) {
  cli_.dir().WriteFile("dst/b.jpg", "older");
  CliResult r = cli_.Run({"copy", Path("dst"), Path("src/a.jpg"), Path("src/b.jpg")});
  EXPECT_EQ(r.exit_code, 1);
  EXPECT_THAT(r.err, HasSubstr(Path("src/b.jpg") + ": 58: File already exists"));
  EXPECT_THAT(r.err, HasSubstr("1 copied, 0 skipped, 1 failed"));
  EXPECT_EQ(ReadWholeFile(Path("dst/b.jpg")), "older");

  r = cli_.Run({"move", Path("dst"), "--from-list", Path("src"), "--select", "*.JPG", "--overwrite"});
  EXPECT_EQ(r.exit_code, 0) << r.err;
  EXPECT_EQ(ReadWholeFile(Path("dst/b.jpg")), "b.jpg");
  EXPECT_FALSE(fs::exists(Path("src/a.jpg")));
  EXPECT_TRUE(fs::exists(Path("src/c.txt")));
}

TEST_F(CliFileToolsTest, BadArgumentsExitTwoWithAReason) {
  EXPECT_EQ(cli_.Run({"copy", Path("nowhere"), Path("src/a.jpg")}).exit_code, 2);
  EXPECT_THAT(cli_.Run({"copy", Path("dst"), Path("src/none.jpg")}).err, HasSubstr("no such file"));
  EXPECT_THAT(cli_.Run({"copy", Path("dst"), Path("src/a.jpg"), "--shift", "+1d", "--shift", "-1h"})
                  .err,
              HasSubstr("all add or all subtract"));
  EXPECT_EQ(cli_.Run({"move", Path("dst"), Path("src/a.jpg"), "--date", "31.02.2020"}).exit_code, 2);
  cli_.dir().WriteFile("job.bat", "mine");
  EXPECT_THAT(cli_.Run({"copy", Path("dst"), Path("src/a.jpg"), "--batch", Path("job.bat")}).err,
              HasSubstr("exists: add --append"));
  EXPECT_EQ(ReadWholeFile(Path("job.bat")), "mine");
  EXPECT_TRUE(fs::exists(Path("src/a.jpg")));
}

TEST_F(CliFileToolsTest, ABatchOnlyJobWritesTheScriptAndTouchesNoFile) {
  const CliResult r = cli_.Run({"move", Path("dst"), Path("src/c.txt"), "--batch", Path("job.bat")});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  const std::string script = ReadWholeFile(Path("job.bat"));
  EXPECT_THAT(script, HasSubstr("\r\nmove \"" + Path("src/c.txt") + "\" \"" + Path("dst/c.txt") +
                                "\"\r\n"));
  EXPECT_TRUE(fs::exists(Path("src/c.txt")));
  EXPECT_TRUE(fs::is_empty(Path("dst")));
}

TEST_F(CliFileToolsTest, RenameFromTextRefusesABadFileAndUndoTakesTheNamesBack) {
  cli_.dir().WriteFile("bad.txt", "one\r\nt\two\r\n");
  CliResult r = cli_.Run({"rename-from-text", Path("bad.txt"), Path("src/a.jpg"), Path("src/b.jpg")});
  EXPECT_EQ(r.exit_code, 3);
  EXPECT_THAT(r.err, HasSubstr("Row 1, Char 2:\t-> \t [ASCII: 9]"));

  cli_.dir().WriteFile("names.txt", "Second\nFirst\n");
  r = cli_.Run({"rename-from-text", Path("names.txt"), Path("src/b.jpg"), Path("src/a.jpg")});
  EXPECT_EQ(r.exit_code, 1);  // not confirmed
  EXPECT_TRUE(fs::exists(Path("src/a.jpg")));
  r = cli_.Run({"rename-from-text", Path("names.txt"), Path("src/b.jpg"), Path("src/a.jpg"), "--yes"});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_EQ(ReadWholeFile(Path("src/Second.jpg")), "b.jpg");  // in the order named
  EXPECT_EQ(ReadWholeFile(Path("src/First.jpg")), "a.jpg");

  std::string batch;
  for (const auto& entry : fs::recursive_directory_iterator(cli_.data_home())) {
    if (entry.path().filename() == "UndoBatch.bat") batch = entry.path().string();
  }
  ASSERT_FALSE(batch.empty());
  r = cli_.Run({"undo", batch});
  EXPECT_EQ(r.exit_code, 0) << r.err;
  EXPECT_TRUE(fs::exists(Path("src/a.jpg")));
  EXPECT_TRUE(fs::exists(Path("src/b.jpg")));
}

}  // namespace
}  // namespace tarnwick
