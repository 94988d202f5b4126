// Filling the list from real folders.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>

#include "filelist/fill_fixture.h"
#include "filelist/list_date_text.h"
#include "platform/file_attributes.h"
#include "platform/file_times.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fc = file_column;

// Whether this file system keeps the DOS attributes of a folder.
bool KeepsDosAttributes(const std::filesystem::path& path) {
  return ::setxattr(path.c_str(), "user.tarnwick_probe", "1", 1, 0) == 0;
}

TEST_F(FillTest, RowsComeInNameOrderWithoutRegardToCaseAndNeverHoldFolders) {
  for (const char* name : {"b.txt", "A.txt", "c.TXT", "a.jpg", "_x", "B"}) Write(name, "x");
  std::filesystem::create_directory(root() / "aaa_folder");
  Fill();
  EXPECT_THAT(Names(), ElementsAre("_x", "a.jpg", "A.txt", "B", "b.txt", "c.TXT"));
  EXPECT_THAT(loader_.Extensions(), ElementsAre("*.", "*.*", "*.jpg", "*.txt"));
}

TEST_F(FillTest, TypeAndSizeTextsFollowTheLanguageOfTheMessages) {
  Write("a.JPG", std::string(1536, 'x'));
  Write("b", "12345");
  Fill();
  EXPECT_THAT(Column(fc::kType), ElementsAre("JPG File", "File"));
  EXPECT_THAT(Column(fc::kSize), ElementsAre("1.50 KB", "5 bytes"));

  FileListContext german{options_, state_, ui_, log_, media_, MessageTable::Get(Language::kGerman)};
  FileListLoader loader(german);
  FileList list;
  loader.FillListView(list, {root().string(), false});
  ASSERT_EQ(list.size(), 2u);
  EXPECT_EQ(list.Text(0, fc::kType), "JPG-Datei");
  EXPECT_EQ(list.Text(1, fc::kType), "Datei");
  EXPECT_EQ(list.Text(0, fc::kSize), "1,50 KB");
  EXPECT_EQ(list.Text(1, fc::kSize), "5 Bytes");
}

TEST_F(FillTest, RowsComeInTheNameOrderOfTheLocaleWithNaturalNumbersAsAnOption) {
  for (const char* name : {"Zeta", "zeta", "ÄRGER", "ärger2", "Apfel", "photo 10", "photo 2"}) {
    Write(name);
  }
  // Umlauts beside their letter; case decides only between otherwise equal
  // names, and the same way on every fill.
  Fill();
  EXPECT_THAT(Names(), ElementsAre("Apfel", "ÄRGER", "ärger2", "photo 10", "photo 2", "zeta",
                                   "Zeta"));
  SetOption("NaturalNameOrder", "1");
  Fill();
  EXPECT_THAT(Names(), ElementsAre("Apfel", "ÄRGER", "ärger2", "photo 2", "photo 10", "zeta",
                                   "Zeta"));
  // A sort by the name column afterwards keeps to the same order.
  const SortColumn by_name[] = {{file_column::kName, true}};
  list_.MultiSortListView(by_name);
  EXPECT_THAT(Names(), ElementsAre("Zeta", "zeta", "photo 10", "photo 2", "ärger2", "ÄRGER",
                                   "Apfel"));
}

TEST_F(FillTest, EmptyFolderGivesNoRowsAndOnlyAllFiles) {
  Fill();
  EXPECT_TRUE(list_.empty());
  EXPECT_THAT(loader_.Extensions(), ElementsAre("*.*"));
}

TEST_F(FillTest, MissingFolderClearsTheRows) {
  Write("a.txt");
  Fill();
  ASSERT_EQ(list_.size(), 1u);
  loader_.FillListView(list_, {(root() / "gone").string(), false});
  EXPECT_TRUE(list_.empty());
  EXPECT_THAT(loader_.Extensions(), ElementsAre("*.*"));
  EXPECT_THAT(log_.lines, IsEmpty());
}

