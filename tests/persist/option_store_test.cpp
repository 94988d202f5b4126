#include "persist/option_store.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::ReadWholeFile;
using testing::TempDir;
using Entries = std::vector<std::pair<std::string, std::string>>;

class OptionStoreTest : public ::testing::Test {
 protected:
  std::filesystem::path File() const { return dir_.path() / "Oakhollow" / "Tarnwick.ini"; }
  OptionStore Store() const { return OptionStore(File()); }
  void WriteIni(const std::string& text) const { dir_.WriteFile("Oakhollow/Tarnwick.ini", text); }

  TempDir dir_;
};

TEST_F(OptionStoreTest, MissingFileGivesDefaultsAndIsNotCreatedByReads) {
  const OptionStore store = Store();
  EXPECT_EQ(store.GetOption("WriteLogFile", "Options", "1"), "1");
  EXPECT_EQ(store.GetOption("WriteLogFile", "Options", ""), "");
  EXPECT_TRUE(store.Sections().empty());
  EXPECT_TRUE(store.ListSection("Options").empty());
  EXPECT_FALSE(std::filesystem::exists(File()));
  EXPECT_FALSE(std::filesystem::exists(File().parent_path()));
}

TEST_F(OptionStoreTest, SaveCreatesFolderAndFileAndReadsBack) {
  OptionStore store = Store();
  EXPECT_TRUE(store.SaveOption("DateSeperator", "Options", "."));
  EXPECT_TRUE(std::filesystem::is_regular_file(File()));
  EXPECT_EQ(store.GetOption("DateSeperator", "Options", "-"), ".");
  EXPECT_EQ(Store().GetOption("DateSeperator", "Options", "-"), ".");
  EXPECT_EQ(ReadWholeFile(File()), "[Options]\nDateSeperator=.\n");
}

TEST_F(OptionStoreTest, EmptyValueReadsAsMissingAndDefaultIsNeverWrittenBack) {
  OptionStore store = Store();
  store.SaveOption("IllegalCharReplacer", "Options", "");
  EXPECT_EQ(store.GetOption("IllegalCharReplacer", "Options", "_"), "_");
  const std::string before = ReadWholeFile(File());
  EXPECT_EQ(store.GetOption("Other", "Options", "dflt"), "dflt");
  EXPECT_EQ(ReadWholeFile(File()), before);
  EXPECT_TRUE(store.ListSection("Options").empty());
  EXPECT_EQ(store.Sections(), std::vector<std::string>{"Options"});
}

TEST_F(OptionStoreTest, ValuesAreTextsSoLeadingZerosStay) {
  OptionStore store = Store();
  store.SaveOption("ResetPath", "Options", "01");
  EXPECT_EQ(store.GetOption("ResetPath", "Options", "0"), "01");
  EXPECT_NE(store.GetOption("ResetPath", "Options", "0"), "1");
}

TEST_F(OptionStoreTest, NamesIgnoreCaseAndKeepTheirFirstSpelling) {
  OptionStore store = Store();
  store.SaveOption("SortOrderInternal1", "Options", "3");
  EXPECT_EQ(store.GetOption("sortorderinternal1", "OPTIONS", ""), "3");
  store.SaveOption("SORTORDERINTERNAL1", "options", "4");
  EXPECT_EQ(store.GetOption("SortOrderInternal1", "Options", ""), "4");
  EXPECT_EQ(store.Sections(), std::vector<std::string>{"Options"});
  EXPECT_EQ(store.ListSection("oPtIoNs"), (Entries{{"SortOrderInternal1", "4"}}));

  // Beyond ASCII too.
  store.SaveOption("Größe", "Übersicht", "x");
  EXPECT_EQ(store.GetOption("GRÖSSE", "übersicht", "d"), "d");  // no full folding: ß is not ss
  EXPECT_EQ(store.GetOption("GRößE", "ÜBERSICHT", "d"), "x");
}

TEST_F(OptionStoreTest, SectionsAndKeysListInFileOrder) {
  OptionStore store = Store();
  store.SaveOption("b", "XML", "1");
  store.SaveOption("a", "XML", "2");
  store.SaveOption("StartDir", "Playlist", "/music");
  store.SaveOption("c", "XML", "3");
  EXPECT_EQ(store.Sections(), (std::vector<std::string>{"XML", "Playlist"}));
  EXPECT_EQ(store.ListSection("xml"), (Entries{{"b", "1"}, {"a", "2"}, {"c", "3"}}));
  EXPECT_TRUE(store.ListSection("Nothing").empty());
}

