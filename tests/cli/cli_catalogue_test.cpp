// "catalogue" end to end: the placeholder list in both languages and its search.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "cli/cli_runner.h"

namespace tarnwick {
namespace {

using testing::CliResult;
using testing::CliRunner;
using ::testing::HasSubstr;
using ::testing::StartsWith;

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

TEST(CliCatalogueTest, ListsEveryRowWithSampleAndDescription) {
  CliRunner cli;
  const CliResult result = cli.Run({"catalogue", "--language", "en"});
  ASSERT_EQ(result.exit_code, 0) << result.err;
  const std::vector<std::string> lines = Lines(result.out);
  EXPECT_GT(lines.size(), 200u);
  for (const std::string& line : lines) {
    EXPECT_THAT(line, StartsWith("{{")) << line;
    EXPECT_EQ(std::count(line.begin(), line.end(), '\t'), 2) << line;
  }
  EXPECT_THAT(result.out, HasSubstr("{{random_number_byFilecount}}"));
  EXPECT_THAT(result.out, HasSubstr("Random number by selection count"));
}

TEST(CliCatalogueTest, SearchNarrowsLikeThePicker) {
  CliRunner cli;
  const CliResult prefix = cli.Run({"catalogue", "--search", "random_number", "--language", "en"});
  ASSERT_EQ(prefix.exit_code, 0) << prefix.err;
  for (const std::string& line : Lines(prefix.out)) {
    EXPECT_THAT(line, StartsWith("{{random_number")) << line;
  }
  const CliResult anywhere =
      cli.Run({"catalogue", "--search", "*selection count", "--aligned", "--language", "en"});
  ASSERT_EQ(anywhere.exit_code, 0) << anywhere.err;
  EXPECT_THAT(anywhere.out, HasSubstr("{{random_number_byFilecount}}"));

  const CliResult none = cli.Run({"catalogue", "--search", "*no such placeholder anywhere"});
  EXPECT_EQ(none.exit_code, 1);
  EXPECT_THAT(none.err, HasSubstr("no placeholder matches"));
}

// The rows without the current clock's samples, which move between two runs.
std::string WithoutClockRows(const std::string& text) {
  std::string kept;
  for (const std::string& line : Lines(text)) {
    if (line.starts_with("{{ctime") || line.starts_with("{{cdate")) continue;
    kept += line + "\n";
  }
  return kept;
}

TEST(CliCatalogueTest, LanguageFollowsTheSystemUnlessGiven) {
  CliRunner cli;
  cli.SetEnv("LC_ALL", "de_DE.UTF-8");
  const std::string german = cli.Run({"catalogue"}).out;
  const std::string english = cli.Run({"catalogue", "--language", "en"}).out;
  EXPECT_NE(german, english);
  EXPECT_EQ(Lines(german).size(), Lines(english).size());
  EXPECT_EQ(WithoutClockRows(cli.Run({"catalogue", "--language", "de"}).out),
            WithoutClockRows(german));
}

TEST(CliCatalogueTest, WrongCallsAreUsageErrors) {
  CliRunner cli;
  for (const std::vector<std::string>& args : {std::vector<std::string>{"catalogue", "--language"},
                                               {"catalogue", "--language", "fr"},
                                               {"catalogue", "random"},
                                               {"catalogue", "--search"},
                                               {"catalogue", "--wide"}}) {
    const CliResult result = cli.Run(args);
    EXPECT_EQ(result.exit_code, 2) << args.back();
    EXPECT_EQ(result.out, "");
  }
}

}  // namespace
}  // namespace tarnwick
