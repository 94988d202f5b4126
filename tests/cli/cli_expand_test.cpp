// "expand" end to end: placeholders of one file through the real binary.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "cli/cli_runner.h"

namespace tarnwick {
namespace {

using testing::CliResult;
using testing::CliRunner;
using ::testing::HasSubstr;

class CliExpandTest : public ::testing::Test {
 protected:
  CliExpandTest() {
    folder_ = cli_.dir().path() / "Holiday";
    std::filesystem::create_directories(folder_);
    file_ = folder_ / "beach.txt";
    std::ofstream(file_) << "sand";
  }

  std::string Expand(std::vector<std::string> args) const {
    args.insert(args.begin(), "expand");
    const CliResult result = cli_.Run(args);
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return result.out;
  }

  CliRunner cli_;
  std::filesystem::path folder_;
  std::filesystem::path file_;
};

TEST_F(CliExpandTest, FileDateCounterFolderAndCasingTokens) {
  EXPECT_EQ(Expand({"{{yyyy}}-{{mm}}-{{dd}}_{{count}}", "--file", file_.string(), "--date",
                    "08.03.2004 10:15:05", "--start", "007", "--count", "12"}),
            "2004-03-08_012\n");
  EXPECT_EQ(Expand({"{{parentfolder}}/{{uppercasing}}abc", "--file", file_.string()}),
            "HOLIDAY/ABC\n");  // the folder is expanded before the casing acts
}

TEST_F(CliExpandTest, ClockTokensFollowTheFixedMoment) {
  EXPECT_EQ(Expand({"{{cdate.}} {{ctime_ss}}", "--now", "2026-11-22 21:43:34"}), "22.11.2026 34\n");
}

TEST_F(CliExpandTest, DateFormatOptionDecidesHowTheFileDateIsRead) {
  ASSERT_EQ(cli_.Run({"options", "set", "Options", "DateFormat", "mm.dd.yyyy"}).exit_code, 0);
  EXPECT_EQ(Expand({"{{dd}}/{{mm}}", "--file", file_.string(), "--date", "03.08.2004 10:15:05"}),
            "08/03\n");
}

TEST_F(CliExpandTest, TextWithoutTokensAndUnknownTokensStayAsTyped) {
  EXPECT_EQ(Expand({"plain name"}), "plain name\n");
  EXPECT_EQ(Expand({"{{mm-dd-yyyy}}", "--date", "08.03.2004"}), "{{mm-dd-yyyy}}\n");
}

TEST_F(CliExpandTest, WrongCallsAreUsageErrors) {
  for (const std::vector<std::string>& args : {std::vector<std::string>{"expand"},
                                               {"expand", "a", "b"},
                                               {"expand", "x", "--count"},
                                               {"expand", "x", "--count", "twelve"},
                                               {"expand", "x", "--now", "yesterday"},
                                               {"expand", "x", "--bogus", "1"}}) {
    const CliResult result = cli_.Run(args);
    EXPECT_EQ(result.exit_code, 2) << args.back();
    EXPECT_THAT(result.err, HasSubstr("tarnwick-cli"));
    EXPECT_EQ(result.out, "");
  }
}

}  // namespace
}  // namespace tarnwick