TEST_F(FillTest, ExtensionFilterComparesWithoutCase) {
  for (const char* name : {"a.JPG", "b.jpg", "c.jpeg", "d.txt", "noext"}) Write(name);
  state_.CurrentFilter = "*.jpg";
  Fill();
  EXPECT_THAT(Names(), ElementsAre("a.JPG", "b.jpg"));
  EXPECT_THAT(loader_.Extensions(), ElementsAre("*.*", "*.jpg"));
  state_.CurrentFilter = "*.";
  Fill();
  EXPECT_THAT(Names(), ElementsAre("noext"));
}

TEST_F(FillTest, HiddenFilesFollowTheExactAttributeValues) {
  Write(".hidden");  // H + A = 34
  const std::string read_only = Write(".locked");
  ASSERT_EQ(::chmod(read_only.c_str(), 0444), 0);  // R + H + A = 35: always shown
  Write("plain");
  Fill();
  EXPECT_THAT(Names(), ElementsAre(".locked", "plain"));
  EXPECT_EQ(list_.Text(0, fc::kAttributes), "RHA");
  state_.ShowHiddenFlag = 1;
  Fill();
  EXPECT_THAT(Names(), ElementsAre(".hidden", ".locked", "plain"));
  EXPECT_EQ(list_.Text(0, fc::kAttributes), "HA");
}

// A folder large enough to be read in several chunks, each shared by two
// threads: every entry comes once, with its own facts, in name order.
TEST_F(FillTest, ALargeFolderIsReadWholeWithEachEntrysOwnFacts) {
  constexpr int kFiles = 9000;
  std::vector<std::string> expected;
  for (int i = 0; i < kFiles; ++i) {
    char name[32];
    std::snprintf(name, sizeof name, i % 1000 == 7 ? ".f%05d" : "f%05d.txt", i);
    Write(name, std::string(static_cast<std::size_t>(i % 13), 'x'));
    if (name[0] != '.') expected.push_back(name);
  }
  ASSERT_EQ(::symlink("nowhere", (root() / "g_dangling").c_str()), 0);
  expected.push_back("g_dangling");
  Fill();
  EXPECT_EQ(Names(), expected);
  for (std::size_t row : {std::size_t{0}, std::size_t{4097}, expected.size() - 2}) {
    const int number = std::stoi(expected[row].substr(1, 5));
    EXPECT_EQ(list_.rows()[row].size, static_cast<std::uint32_t>(number % 13)) << expected[row];
    EXPECT_EQ(list_.Text(row, fc::kAttributes), "A");
  }
  state_.ShowHiddenFlag = 1;
  Fill();
  EXPECT_EQ(list_.size(), expected.size() + kFiles / 1000);
  EXPECT_EQ(list_.Text(0, fc::kName), ".f00007");
  EXPECT_EQ(list_.Text(0, fc::kAttributes), "HA");
}

TEST_F(FillTest, SystemFilesFollowTheExactAttributeValues) {
  if (!KeepsDosAttributes(root())) GTEST_SKIP() << "no extended attributes here";
  const std::string system = Write("system.sys");
  const std::string hidden_only = Write("hidden.dat");
  ASSERT_TRUE(SetFileAttributes(system, 0x4 | 0x20).ok());      // S + A = 36: not in the list
  ASSERT_TRUE(SetFileAttributes(hidden_only, 0x2 | 0x4).ok());  // H + S = 6: dropped
  const std::string hidden_plain = Write("plainhidden");
  ASSERT_TRUE(SetFileAttributes(hidden_plain, 0x2).ok());  // 2: listed with both flags off
  Fill();
  EXPECT_THAT(Names(), ElementsAre("plainhidden", "system.sys"));
  state_.ShowSystemFlag = 1;
  Fill();
  EXPECT_THAT(Names(), ElementsAre("hidden.dat", "plainhidden", "system.sys"));
  EXPECT_EQ(list_.Text(0, fc::kAttributes), "HS");
}

