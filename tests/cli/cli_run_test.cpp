// "run", "preview" and "undo" end to end through the real binary.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "cli/cli_runner.h"

namespace tarnwick {
namespace {

using testing::CliResult;
using testing::CliRunner;
using ::testing::HasSubstr;

class CliRunTest : public ::testing::Test {
 protected:
  CliRunTest() {
    std::filesystem::create_directories(folder());
    cli.SetWorkingDirectory(cli.dir().path());
    cli.Run({"options", "set", "Options", "ReadySound", "0"});
  }
  std::filesystem::path folder() const { return cli.dir().path() / "photos"; }
  void AddFile(const std::string& name) { std::ofstream(folder() / name) << name; }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& e : std::filesystem::directory_iterator(folder())) {
      names.push_back(e.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string BatchPath() const {
    return (cli.data_home() / "Oakhollow" / "Tarnwick" / "Undo Files" / "UndoBatch.bat").string();
  }
  CliResult Run(std::vector<std::string> args) {
    args.insert(args.begin() + 1, {"--folder", folder().string()});
    return cli.Run(args);
  }

  CliRunner cli;
};

TEST_F(CliRunTest, PreviewPrintsTheResultListAndRunRenamesWhatItShowed) {
  AddFile("b.jpg");
  AddFile("a.jpg");
  AddFile("notes.txt");
  const std::vector<std::string> sets = {"--set", "chkPrefix=1",       "--set", "txtPrefix=IMG_",
                                         "--set", "chkNumbers=1",      "--set", "optNumber=1",
                                         "--set", "txtStartNumber=001"};
  std::vector<std::string> args = {"preview", "--select", "*.JPG"};
  args.insert(args.end(), sets.begin(), sets.end());
  CliResult result = Run(args);
  EXPECT_EQ(result.exit_code, 0) << result.err;
  const std::string dir = folder().string();
  EXPECT_EQ(result.out, "a.jpg\tIMG_001a.jpg\t" + dir + "\nb.jpg\tIMG_002b.jpg\t" + dir + "\n");
  EXPECT_THAT(result.err, HasSubstr("2 tested, 0 skipped, 0 failed"));
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.jpg", "b.jpg", "notes.txt"}));

  args[0] = "run";
  result = Run(args);
  EXPECT_EQ(result.exit_code, 0) << result.err;
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(Names(), (std::vector<std::string>{"IMG_001a.jpg", "IMG_002b.jpg", "notes.txt"}));

  result = cli.Run({"undo", BatchPath(), "--dry-run"});
  EXPECT_EQ(result.exit_code, 0) << result.err;
  EXPECT_EQ(Names(), (std::vector<std::string>{"IMG_001a.jpg", "IMG_002b.jpg", "notes.txt"}));
  result = cli.Run({"undo", BatchPath(), "--runs", "1"});
  EXPECT_EQ(result.exit_code, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("done: line "));
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.jpg", "b.jpg", "notes.txt"}));
}

TEST_F(CliRunTest, CopyModeTakenNamesAndTheActionOrderForOneRun) {
  AddFile("a.txt");
  AddFile("x_a.txt");
  CliResult result =
      Run({"run", "--set", "chkPrefix=1", "--set", "txtPrefix=x_", "--mode", "copy"});
  // The taken name is skipped by default; x_a.txt itself gets its copy.
  EXPECT_EQ(result.exit_code, 0) << result.err;
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.txt", "x_a.txt", "x_x_a.txt"}));
  EXPECT_THAT(result.err, HasSubstr("1 copied, 1 skipped, 0 failed"));

  // The replacement before the prefix, for this run only: the prefix's "b"
  // stays.
  result = Run({"run", "--set", "chkPrefix=1", "--set", "txtPrefix=ab", "--set", "chkReplace=1",
                "--set", "txtSearchString=b", "--set", "txtReplaceString=c", "--set",
                "SortOrderInternal5=8", "--set", "SortOrderInternal8=5", "--select", "a.txt"});
  EXPECT_EQ(result.exit_code, 0) << result.err;
  EXPECT_TRUE(std::filesystem::exists(folder() / "aba.txt"));
  EXPECT_EQ(cli.Run({"options", "get", "Options", "SortOrderInternal5", "none"}).out, "none\n");
}

TEST_F(CliRunTest, ExitCodesForBadArgumentsStoppedRunsAndFailedFiles) {
  AddFile("a.txt");
  EXPECT_EQ(Run({"run", "--set", "noSuchField=1"}).exit_code, 2);
  EXPECT_EQ(Run({"run", "--mode", "fast"}).exit_code, 2);
  EXPECT_EQ(Run({"preview", "--mode", "test"}).exit_code, 2);
  EXPECT_EQ(cli.Run({"run", "--folder", "/no/such/folder"}).exit_code, 2);
  CliResult result = Run({"run", "my.twr", "--set", "chkPrefix=1"});
  EXPECT_EQ(result.exit_code, 2);
  EXPECT_THAT(result.err, HasSubstr("no settings file 'my.twr'"));

  result = Run({"run", "--set", "chkNumbers=1"});
  EXPECT_EQ(result.exit_code, 3);
  EXPECT_THAT(result.err,
              HasSubstr("No options for renaming selected. This action can't be executed."));
  result = Run({"run", "--set", "chkPrefix=1", "--set", "txtPrefix=a?b"});
  EXPECT_EQ(result.exit_code, 3);
  EXPECT_EQ(Names(), std::vector<std::string>{"a.txt"});

  result = Run(
      {"run", "--set", "chkCompleteName=1", "--set", "txtCompleteName=" + std::string(300, 'n')});
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_THAT(result.err, HasSubstr("0 renamed, 0 skipped, 1 failed"));
  EXPECT_THAT(result.err, HasSubstr("Continue with next file?"));

  EXPECT_EQ(cli.Run({"undo"}).exit_code, 2);
  EXPECT_EQ(cli.Run({"undo", "x.bat", "--runs", "0"}).exit_code, 2);
  EXPECT_EQ(cli.Run({"undo", "missing.bat"}).exit_code, 1);
  EXPECT_THAT(cli.Run({"run", "--help"}).out, HasSubstr("Exit status"));
}


// An empty complete name would leave only the extension: nothing is written.
TEST_F(CliRunTest, AnEmptyCompleteNameIsRefusedAndTheFilesStay) {
  AddFile("photo.jpg");
  AddFile("notes.txt");
  const std::vector<std::string> empty_name = {"--set", "chkCompleteName=1", "--set",
                                               "txtCompleteName="};
  std::vector<std::string> args = {"preview"};
  args.insert(args.end(), empty_name.begin(), empty_name.end());
  CliResult result = Run(args);
  const std::string dir = folder().string();
  EXPECT_EQ(result.out, "notes.txt\t<Could not be written, filename is empty>\t" + dir +
                            "\nphoto.jpg\t<Could not be written, filename is empty>\t" + dir +
                            "\n");
  EXPECT_EQ(result.exit_code, 1) << result.err;
  args = {"run", "--yes"};
  args.insert(args.end(), empty_name.begin(), empty_name.end());
  result = Run(args);
  EXPECT_EQ(result.exit_code, 1) << result.err;
  EXPECT_THAT(result.err, HasSubstr("2 failed"));
  EXPECT_EQ(Names(), (std::vector<std::string>{"notes.txt", "photo.jpg"}));
}

}  // namespace
// The named flags set exactly the controls of their --set spelling; every
// control is listed; a misspelt one is refused with its nearest name.
TEST_F(CliRunTest, NamedFlagsGiveTheRowsOfTheirSetSpellingAndControlsAreListed) {
  for (const char* name : {"a.jpg", "b.jpg", "X_a.jpg"}) AddFile(name);
  const CliResult named = Run({"preview", "--prefix", "X_", "--number", "1", "--place",
                               "before-prefix", "--replace", "a", "A", "--cut-right", "1"});
  const CliResult set = Run({"preview", "--set", "chkPrefix=1", "--set", "txtPrefix=X_", "--set",
                             "chkNumbers=1", "--set", "txtStartNumber=1", "--set", "optNumber=0",
                             "--set", "chkReplace=1", "--set", "txtSearchString=a", "--set",
                             "txtReplaceString=A", "--set", "chkCutRight=1", "--set",
                             "txtRightCut=1"});
  ASSERT_EQ(named.exit_code, 0) << named.err;
  EXPECT_EQ(named.out, set.out);
  EXPECT_FALSE(named.out.empty());

  const CliResult json = Run({"preview", "--prefix", "X_", "--json"});
  ASSERT_EQ(json.exit_code, 0) << json.err;
  EXPECT_THAT(json.out, HasSubstr("{\"present\": \"a.jpg\", \"new\": \"X_a.jpg\", \"folder\": \"" +
                                  folder().string() + "\", \"conflict\": true}"));
  EXPECT_THAT(json.out, HasSubstr("\"present\": \"b.jpg\", \"new\": \"X_b.jpg\""));
  EXPECT_THAT(json.err, HasSubstr("1 new name collides"));

  const CliResult controls = cli.Run({"run", "--controls"});
  EXPECT_EQ(controls.exit_code, 0);
  for (const char* control : {"chkPrefix\tPrefix\t0\t0|1", "txtStartNumber\t", "optCopyRename\t",
                              "chkEditManual\t", "cboExtension\t"}) {
    EXPECT_THAT(controls.out, HasSubstr(control));
  }

  const CliResult misspelt = Run({"run", "--set", "chkPrefx=1"});
  EXPECT_EQ(misspelt.exit_code, 2);
  EXPECT_THAT(misspelt.err, HasSubstr("did you mean chkPrefix?"));
  const CliResult manual = Run({"run", "--set", "chkEditManual=1", "--prefix", "y"});
  EXPECT_EQ(manual.exit_code, 2);
  EXPECT_THAT(manual.err, HasSubstr("needs the window"));
  EXPECT_EQ(Run({"preview", "--place", "somewhere"}).exit_code, 2);
  EXPECT_EQ(Names(), (std::vector<std::string>{"X_a.jpg", "a.jpg", "b.jpg"}));
}

}  // namespace tarnwick