TEST_F(OptionStoreTest, DeleteSectionRemovesOneSectionAndNoOther) {
  WriteIni(
      "; kept comment\n[AutoUpdate]\nLastCheck=n/a\n\n[Options]\nResetPath=1\nTop=10\n\n"
      "[ManualRename]\nSelectAll=1\n[options]\nLeft=5\n");
  OptionStore store = Store();
  EXPECT_EQ(store.GetOption("Left", "Options", ""), "5");
  EXPECT_TRUE(store.DeleteSection("OPTIONS"));
  EXPECT_EQ(store.GetOption("ResetPath", "Options", "0"), "0");
  EXPECT_EQ(store.GetOption("Left", "Options", "200"), "200");
  EXPECT_EQ(store.GetOption("LastCheck", "AutoUpdate", ""), "n/a");
  EXPECT_EQ(store.GetOption("SelectAll", "ManualRename", ""), "1");
  EXPECT_EQ(ReadWholeFile(File()),
            "; kept comment\n[AutoUpdate]\nLastCheck=n/a\n\n[ManualRename]\nSelectAll=1\n");
  // Deleting what is not there changes nothing and is no failure.
  EXPECT_TRUE(store.DeleteSection("Options"));
  EXPECT_EQ(store.Sections(), (std::vector<std::string>{"AutoUpdate", "ManualRename"}));
}

TEST_F(OptionStoreTest, ChangeByAnotherStoreIsSeenAtTheNextRead) {
  const OptionStore reader = Store();
  OptionStore writer = Store();
  EXPECT_EQ(reader.GetOption("Path", "Options", "none"), "none");
  for (int i = 0; i < 50; ++i) {
    writer.SaveOption("Path", "Options", "/data/" + std::to_string(i));
    ASSERT_EQ(reader.GetOption("Path", "Options", "none"), "/data/" + std::to_string(i));
  }
  writer.DeleteSection("Options");
  EXPECT_EQ(reader.GetOption("Path", "Options", "none"), "none");
}

TEST_F(OptionStoreTest, EditInPlaceWithSameSizeIsSeen) {
  WriteIni("[Options]\nTop=100\n");
  const OptionStore store = Store();
  EXPECT_EQ(store.GetOption("Top", "Options", ""), "100");
  // Rewritten in place: same inode, same size; only the time tells.
  WriteIni("[Options]\nTop=200\n");
  EXPECT_EQ(store.GetOption("Top", "Options", ""), "200");
  std::filesystem::remove(File());
  EXPECT_EQ(store.GetOption("Top", "Options", "gone"), "gone");
}

TEST_F(OptionStoreTest, WriteKeepsUnknownLinesCommentsAndOtherSections) {
  const std::string hand =
      "# written by hand\r\n"
      "stray line before sections\n"
      "[Options]\n"
      "  Top = 120  \n"
      "this is not an entry\n"
      "; Left=3\n"
      "\n"
      "[Playlist]\n"
      "StartDir=/home/me/Music\n";
  WriteIni(hand);
  OptionStore store = Store();
  EXPECT_EQ(store.GetOption("Top", "Options", ""), "120");
  EXPECT_EQ(store.GetOption("Left", "Options", "200"), "200");
  store.SaveOption("Left", "Options", "7");
  store.SaveOption("AutoCheckForUpdates", "AutoUpdate", "1");
  EXPECT_EQ(ReadWholeFile(File()),
            "# written by hand\r\n"
            "stray line before sections\n"
            "[Options]\n"
            "  Top = 120  \n"
            "Left=7\n"
            "this is not an entry\n"
            "; Left=3\n"
            "\n"
            "[Playlist]\n"
            "StartDir=/home/me/Music\n"
            "\n"
            "[AutoUpdate]\n"
            "AutoCheckForUpdates=1\n");
}

TEST_F(OptionStoreTest, GarbageFileGivesDefaultsAndCanBeWrittenOver) {
  std::string garbage = "\xff\xfe[[[\n=\n[]\nkey-without-section=1\n\x01\x02\x03";
  for (int i = 0; i < 5000; ++i) garbage += static_cast<char>((i * 131) % 256);
  WriteIni(garbage);
  OptionStore store = Store();
  EXPECT_EQ(store.GetOption("key-without-section", "Options", "d"), "d");
  EXPECT_TRUE(store.SaveOption("Top", "Options", "1"));
  EXPECT_EQ(Store().GetOption("Top", "Options", ""), "1");
}

TEST_F(OptionStoreTest, FolderInPlaceOfTheFileGivesDefaultsAndLosesWrites) {
  std::filesystem::create_directories(File());
  OptionStore store = Store();
  EXPECT_EQ(store.GetOption("Top", "Options", "200"), "200");
  EXPECT_FALSE(store.SaveOption("Top", "Options", "1"));
  EXPECT_TRUE(std::filesystem::is_directory(File()));
}

