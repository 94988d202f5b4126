// The program's own surface: help, version, and what a wrong call gets.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "cli/cli_runner.h"

namespace tarnwick {
namespace {

using testing::CliResult;
using testing::CliRunner;
using ::testing::HasSubstr;
using ::testing::StartsWith;

std::string FirstLine(const std::string& text) { return text.substr(0, text.find('\n')); }

TEST(CliUsageTest, VersionNamesProgramThenBuild) {
  const CliResult result = CliRunner().Run({"--version"});
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(FirstLine(result.out), "Tarnwick v2.97");
  const std::string second = result.out.substr(result.out.find('\n') + 1);
  EXPECT_THAT(second, StartsWith("build "));
  EXPECT_THAT(second, ::testing::MatchesRegex("build [^ ]+ \\([^)]+\\)\n"));
  EXPECT_EQ(result.err, "");
}

TEST(CliUsageTest, HelpExplainsEveryCommandAndTheExitCodes) {
  const CliRunner cli;
  const CliResult help = cli.Run({"--help"});
  EXPECT_EQ(help.exit_code, 0);
  EXPECT_EQ(help.err, "");
  for (const char* text :
       {"options get SECTION KEY [DEFAULT]", "options set SECTION KEY VALUE",
        "options list [SECTION]", "options reset", "expand EXPRESSION", "catalogue [--search TEXT]",
        "--version", "Exit codes:", "  0  ", "  2  ", "default answers", "--yes", "Ctrl-C"}) {
    EXPECT_THAT(help.out, HasSubstr(text));
  }
  EXPECT_EQ(cli.Run({"-h"}).out, help.out);
  EXPECT_EQ(cli.Run({"help"}).out, help.out);
}

TEST(CliUsageTest, CommandHelpExplainsArguments) {
  const CliRunner cli;
  const CliResult help = cli.Run({"options", "--help"});
  EXPECT_EQ(help.exit_code, 0);
  EXPECT_THAT(help.out, HasSubstr("SECTION  Options, AutoUpdate, ManualRename, Playlist or XML"));
  EXPECT_THAT(help.out, HasSubstr("Exit codes:"));
  EXPECT_EQ(cli.Run({"options", "-h"}).out, help.out);
  EXPECT_EQ(cli.Run({"help", "options"}).out, help.out);
  EXPECT_EQ(cli.Run({"options", "get", "--help"}).out, help.out);
}

// Every wrong call: exit code 2, nothing on stdout, the problem named on
// stderr with a pointer to the help.
struct WrongCall {
  std::vector<std::string> args;
  std::string named;
};

class CliWrongCallTest : public ::testing::TestWithParam<WrongCall> {};

TEST_P(CliWrongCallTest, ExitsTwoWithAMessage) {
  const CliResult result = CliRunner().Run(GetParam().args);
  EXPECT_EQ(result.exit_code, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, StartsWith("tarnwick-cli: "));
  EXPECT_THAT(result.err, HasSubstr(GetParam().named));
  EXPECT_THAT(result.err, HasSubstr("--help"));
}

INSTANTIATE_TEST_SUITE_P(
    Calls, CliWrongCallTest,
    ::testing::Values(WrongCall{{}, "no command given"},
                      WrongCall{{"frobnicate"}, "unknown command 'frobnicate'"},
                      WrongCall{{"--frobnicate"}, "unknown option '--frobnicate'"},
                      WrongCall{{"--version", "x"}, "--version takes no arguments"},
                      WrongCall{{"help", "frobnicate"}, "no command named 'frobnicate'"},
                      WrongCall{{"options"}, "get, set, list, reset or path"},
                      WrongCall{{"options", "fetch"}, "unknown options action 'fetch'"},
                      WrongCall{{"options", "get", "Options"}, "wrong number of arguments"},
                      WrongCall{{"options", "get", "Options", "A", "B", "C"}, "usage: options get"},
                      WrongCall{{"options", "set", "Options", "A"}, "usage: options set"},
                      WrongCall{{"options", "list", "Options", "XML"}, "usage: options list"},
                      WrongCall{{"options", "reset", "now"}, "usage: options reset"},
                      WrongCall{{"options", "get", "Options", "", "d"}, "KEY must not be empty"},
                      WrongCall{{"options", "get", "Registry", "Top"},
                                "unknown section 'Registry'; the sections are Options, "
                                "AutoUpdate, ManualRename, Playlist and XML"},
                      WrongCall{{"options", "set", "Nope", "Top", "1"}, "unknown section 'Nope'"},
                      WrongCall{{"options", "list", "Nope"}, "unknown section 'Nope'"}));

}  // namespace
}  // namespace tarnwick
