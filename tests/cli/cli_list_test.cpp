// "list" end to end: the rows of a folder through the real binary.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/time.h>

#include <fstream>
#include <string>

#include "cli/cli_runner.h"

namespace tarnwick {
namespace {

using testing::CliResult;
using testing::CliRunner;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end; (end = text.find('\n', start)) != std::string::npos; start = end + 1) {
    lines.push_back(text.substr(start, end - start));
  }
  return lines;
}

class CliListTest : public ::testing::Test {
 protected:
  CliListTest() {
    folder_ = cli_.dir().path() / "Photos";
    std::filesystem::create_directories(folder_ / "sub");
    Write("b.txt", "hello");
    Write("A.JPG", std::string(2048, 'x'));
    Write(".hidden", "");
    Write("sub/c.txt", "");
    Write("tab\tname", "");
  }
  void Write(const std::string& name, const std::string& content) {
    const std::filesystem::path path = folder_ / name;
    std::ofstream(path) << content;
    // 1 February 2020, 10:20:30 UTC; the test runs in UTC unless TZ says else.
    const struct timeval times[2] = {{1580552430, 0}, {1580552430, 0}};
    ::utimes(path.c_str(), times);
  }
  CliResult List(std::vector<std::string> args) const {
    args.insert(args.begin(), {"list", folder_.string()});
    return cli_.Run(args);
  }

  CliRunner cli_;
  std::filesystem::path folder_;
};

TEST_F(CliListTest, TsvHoldsAllElevenColumnsInNameOrder) {
  cli_.SetEnv("TZ", "UTC");
  const CliResult result = List({});
  ASSERT_EQ(result.exit_code, 0) << result.err;
  const std::vector<std::string> lines = Lines(result.out);
  ASSERT_EQ(lines.size(), 4u);
  // Kept: the heading says "Created" while the rows show last-write dates.
  EXPECT_EQ(lines[0],
            "Name\tSize\tType\tCreated\tAttributes\tPath\tMediainfo\tFoldername\tJPEG EXIF "
            "Date\tbytes\textension");
  EXPECT_EQ(lines[1], "A.JPG\t2.00 KB\tJPG File\t01.02.2020 10:20:30\tA\t" + folder_.string() +
                          "\t\tPhotos\t\t2048\tjpg");
  EXPECT_THAT(lines[2], StartsWith("b.txt\t5 bytes\tTXT File\t"));
  EXPECT_THAT(lines[3], StartsWith("tab\\tname\t0 bytes\tFile\t"));
}

TEST_F(CliListTest, OptionsSubfoldersAndFilter) {
  ASSERT_EQ(cli_.Run({"options", "set", "Options", "ShowHiddenFiles", "1"}).exit_code, 0);
  ASSERT_EQ(cli_.Run({"options", "set", "Options", "DateFormat", "yyyy.mm.dd"}).exit_code, 0);
  cli_.SetEnv("TZ", "UTC");
  CliResult result = List({"--subfolders", "--filter", "*.TXT"});
  ASSERT_EQ(result.exit_code, 0) << result.err;
  std::vector<std::string> lines = Lines(result.out);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_THAT(lines[1], HasSubstr("\t2020.02.01 10:20:30\t"));
  EXPECT_THAT(lines[2], StartsWith("c.txt\t"));
  EXPECT_THAT(lines[2], HasSubstr("\tsub\t"));
  result = List({});
  EXPECT_THAT(Lines(result.out)[1], StartsWith(".hidden\t0 bytes\tHIDDEN File\t"));
}

TEST_F(CliListTest, JsonObjectsWithEscapedTexts) {
  const CliResult result = List({"--json", "--filter", "*."});
  ASSERT_EQ(result.exit_code, 0) << result.err;
  EXPECT_THAT(result.out, StartsWith("[\n {\"name\": \"tab\\u0009name\", \"size\": \"0 bytes\""));
  EXPECT_THAT(result.out, HasSubstr("\"bytes\": \"0\", \"extension\": \"\"}\n]\n"));
  EXPECT_EQ(List({"--json", "--filter", "*.none"}).out, "[]\n");
}

TEST_F(CliListTest, NameOrderFollowsTheLocaleAndNaturalNumbersAreAskedFor) {
  for (const char* name : {"Zug 10.txt", "Zug 9.txt", "Öl.txt", "Ofen.txt"}) Write(name, "");
  const auto names = [](const CliResult& result) {
    std::vector<std::string> first;
    for (const std::string& line : Lines(result.out)) first.push_back(line.substr(0, line.find('\t')));
    return first;
  };
  cli_.SetEnv("LC_ALL", "de_DE.UTF-8");
  const CliResult german = List({"--filter", "*.txt"});
  ASSERT_EQ(german.exit_code, 0) << german.err;
  EXPECT_THAT(names(german), ElementsAre("Name", "b.txt", "Ofen.txt", "Öl.txt", "Zug 10.txt",
                                         "Zug 9.txt"));
  EXPECT_THAT(names(List({"--filter", "*.txt", "--natural"})),
              ElementsAre("Name", "b.txt", "Ofen.txt", "Öl.txt", "Zug 9.txt", "Zug 10.txt"));
  // Swedish keeps Ö after Z.
  cli_.SetEnv("LC_ALL", "sv_SE.UTF-8");
  EXPECT_THAT(names(List({"--filter", "*.txt"})),
              ElementsAre("Name", "b.txt", "Ofen.txt", "Zug 10.txt", "Zug 9.txt", "Öl.txt"));
}

TEST_F(CliListTest, WrongCalls) {
  EXPECT_EQ(cli_.Run({"list"}).exit_code, 2);
  EXPECT_EQ(List({"--bogus"}).exit_code, 2);
  EXPECT_EQ(List({"--filter"}).exit_code, 2);
  EXPECT_EQ(List({"--filter", "jpg"}).exit_code, 2);
  EXPECT_EQ(List({"second"}).exit_code, 2);
  const CliResult missing = cli_.Run({"list", (folder_ / "nowhere").string()});
  EXPECT_EQ(missing.exit_code, 1);
  EXPECT_THAT(missing.err, HasSubstr("no such folder"));
  EXPECT_EQ(missing.out, "");
}

TEST_F(CliListTest, NoProgressLineWhenOutputIsAPipe) {
  const CliResult result = List({});
  EXPECT_EQ(result.err, "");
}

}  // namespace
}  // namespace tarnwick
