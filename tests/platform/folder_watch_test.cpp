#include "platform/folder_watch.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::TempDir;

TEST(FolderWatchTest, SeesCreateRenameDeleteAndWrite) {
  TempDir dir;
  FolderWatch watch;
  EXPECT_FALSE(watch.Poll());
  ASSERT_TRUE(watch.Start(dir.path()).ok());
  EXPECT_TRUE(watch.IsRunning());
  EXPECT_FALSE(watch.Poll());

  const auto file = dir.WriteFile("new.txt", "x");
  EXPECT_TRUE(watch.Poll());
  EXPECT_FALSE(watch.Poll());  // Reported once.

  std::filesystem::rename(file, dir.path() / "renamed.txt");
  EXPECT_TRUE(watch.Poll());
  EXPECT_FALSE(watch.Poll());

  dir.WriteFile("renamed.txt", "longer content");
  EXPECT_TRUE(watch.Poll());

  std::filesystem::remove(dir.path() / "renamed.txt");
  EXPECT_TRUE(watch.Poll());
  EXPECT_FALSE(watch.Poll());
}

TEST(FolderWatchTest, AttributeChangesDoNotCount) {
  TempDir dir;
  const auto file = dir.WriteFile("file", "x");
  FolderWatch watch;
  ASSERT_TRUE(watch.Start(dir.path()).ok());
  ::chmod(file.c_str(), 0444);
  EXPECT_FALSE(watch.Poll());
}

TEST(FolderWatchTest, SubtreeIncludesNewFolders) {
  TempDir dir;
  dir.WriteFile("a/b/old.txt", "x");
  FolderWatch flat, deep;
  ASSERT_TRUE(flat.Start(dir.path()).ok());
  ASSERT_TRUE(deep.Start(dir.path(), true).ok());
  dir.WriteFile("a/b/new.txt", "x");
  EXPECT_FALSE(flat.Poll());
  EXPECT_TRUE(deep.Poll());

  std::filesystem::create_directory(dir.path() / "c");
  EXPECT_TRUE(deep.Poll());
  dir.WriteFile("c/inside.txt", "x");
  EXPECT_TRUE(deep.Poll());
  EXPECT_TRUE(flat.Poll());  // The folder "c" itself is new to the flat watch.
  EXPECT_FALSE(flat.Poll());
}

TEST(FolderWatchTest, StartStopAndErrors) {
  TempDir dir;
  FolderWatch watch;
  EXPECT_EQ(watch.Start(dir.path() / "missing").number, 76);
  EXPECT_FALSE(watch.IsRunning());
  const auto file = dir.WriteFile("file", "x");
  EXPECT_EQ(watch.Start(file).number, 76);

  std::filesystem::create_directory(dir.path() / "watched");
  ASSERT_TRUE(watch.Start(dir.path() / "watched").ok());
  watch.Stop();
  dir.WriteFile("watched/x", "x");
  EXPECT_FALSE(watch.Poll());
  EXPECT_FALSE(watch.IsRunning());

  // The watched folder going away is a change as well.
  ASSERT_TRUE(watch.Start(dir.path() / "watched").ok());
  std::filesystem::remove_all(dir.path() / "watched");
  EXPECT_TRUE(watch.Poll());
}

}  // namespace
}  // namespace tarnwick
