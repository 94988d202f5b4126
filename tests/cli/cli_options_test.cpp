// "options" end to end: the real binary against a private options file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "cli/cli_runner.h"
#include "persist/option_store.h"

namespace tarnwick {
namespace {

using testing::CliResult;
using testing::CliRunner;
using ::testing::HasSubstr;
using testing::ReadWholeFile;

class CliOptionsTest : public ::testing::Test {
 protected:
  // Runs a call that must succeed and returns its stdout.
  std::string Ok(std::vector<std::string> args) const {
    const CliResult result = cli_.Run(args);
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return result.out;
  }
  OptionStore Store() const { return OptionStore(cli_.options_file()); }

  CliRunner cli_;
};

TEST_F(CliOptionsTest, OneBlankIsAValue) {
  EXPECT_EQ(Ok({"options", "set", "Options", "IllegalCharReplacer", " "}), "");
  EXPECT_EQ(Ok({"options", "get", "Options", "IllegalCharReplacer", "x"}), " \n");
}

TEST_F(CliOptionsTest, EmptyValueReadsAsTheDefault) {
  Ok({"options", "set", "Options", "X", ""});
  EXPECT_EQ(Ok({"options", "get", "Options", "X", "dflt"}), "dflt\n");
  EXPECT_EQ(Ok({"options", "get", "Options", "X"}), "\n");
  EXPECT_EQ(Ok({"options", "get", "Options", "NeverSet"}), "\n");
}

TEST_F(CliOptionsTest, ValuesArriveExactlyAndAreSharedWithTheStore) {
  const std::string value = "  two\nlines = \"quoted\" ;# [x] \\ \xff ";
  Ok({"options", "set", "Options", "Nasty", value});
  EXPECT_EQ(Ok({"options", "get", "Options", "Nasty"}), value + "\n");
  EXPECT_EQ(Store().GetOption("Nasty", "Options", ""), value);
  // An argument that looks like an option is a value once the section is given.
  Ok({"options", "set", "Options", "Dash", "--help"});
  EXPECT_EQ(Ok({"options", "get", "Options", "Dash"}), "--help\n");
  // A change made by the program is read by the command at once.
  Store().SaveOption("Top", "Options", "321");
  EXPECT_EQ(Ok({"options", "get", "Options", "Top", "200"}), "321\n");
}

TEST_F(CliOptionsTest, SectionsAreFoundWithoutRegardToCaseAndStoredInTheirSpelling) {
  Ok({"options", "set", "manualrename", "SelectAll", "1"});
  Ok({"options", "set", "xml", "setName", "0"});
  EXPECT_EQ(Ok({"options", "get", "MANUALRENAME", "selectall"}), "1\n");
  EXPECT_EQ(ReadWholeFile(cli_.options_file()),
            "[ManualRename]\nSelectAll=1\n\n[XML]\nsetName=0\n");
}

TEST_F(CliOptionsTest, ListShowsSectionsAndEscapesLineBreaks) {
  EXPECT_EQ(Ok({"options", "list"}), "");
  Ok({"options", "set", "Options", "Top", "100"});
  Ok({"options", "set", "Options", "Empty", ""});
  Ok({"options", "set", "Options", "Multi", "a\nb\r\nc"});
  Ok({"options", "set", "Playlist", "StartDir", "/music"});
  EXPECT_EQ(Ok({"options", "list"}),
            "[Options]\nTop=100\nMulti=\"a\\nb\\r\\nc\"\n\n[Playlist]\nStartDir=/music\n");
  EXPECT_EQ(Ok({"options", "list", "playlist"}), "[Playlist]\nStartDir=/music\n");
  EXPECT_EQ(Ok({"options", "list", "AutoUpdate"}), "[AutoUpdate]\n");
}

TEST_F(CliOptionsTest, ResetDeletesOptionsAndNothingElse) {
  Ok({"options", "set", "Options", "ResetPath", "1"});
  Ok({"options", "set", "AutoUpdate", "LastCheck", "n/a"});
  EXPECT_THAT(Ok({"options", "reset"}), HasSubstr("section Options deleted"));
  EXPECT_EQ(Ok({"options", "get", "Options", "ResetPath", "0"}), "0\n");
  EXPECT_EQ(Ok({"options", "get", "AutoUpdate", "LastCheck"}), "n/a\n");
  EXPECT_EQ(Ok({"options", "list"}), "[AutoUpdate]\nLastCheck=n/a\n");
}

TEST_F(CliOptionsTest, PathNamesTheFileUnderXdgConfigHome) {
  EXPECT_EQ(Ok({"options", "path"}), cli_.options_file().string() + "\n");
}

TEST_F(CliOptionsTest, UnwritableOptionsFileExitsOne) {
  const auto not_a_folder = cli_.dir().WriteFile("plain-file", "x");
  cli_.SetEnv("XDG_CONFIG_HOME", not_a_folder.string());
  const CliResult set = cli_.Run({"options", "set", "Options", "Top", "1"});
  EXPECT_EQ(set.exit_code, 1);
  EXPECT_THAT(set.err, HasSubstr("could not write the options file"));
  EXPECT_EQ(cli_.Run({"options", "reset"}).exit_code, 1);
  // Reading still works and gives the default.
  EXPECT_EQ(Ok({"options", "get", "Options", "Top", "200"}), "200\n");
}

}  // namespace
}  // namespace tarnwick
