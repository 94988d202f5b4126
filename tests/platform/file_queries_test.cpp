#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/files.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::TempDir;

TEST(FileQueriesTest, ExistsTellsFilesFromFolders) {
  TempDir dir;
  const auto file = dir.WriteFile("file.txt", "x");
  EXPECT_TRUE(FileExists(file));
  EXPECT_FALSE(FolderExists(file));
  EXPECT_TRUE(FolderExists(dir.path()));
  EXPECT_FALSE(FileExists(dir.path()));
  EXPECT_FALSE(FileExists(dir.path() / "missing"));
  EXPECT_FALSE(FileExists(""));
  // Links count as what they point at.
  std::filesystem::create_symlink(file, dir.path() / "link");
  EXPECT_TRUE(FileExists(dir.path() / "link"));
  std::filesystem::create_symlink(dir.path() / "missing", dir.path() / "dangling");
  EXPECT_FALSE(FileExists(dir.path() / "dangling"));
}

TEST(FileQueriesTest, SizeIsSixtyFourBits) {
  TempDir dir;
  const auto file = dir.WriteFile("big", "");
  // A sparse file of 5 GiB: the size must not be cut to 32 bits.
  ASSERT_EQ(::truncate(file.c_str(), 5LL << 30), 0);
  const FileResult<std::uint64_t> size = FileSize64(file);
  ASSERT_TRUE(size.ok());
  EXPECT_EQ(size.value(), 5ULL << 30);
  EXPECT_EQ(FileSize64(dir.path() / "missing").status().number, 53);
  EXPECT_EQ(FileSize64(dir.path() / "missing").value_or(7), 7u);
}

TEST(FileQueriesTest, DeleteRemovesFilesOnly) {
  TempDir dir;
  const auto file = dir.WriteFile("file.txt", "x");
  ::chmod(file.c_str(), 0444);
  EXPECT_TRUE(DeleteFile(file).ok());
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_EQ(DeleteFile(file).number, 53);
  EXPECT_EQ(DeleteFile(dir.path() / "no" / "file").number, 76);
  std::filesystem::create_directory(dir.path() / "folder");
  EXPECT_EQ(DeleteFile(dir.path() / "folder").number, 75);
  EXPECT_TRUE(FolderExists(dir.path() / "folder"));
}

TEST(FileQueriesTest, CreatesFolders) {
  TempDir dir;
  EXPECT_TRUE(CreateFolder(dir.path() / "one").ok());
  EXPECT_EQ(CreateFolder(dir.path() / "one").number, 58);
  EXPECT_EQ(CreateFolder(dir.path() / "a" / "b").number, 76);
  EXPECT_TRUE(CreateFolders(dir.path() / "a" / "b" / "c").ok());
  EXPECT_TRUE(FolderExists(dir.path() / "a" / "b" / "c"));
  EXPECT_TRUE(CreateFolders(dir.path() / "a" / "b").ok());
  const auto file = dir.WriteFile("file", "x");
  EXPECT_FALSE(CreateFolders(file / "below").ok());
  EXPECT_FALSE(CreateFolders(file).ok());
}

TEST(FileStatusTest, DescriptionsAndConversion) {
  EXPECT_EQ(FileStatus::Error(53).description, "File not found");
  EXPECT_EQ(FileStatus::Error(76).description, "Path not found");
  EXPECT_EQ(FileStatus::Error(70).description, "Permission denied");
  EXPECT_EQ(FileStatus::Error(61).description, "Disk full");
  const VbError error = FileStatus::Error(58).ToVbError();
  EXPECT_EQ(error.number(), 58);
  EXPECT_EQ(error.description(), "File already exists");
  EXPECT_TRUE(FileStatus::Success().ok());
}

}  // namespace
}  // namespace tarnwick