TEST_F(FillTest, SubfoldersAreWalkedDepthFirstInNameOrder) {
  Write("top.txt");
  Write("B/b1.txt");
  Write("a/a1.txt");
  Write("a/z/deep.txt");
  Write("a/Empty/Inner/inner.txt");
  Fill(false);
  EXPECT_THAT(Names(), ElementsAre("top.txt"));
  Fill(true);
  EXPECT_THAT(Names(), ElementsAre("top.txt", "a1.txt", "inner.txt", "deep.txt", "b1.txt"));
  EXPECT_EQ(list_.Text(2, fc::kPath), (root() / "a" / "Empty" / "Inner").string());
  EXPECT_EQ(list_.Text(2, fc::kFolderName), "Inner");
  EXPECT_EQ(list_.Path(3), (root() / "a" / "z" / "deep.txt").string());
}

TEST_F(FillTest, FolderOfAttribute22GivesNoRowsButItsSubfoldersDo) {
  if (!KeepsDosAttributes(root())) GTEST_SKIP() << "no extended attributes here";
  Write("guarded/own.txt");
  Write("guarded/below/child.txt");
  Write(".dotted/seen.txt");  // hidden folder, 18: still gives rows
  ASSERT_TRUE(SetFileAttributes(root() / "guarded", 0x2 | 0x4).ok());
  ASSERT_EQ(GetFileAttributes(root() / "guarded").value(), 22);
  Fill(true);
  EXPECT_THAT(Names(), ElementsAre("seen.txt", "child.txt"));
}

TEST_F(FillTest, LinkLoopsEndTheWalk) {
  Write("a/file.txt");
  std::filesystem::create_directory_symlink(root(), root() / "a" / "back");
  Fill(true);
  EXPECT_THAT(Names(), ElementsAre("file.txt"));
}

TEST_F(FillTest, ColumnsOfARow) {
  const std::string path = Write("Report.Final.PDF", std::string(1536, 'x'));
  Fill();
  ASSERT_EQ(list_.size(), 1u);
  EXPECT_EQ(list_.Text(0, fc::kName), "Report.Final.PDF");
  EXPECT_EQ(list_.Text(0, fc::kSize), "1.50 KB");
  EXPECT_EQ(list_.Text(0, fc::kType), "PDF File");
  EXPECT_EQ(list_.Text(0, fc::kAttributes), "A");
  EXPECT_EQ(list_.Text(0, fc::kPath), root().string());
  EXPECT_EQ(list_.Text(0, fc::kMediaInfo), "");
  EXPECT_EQ(list_.Text(0, fc::kFolderName), "files");
  EXPECT_EQ(list_.Text(0, fc::kExifDate), "");
  EXPECT_EQ(list_.Text(0, fc::kSizeBytes), "1536");
  EXPECT_EQ(list_.Text(0, fc::kExtension), "pdf");
  EXPECT_EQ(list_.Text(0, 11), "");
  EXPECT_EQ(list_.Text(5, fc::kName), "");
  EXPECT_EQ(list_.Path(0), path);
}

TEST_F(FillTest, FixedTypeTextsStayGerman) {
  Write("setup.EXE");
  Write("link.lnk");
  Write("README");
  Fill();
  EXPECT_THAT(Column(fc::kType), ElementsAre("Verknüpfung", "File", "Anwendung"));
}

TEST_F(FillTest, SizeAboveFourGigabytesShowsItsLow32Bits) {
  const std::string path = Write("huge.bin");
  ASSERT_EQ(::truncate(path.c_str(), 5LL << 30), 0);
  Fill();
  EXPECT_EQ(list_.Text(0, fc::kSizeBytes), "1073741824");
  EXPECT_EQ(list_.Text(0, fc::kSize), "1.00 GB");
}

