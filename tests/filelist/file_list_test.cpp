// Sorting, selection and removal of rows.
#include "filelist/file_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
namespace fc = file_column;

class FileListTest : public ::testing::Test {
 protected:
  void Add(std::string name, std::uint32_t size, int seconds, std::string type, std::string folder,
           std::uint32_t attributes = 0x20) {
    FileRow row;
    row.name = std::move(name);
    row.size = size;
    row.date = FileTime(std::chrono::seconds(seconds));
    row.has_date = true;
    row.type = list_.InternType(type);
    row.folder = list_.AddFolder(std::move(folder));
    row.attributes = attributes;
    list_.Append(std::move(row));
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < list_.size(); ++i) names.push_back(list_.Text(i, fc::kName));
    return names;
  }
  std::vector<std::string> SortedBy(int column, bool descending = false) {
    const SortColumn columns[] = {{column, descending}};
    list_.MultiSortListView(columns);
    return Names();
  }

  FileList list_;
};

TEST_F(FileListTest, SortByEachColumn) {
  Add("b.TXT", 9, 300, "Text", "/z/beta", 0x21);
  Add("a.mp3", 10, 100, "audio", "/z/alpha", 0x20);
  Add("C.jpg", 1000, 200, "Bild", "/y/gamma", 0x22);
  EXPECT_THAT(SortedBy(fc::kName), ElementsAre("a.mp3", "b.TXT", "C.jpg"));
  // Sizes by value, not by their texts ("9 bytes" after "1000 bytes").
  EXPECT_THAT(SortedBy(fc::kSize), ElementsAre("b.TXT", "a.mp3", "C.jpg"));
  EXPECT_THAT(SortedBy(fc::kSizeBytes, true), ElementsAre("C.jpg", "a.mp3", "b.TXT"));
  EXPECT_THAT(SortedBy(fc::kType), ElementsAre("a.mp3", "C.jpg", "b.TXT"));
  EXPECT_THAT(SortedBy(fc::kDate), ElementsAre("a.mp3", "C.jpg", "b.TXT"));
  EXPECT_THAT(SortedBy(fc::kAttributes), ElementsAre("a.mp3", "C.jpg", "b.TXT"));
  EXPECT_THAT(SortedBy(fc::kPath), ElementsAre("C.jpg", "a.mp3", "b.TXT"));
  EXPECT_THAT(SortedBy(fc::kFolderName), ElementsAre("a.mp3", "b.TXT", "C.jpg"));
  EXPECT_THAT(SortedBy(fc::kExtension), ElementsAre("C.jpg", "a.mp3", "b.TXT"));
  EXPECT_THAT(SortedBy(fc::kName, true), ElementsAre("C.jpg", "b.TXT", "a.mp3"));
}

TEST_F(FileListTest, TiesGoToTheNextColumnThenKeepTheirOrder) {
  Add("x", 5, 0, "T", "/a");
  Add("y", 1, 0, "T", "/a");
  Add("z", 5, 0, "S", "/a");
  Add("w", 5, 0, "S", "/a");
  const SortColumn columns[] = {{fc::kSize, true}, {fc::kType, false}};
  list_.MultiSortListView(columns);
  EXPECT_THAT(Names(), ElementsAre("z", "w", "x", "y"));
  EXPECT_EQ(list_.sort_columns().size(), 2u);
}

TEST_F(FileListTest, BadSortColumnsLeaveTheOrder) {
  Add("b", 1, 0, "T", "/a");
  Add("a", 2, 0, "T", "/a");
  const SortColumn bad[] = {{fc::kName, false}, {11, false}};
  list_.MultiSortListView(bad);
  list_.MultiSortListView({});
  EXPECT_THAT(Names(), ElementsAre("b", "a"));
  list_.RestoreSort();
  EXPECT_THAT(Names(), ElementsAre("b", "a"));
}

TEST_F(FileListTest, SelectionInListOrder) {
  for (const char* name : {"a", "b", "c", "d"}) Add(name, 0, 0, "", "/f");
  EXPECT_EQ(list_.SelectedCount(), 0u);
  list_.Select(3);
  list_.Select(1);
  list_.Select(99);
  EXPECT_THAT(list_.SelectedRows(), ElementsAre(1u, 3u));
  list_.InvertSelection();
  EXPECT_THAT(list_.SelectedRows(), ElementsAre(0u, 2u));
  list_.SelectAll();
  EXPECT_EQ(list_.SelectedCount(), 4u);
  list_.Select(2, false);
  EXPECT_FALSE(list_.IsSelected(2));
  EXPECT_FALSE(list_.IsSelected(99));
  list_.DeselectAll();
  EXPECT_EQ(list_.SelectedCount(), 0u);
}

TEST_F(FileListTest, RemovingRowsKeepsTheOrderOfTheRest) {
  for (const char* name : {"a", "b", "c", "d", "e"}) Add(name, 0, 0, "", "/f");
  const std::size_t doomed[] = {3, 0, 3, 42};
  list_.RemoveRows(doomed);
  EXPECT_THAT(Names(), ElementsAre("b", "c", "e"));
  list_.Select(0);
  list_.Select(2);
  EXPECT_EQ(list_.RemoveSelected(), 2u);
  EXPECT_THAT(Names(), ElementsAre("c"));
  EXPECT_EQ(list_.Path(0), "/f/c");
}

TEST_F(FileListTest, RootFolderKeepsItsWholePath) {
  Add("boot.ini", 0, 0, "", "/");
  EXPECT_EQ(list_.Text(0, fc::kPath), "/");
  EXPECT_EQ(list_.Text(0, fc::kFolderName), "/");
  EXPECT_EQ(list_.Path(0), "/boot.ini");
}

TEST_F(FileListTest, RowsStayCompact) {
  for (int i = 0; i < 1000; ++i) Add("file_" + std::to_string(i) + ".txt", 0, i, "TXT File", "/f");
  EXPECT_LT(list_.OverheadBytes(), 1000u * 300u);
}

}  // namespace
}  // namespace tarnwick
