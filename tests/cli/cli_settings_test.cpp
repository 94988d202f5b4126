// "settings write/show", "run SETTINGS.twr" and "tarnwick SETTINGS.twr -d" end to end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/cli_runner.h"
#include "persist/option_store.h"

namespace tarnwick {
namespace {

using testing::CliResult;
using testing::CliRunner;
using ::testing::HasSubstr;

class CliSettingsTest : public ::testing::Test {
 protected:
  CliSettingsTest() {
    std::filesystem::create_directories(work());
    cli_.SetWorkingDirectory(work());
  }
  std::filesystem::path work() const { return cli_.dir().path() / "work"; }
  std::string Show(const std::string& file) const {
    const CliResult result = cli_.Run({"settings", "show", file});
    EXPECT_EQ(result.exit_code, 0) << result.err;
    return result.out;
  }
  static std::string Item(const std::string& name, const std::string& value) {
    return "<item name=\"" + name + "\" value=\"" + value + "\"/>";
  }

  CliRunner cli_;
};

TEST_F(CliSettingsTest, WrittenValuesComeBackThroughShowAndFrom) {
  const CliResult written =
      cli_.Run({"settings", "write", "a.twr", "--set", "chkPrefix=1", "--set",
                "txtPrefix=  <a & \"b\" ü ₤ ", "--set", "txtSearchString=x", "--set",
                "txtStep=002.50", "--set", "optNumber=3", "--set", "cboExtension=*.jpg"});
  ASSERT_EQ(written.exit_code, 0) << written.err;
  EXPECT_THAT(written.err, HasSubstr("{{space}} placeholder"));
  const std::string xml = Show("a.twr");
  EXPECT_THAT(xml, HasSubstr("<?xml version=\"1.0\"?>\r\n<configuration>\r\n\t<section "
                             "name=\"Warnings\">"));
  // Seven blanks in the whole text, one of them at the end: seven tokens.
  std::string tokens;
  for (int i = 0; i < 7; ++i) tokens += "{{space}}";
  EXPECT_THAT(xml, HasSubstr(Item("txtPrefix", "  &lt;a &amp; &quot;b&quot; ü ₤" + tokens)));
  EXPECT_THAT(xml, HasSubstr(Item("txtStep", "002.50")));
  EXPECT_THAT(xml, HasSubstr(Item("optNumber3", "1")));
  EXPECT_THAT(xml, HasSubstr(Item("cboExtension", "*.jpg")));

  ASSERT_EQ(cli_.Run({"settings", "write", "b.twr", "--from", "a.twr", "--set", "chkReplace=1"})
                .exit_code,
            0);
  const std::string copy = Show("b.twr");
  EXPECT_THAT(copy, HasSubstr(Item("txtStep", "2.5")));
  EXPECT_THAT(copy, HasSubstr(Item("chkReplace", "1")));
  EXPECT_THAT(copy, HasSubstr(Item("txtSearchString", "x")));
  EXPECT_THAT(copy, HasSubstr(Item("optNumber3", "1")));
}

TEST_F(CliSettingsTest, BadArgumentsAndUnreadableFiles) {
  EXPECT_EQ(cli_.Run({"settings", "write", "a.twr", "--set", "nope=1"}).exit_code, 2);
  EXPECT_EQ(cli_.Run({"settings", "write"}).exit_code, 2);
  EXPECT_EQ(cli_.Run({"settings", "show", "missing.twr"}).exit_code, 1);
  cli_.dir().WriteFile("work/plain.twr", "<?xml version=\"1.0\"?><configuration/>");
  const CliResult plain = cli_.Run({"settings", "show", "plain.twr"});
  EXPECT_EQ(plain.exit_code, 1);
  EXPECT_THAT(plain.err, HasSubstr("Error occurred while opening configuration file."));
  EXPECT_EQ(cli_.Run({"run", "plain.twr", "--folder", "."}).exit_code, 2);
  std::filesystem::create_directories(work() / "soon_gone");
  ASSERT_EQ(cli_.Run({"settings", "write", "gone.twr", "--save-path", "soon_gone"}).exit_code, 0);
  std::filesystem::remove(work() / "soon_gone");
  const CliResult gone = cli_.Run({"run", "gone.twr"});
  EXPECT_EQ(gone.exit_code, 2);
  EXPECT_THAT(gone.err, HasSubstr("no longer exists"));
}

TEST_F(CliSettingsTest, RunAppliesTheFileThenTheOverrides) {
  cli_.dir().WriteFile("work/files/a.txt");
  ASSERT_EQ(cli_.Run({"settings", "write", "job.twr", "--set", "chkPrefix=1", "--set",
                      "txtPrefix=ä€𝄞 ", "--set", "chkPostfix=1", "--set", "txtPostfix=_p",
                      "--save-path", (work() / "files").string()})
                .exit_code,
            0);
  const CliResult run = cli_.Run({"run", "job.twr", "--set", "txtPostfix=_q", "--yes"});
  ASSERT_EQ(run.exit_code, 0) << run.err;
  EXPECT_TRUE(std::filesystem::exists(work() / "files" / "ä€𝄞 a_q.txt"));
}

TEST_F(CliSettingsTest, UnattendedStartRenamesWithoutADisplay) {
  cli_.dir().WriteFile("work/files/one.txt");
  cli_.dir().WriteFile("work/files/two.txt");
  ASSERT_EQ(cli_.Run({"settings", "write", "job.twr", "--set", "chkPrefix=1", "--set",
                      "txtPrefix=n_", "--save-path", (work() / "files").string()})
                .exit_code,
            0);
  testing::ProcessSpec process;
  process.program = TW_GUI_PATH;
  process.args = {"job.twr", "-d"};
  process.working_directory = work();
  process.environment = {{"XDG_CONFIG_HOME", cli_.config_home().string()},
                         {"XDG_DATA_HOME", cli_.data_home().string()},
                         {"DISPLAY", std::nullopt},
                         {"WAYLAND_DISPLAY", std::nullopt}};
  const CliResult run = testing::RunProcess(process);
  ASSERT_EQ(run.exit_code, 0) << run.err;
  EXPECT_TRUE(std::filesystem::exists(work() / "files" / "n_one.txt"));
  EXPECT_TRUE(std::filesystem::exists(work() / "files" / "n_two.txt"));
  const OptionStore options(cli_.options_file());
  EXPECT_EQ(options.GetOption("ResetPath", "Options", ""), "0");
  const auto program = cli_.data_home() / "Oakhollow" / "Tarnwick";
  EXPECT_TRUE(std::filesystem::exists(program / "Undo Files" / "UndoBatch.bat"));
  EXPECT_TRUE(std::filesystem::exists(program / "Log Files" / "Tarnwick.log"));

  process.args = {"missing.twr", "-d"};
  EXPECT_EQ(testing::RunProcess(process).exit_code, 2);
  process.args = {};
  EXPECT_EQ(testing::RunProcess(process).exit_code, 2);
}

}  // namespace
}  // namespace tarnwick