TEST_F(FillTest, NamesOnlyKeepSizeDateAndPath) {
  Write("a.jpg", "abc");
  SetOption("LoadOnlyFileName", "1");
  SetOption("MP3WAVLength", "1");
  Fill();
  EXPECT_EQ(list_.Text(0, fc::kSize), "3 bytes");
  EXPECT_NE(list_.Text(0, fc::kDate), "");
  EXPECT_EQ(list_.Text(0, fc::kPath), root().string());
  EXPECT_EQ(list_.Text(0, fc::kType), "");
  EXPECT_EQ(list_.Text(0, fc::kAttributes), "");
  EXPECT_EQ(list_.Text(0, fc::kFolderName), "");
  EXPECT_EQ(list_.Text(0, fc::kExtension), "jpg");
  EXPECT_EQ(media_.media_asked + media_.exif_asked, 0);
}

TEST_F(FillTest, MediaColumnsComeFromTheMediaSource) {
  Write("photo.JPEG");
  Write("song.mp3");
  Fill();
  EXPECT_THAT(Column(fc::kMediaInfo), ElementsAre("", ""));
  EXPECT_THAT(Column(fc::kExifDate), ElementsAre("04.07.2021 09:08:07", ""));
  SetOption("MP3WAVLength", "1");
  SetOption("DateFormat", "YYYY.MM.DD");
  Fill();
  EXPECT_THAT(Column(fc::kMediaInfo), ElementsAre("3:25", "3:25"));
  EXPECT_THAT(Column(fc::kExifDate), ElementsAre("2021.07.04 09:08:07", ""));
}

class DateColumnTest : public FillTest {
 protected:
  // Local 14 March 2023 09:05:03 as last write, 2 January 2001 as last access.
  void SetUp() override {
    path_ = Write("dated.txt");
    ASSERT_TRUE(
        SetFileTimes(path_, Local(2023, 3, 14, 9, 5, 3), Local(2001, 1, 2, 23, 59, 58)).ok());
  }
  static FileTime Local(int y, int mo, int d, int h, int mi, int s) {
    std::tm t{};
    t.tm_year = y - 1900, t.tm_mon = mo - 1, t.tm_mday = d;
    t.tm_hour = h, t.tm_min = mi, t.tm_sec = s, t.tm_isdst = -1;
    return std::chrono::time_point_cast<std::chrono::nanoseconds>(
        std::chrono::system_clock::from_time_t(std::mktime(&t)));
  }
  std::string path_;
};

TEST_F(DateColumnTest, RowsTakeLastModifiedUntilTheOptionIsSaved) {
  Fill();
  EXPECT_EQ(list_.Text(0, fc::kDate), "14.03.2023 09:05:03");
  SetOption("DateFormat", "mm.dd.yyyy");
  Fill();
  EXPECT_EQ(list_.Text(0, fc::kDate), "03.14.2023 09:05:03");
  SetOption("DateFormat", "d/m/yy");
  Fill();
  EXPECT_EQ(list_.Text(0, fc::kDate), "14/3/23 09:05:03");
}

TEST_F(DateColumnTest, LastAccessAndCreatedAreReadFromTheFile) {
  SetOption("FileDateType", "Last Access");
  Fill();
  EXPECT_EQ(list_.Text(0, fc::kDate), "02.01.2001 23:59:58");
  SetOption("FileDateType", "Created");
  Fill();
  const FileTimes times = GetFileTimes(path_).value();
  EXPECT_EQ(list_.Text(0, fc::kDate), FormatListDate(ToLocalDateTime(times.created), "dd.mm.yyyy"));
  SetOption("FileDateType", "something else");
  Fill();
  EXPECT_EQ(list_.Text(0, fc::kDate), FormatListDate(ToLocalDateTime(times.created), "dd.mm.yyyy"));
}

