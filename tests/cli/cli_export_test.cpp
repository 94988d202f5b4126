// "export" end to end: the text document on standard output or in a file,
// the XML document, and the refusal of bad arguments.
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
using ::testing::Not;
using testing::ReadWholeFile;

class CliExportTest : public ::testing::Test {
 protected:
  CliExportTest() {
    cli_.dir().WriteFile("music/b.mp3", "12345");
    cli_.dir().WriteFile("music/a&b.txt", "abc");
    cli_.dir().WriteFile("music/live/c.txt", "c");
  }
  std::string Path(const std::string& relative) const {
    return (cli_.dir().path() / relative).string();
  }
  CliRunner cli_;
};

TEST_F(CliExportTest, TextGoesToStandardOutputOrAFile) {
  CliResult r = cli_.Run({"export", "text", Path("music"), "--columns", "size,name,folder",
                          "--delimiter", "semicolon", "--no-closing"});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_EQ(r.out, "Name;Size;Foldername\r\na&b.txt;3 bytes;music\r\nb.mp3;5 bytes;music\r\n");
  r = cli_.Run({"export", "text", Path("music"), "--selected", "*.MP3", "--tabs", "3",
                "--subfolders", "--out", Path("list.txt")});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  const std::string text = ReadWholeFile(Path("list.txt"));
  // --subfolders reads the folders anew: every file, each under its folder.
  EXPECT_THAT(text, HasSubstr("[Folder] " + Path("music") + "/live\r\nc.txt\t\t\t1 bytes\r\n"));
  EXPECT_THAT(text, HasSubstr("File(s):3\t\t\tFolders:2\r\n"));
  r = cli_.Run({"export", "text", Path("music"), "--out", Path("list.txt")});
  EXPECT_EQ(r.exit_code, 1);
  EXPECT_THAT(r.err, HasSubstr("exists; add --overwrite"));
}

TEST_F(CliExportTest, XmlHoldsTheChosenItemsOnly) {
  const CliResult r =
      cli_.Run({"export", "xml", Path("music"), "--selected", "a*", "--columns", "name,path"});
  ASSERT_EQ(r.exit_code, 0) << r.err;
  EXPECT_THAT(r.out, HasSubstr("<section name=\"Item1\">\r\n\t\t<item name=\"Name\" "
                               "value=\"a&amp;b.txt\"/>\r\n\t\t\t<item name=\"Path\" value=\"" +
                               Path("music") + "\"/>\r\n\t</section>"));
  EXPECT_THAT(r.out, Not(HasSubstr("Item2")));
  EXPECT_THAT(r.out, Not(HasSubstr("\"Size\"")));
}

TEST_F(CliExportTest, BadArgumentsAreRefused) {
  for (const std::vector<std::string>& args :
       {std::vector<std::string>{"export", "csv", Path("music")},
        {"export", "text"},
        {"export", "text", Path("music"), "--columns", "name,colour"},
        {"export", "text", Path("music"), "--tabs", "11"},
        {"export", "xml", Path("music"), "--delimiter", ";"},
        {"export", "text", Path("music"), "--convert-invalid", "off"}}) {
    SCOPED_TRACE(args[1] + " " + args.back());
    EXPECT_EQ(cli_.Run(args).exit_code, 2);
  }
  const CliResult r = cli_.Run({"export", "text", Path("nowhere")});
  EXPECT_EQ(r.exit_code, 1);
  EXPECT_THAT(r.err, HasSubstr("no such folder"));
}

}  // namespace
}  // namespace tarnwick