TEST_F(OptionStoreTest, WriteIntoUnwritableFolderIsSilentlyLost) {
  if (::geteuid() == 0) GTEST_SKIP() << "root writes everywhere";
  WriteIni("[Options]\nTop=1\n");
  ::chmod(File().parent_path().c_str(), 0555);
  OptionStore store = Store();
  EXPECT_FALSE(store.SaveOption("Top", "Options", "2"));
  EXPECT_FALSE(store.DeleteSection("Options"));
  EXPECT_EQ(store.GetOption("Top", "Options", ""), "1");
  ::chmod(File().parent_path().c_str(), 0755);
}

TEST_F(OptionStoreTest, WriteBelowAFileIsSilentlyLost) {
  dir_.WriteFile("file-not-folder", "plain file");
  OptionStore nowhere(dir_.path() / "file-not-folder" / "Oakhollow" / "Tarnwick.ini");
  EXPECT_FALSE(nowhere.SaveOption("Top", "Options", "2"));
  EXPECT_FALSE(nowhere.DeleteSection("Options"));
  EXPECT_EQ(nowhere.GetOption("Top", "Options", "d"), "d");
  EXPECT_EQ(dir_.ReadFile("file-not-folder"), "plain file");
}

TEST_F(OptionStoreTest, UnreadableFileGivesDefaultsAndIsNotOverwritten) {
  if (::geteuid() == 0) GTEST_SKIP() << "root reads everything";
  WriteIni("[Options]\nTop=1\n");
  ::chmod(File().c_str(), 0);
  OptionStore store = Store();
  EXPECT_EQ(store.GetOption("Top", "Options", "d"), "d");
  EXPECT_FALSE(store.SaveOption("Left", "Options", "2"));
  ::chmod(File().c_str(), 0644);
  EXPECT_EQ(store.GetOption("Top", "Options", "d"), "1");
  EXPECT_EQ(store.GetOption("Left", "Options", "d"), "d");
}

TEST_F(OptionStoreTest, EmptyNamesAreNeverStored) {
  OptionStore store = Store();
  EXPECT_FALSE(store.SaveOption("", "Options", "1"));
  EXPECT_FALSE(store.SaveOption("Top", "", "1"));
  EXPECT_EQ(store.GetOption("", "Options", "d"), "d");
  EXPECT_FALSE(std::filesystem::exists(File()));
}

TEST_F(OptionStoreTest, WriteKeepsPermissionsAndFollowsSymbolicLink) {
  WriteIni("[Options]\nTop=1\n");
  ::chmod(File().c_str(), 0600);
  OptionStore store = Store();
  store.SaveOption("Top", "Options", "2");
  struct stat info {};
  ASSERT_EQ(::stat(File().c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0600u);

  const auto real = dir_.WriteFile("dotfiles/tarnwick.ini", "[Options]\nLeft=1\n");
  const auto link = dir_.path() / "link" / "Tarnwick.ini";
  std::filesystem::create_directories(link.parent_path());
  std::filesystem::create_symlink(real, link);
  OptionStore linked(link);
  EXPECT_TRUE(linked.SaveOption("Left", "Options", "9"));
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(ReadWholeFile(real), "[Options]\nLeft=9\n");
}

TEST_F(OptionStoreTest, NoTemporaryFilesAreLeftBehind) {
  OptionStore store = Store();
  for (int i = 0; i < 20; ++i) store.SaveOption("Key" + std::to_string(i), "Options", "v");
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(File().parent_path())) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"Tarnwick.ini", "Tarnwick.ini.lock"}));
}

TEST_F(OptionStoreTest, MovedStoreKeepsWorkingAndMovedFromOneGivesDefaults) {
  OptionStore store = Store();
  store.SaveOption("Top", "Options", "5");
  OptionStore moved = std::move(store);
  EXPECT_EQ(moved.GetOption("Top", "Options", ""), "5");
  EXPECT_EQ(moved.file(), File());
  // NOLINTNEXTLINE(bugprone-use-after-move): the moved-from state is part of the contract.
  EXPECT_EQ(store.GetOption("Top", "Options", "d"), "d");
  EXPECT_FALSE(store.SaveOption("Top", "Options", "6"));
}

TEST(OptionStoreUserTest, DefaultFileFollowsXdgConfigHome) {
  TempDir dir;
  const char* saved = ::getenv("XDG_CONFIG_HOME");
  const std::string previous = saved ? saved : "";
  ::setenv("XDG_CONFIG_HOME", dir.str().c_str(), 1);
  EXPECT_EQ(OptionStore::DefaultFile(), dir.path() / "Oakhollow" / "Tarnwick.ini");
  OptionStore store = OptionStore::ForCurrentUser();
  store.SaveOption("Top", "Options", "3");
  EXPECT_EQ(ReadWholeFile(dir.path() / "Oakhollow" / "Tarnwick.ini"), "[Options]\nTop=3\n");
  ::setenv("XDG_CONFIG_HOME", previous.c_str(), 1);
}

}  // namespace
}  // namespace tarnwick