TEST_F(FillTest, EscDuringTheRowsLeavesAPartialListAndALogLine) {
  for (int i = 0; i < 6; ++i) Write("f" + std::to_string(i));
  Write("sub/s.txt");
  // Six entries and a folder are read (7 polls), then rows are tested.
  ui_.cancel_at_polls = {7 + 3};
  EXPECT_TRUE(loader_.FillListView(list_, {root().string(), true})) << "says it was stopped";
  EXPECT_THAT(Names(), ElementsAre("f0", "f1", "f2"));
  EXPECT_THAT(log_.lines, ElementsAre("ViewFolder | !User terminated filling file list with ESC"));
  EXPECT_FALSE(state_.CancelRun);
}

TEST_F(FillTest, EscDuringTheReadKeepsWhatWasReadAndStillLogs) {
  for (int i = 0; i < 6; ++i) Write("f" + std::to_string(i));
  ui_.cancel_at_polls = {2};
  EXPECT_TRUE(loader_.FillListView(list_, {root().string(), false})) << "says it was stopped";
  // Two entries were read, in the folder's own order; the press ends the rows
  // after the first.
  EXPECT_EQ(list_.size(), 1u);
  EXPECT_EQ(log_.lines.size(), 1u);
  EXPECT_FALSE(state_.CancelRun);
  ui_.cancel_at_polls = {};
  EXPECT_FALSE(loader_.FillListView(list_, {root().string(), false})) << "a whole fill";
}

TEST_F(FillTest, StatusAndProgressFollowTheRecords) {
  for (int i = 0; i < 4; ++i) Write("f" + std::to_string(i));
  Fill();
  const std::string folder = root().string() + "/";
  std::vector<std::string> lines, frames;
  for (const auto& [area, text] : ui_.statuses) {
    (area == StatusArea::kStatusLine ? lines : frames).push_back(text);
  }
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines.back(), "Wait, reading directory ... '" + folder + "' [4/4]");
  // Below 21 records the sample frame counts every row.
  EXPECT_THAT(frames,
              ElementsAre("Please wait ... File(s):0  [4]", "Please wait ... File(s):1  [4]",
                          "Please wait ... File(s):2  [4]", "Please wait ... File(s):3  [4]"));
  EXPECT_EQ(ui_.last_progress, std::make_pair(std::int64_t{3}, std::int64_t{3}));
}

TEST_F(FillTest, FillListFilesTakesFlagsSelectsTheFirstRowAndSwitchesIconsOff) {
  Write("b");
  Write(".a");
  SetOption("ShowHiddenFiles", "1");
  loader_.FillListFiles(list_, {root().string(), false});
  EXPECT_THAT(Names(), ElementsAre(".a", "b"));
  EXPECT_THAT(list_.SelectedRows(), ElementsAre(0u));
  EXPECT_THAT(ui_.controls, ElementsAre(false, true));
  EXPECT_TRUE(ui_.progress_hidden);
  EXPECT_THAT(ui_.messages, IsEmpty());
  loader_.FillListFiles(list_, {root().string(), true});
  ASSERT_EQ(ui_.messages.size(), 1u);
  EXPECT_EQ(ui_.messages[0].title, "Information:");
  EXPECT_EQ(options_.GetOption("Icons", "Options", "1"), "0");
  loader_.FillListFiles(list_, {root().string(), true});
  EXPECT_EQ(ui_.messages.size(), 1u);
}

TEST_F(FillTest, SortChosenBeforeIsKeptByTheNextFill) {
  Write("a.txt", "333");
  Write("b.txt", "1");
  Fill();
  const SortColumn by_size[] = {{fc::kSize, true}};
  list_.MultiSortListView(by_size);
  EXPECT_THAT(Names(), ElementsAre("a.txt", "b.txt"));
  Write("c.txt", "22");
  Fill();
  EXPECT_THAT(Names(), ElementsAre("a.txt", "c.txt", "b.txt"));
}

}  // namespace
}  // namespace tarnwick::testing
