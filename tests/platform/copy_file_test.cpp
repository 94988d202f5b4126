#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "platform/file_times.h"
#include "platform/files.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::ReadWholeFile;
using testing::TempDir;

size_t EntryCount(const std::filesystem::path& folder) {
  size_t count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder)) ++count;
  return count;
}

mode_t ModeOf(const std::filesystem::path& path) {
  struct stat info {};
  ::stat(path.c_str(), &info);
  return info.st_mode & 07777;
}

FileTime At(long long seconds, long nanoseconds) {
  return FileTime(std::chrono::seconds(seconds) + std::chrono::nanoseconds(nanoseconds));
}

TEST(CopyFileTest, KeepsContentTimesAndMode) {
  TempDir dir;
  std::string content;
  for (int i = 0; i < 300000; ++i) content += static_cast<char>(i * 7 % 251);
  const auto source = dir.WriteFile("source.bin", content);
  ::chmod(source.c_str(), 0751);
  ASSERT_TRUE(SetFileTimes(source, At(1234567890, 123456789), At(1300000000, 987654321)).ok());

  const auto target = dir.path() / "sub" / "copy.bin";
  std::filesystem::create_directory(dir.path() / "sub");
  ASSERT_TRUE(CopyFile(source, target, false).ok());
  // Times first: reading the copy may move its last-access time.
  const FileResult<FileTimes> times = GetFileTimes(target);
  ASSERT_TRUE(times.ok());
  EXPECT_EQ(times.value().last_write, At(1234567890, 123456789));
  EXPECT_EQ(times.value().last_access, At(1300000000, 987654321));
  EXPECT_EQ(ReadWholeFile(target), content);
  EXPECT_EQ(ModeOf(target), 0751u);
  EXPECT_EQ(ReadWholeFile(source), content);
  EXPECT_EQ(EntryCount(dir.path() / "sub"), 1u);

  // An empty file copies as well.
  const auto empty = dir.WriteFile("empty", "");
  ASSERT_TRUE(CopyFile(empty, dir.path() / "empty2", false).ok());
  EXPECT_TRUE(FileExists(dir.path() / "empty2"));
}

TEST(CopyFileTest, ExistingTargetNeedsOverwrite) {
  TempDir dir;
  const auto source = dir.WriteFile("source.txt", "new");
  const auto target = dir.WriteFile("target.txt", "old");
  EXPECT_EQ(CopyFile(source, target, false).number, 58);
  EXPECT_EQ(ReadWholeFile(target), "old");
  EXPECT_EQ(EntryCount(dir.path()), 2u);

  ASSERT_TRUE(CopyFile(source, target, true).ok());
  EXPECT_EQ(ReadWholeFile(target), "new");
  EXPECT_EQ(EntryCount(dir.path()), 2u);

  // A read-only target is not overwritten.
  ::chmod(target.c_str(), 0444);
  const auto newer = dir.WriteFile("newer.txt", "newer");
  EXPECT_EQ(CopyFile(newer, target, true).number, 70);
  EXPECT_EQ(ReadWholeFile(target), "new");
}

TEST(CopyFileTest, ErrorsBySource) {
  TempDir dir;
  EXPECT_EQ(CopyFile(dir.path() / "missing", dir.path() / "x", false).number, 53);
  EXPECT_EQ(CopyFile(dir.path() / "no" / "missing", dir.path() / "x", false).number, 76);
  std::filesystem::create_directory(dir.path() / "folder");
  EXPECT_EQ(CopyFile(dir.path() / "folder", dir.path() / "x", false).number, 75);
  const auto source = dir.WriteFile("s", "s");
  EXPECT_EQ(CopyFile(source, dir.path() / "no" / "x", false).number, 76);
  EXPECT_EQ(EntryCount(dir.path()), 2u);
}

// A source that fails while it is read: the temporary copy must go and the
// target must stay as it was.
TEST(CopyFileTest, ReadFailureLeavesNoTemporaryFile) {
  TempDir dir;
  const auto target = dir.WriteFile("target", "untouched");
  // Reading this process's memory at address 0 fails with an I/O error, for
  // root as well.
  const FileStatus status = CopyFile("/proc/self/mem", target, true);
  EXPECT_FALSE(status.ok());
  EXPECT_EQ(ReadWholeFile(target), "untouched");
  EXPECT_EQ(EntryCount(dir.path()), 1u);
  EXPECT_FALSE(CopyFile("/proc/self/mem", dir.path() / "new", false).ok());
  EXPECT_EQ(EntryCount(dir.path()), 1u);
}

TEST(CopyFileTest, ReadOnlyTargetFolderLeavesNothing) {
  if (::geteuid() == 0) GTEST_SKIP() << "permission bits do not stop root";
  TempDir dir;
  const auto source = dir.WriteFile("source", "data");
  std::filesystem::create_directory(dir.path() / "locked");
  ::chmod((dir.path() / "locked").c_str(), 0555);
  EXPECT_EQ(CopyFile(source, dir.path() / "locked" / "copy", false).number, 70);
  EXPECT_EQ(EntryCount(dir.path() / "locked"), 0u);
}

TEST(CopyFileTest, DosAttributesTravelWithTheCopy) {
  TempDir dir;
  const auto source = dir.WriteFile("source", "data");
  const char record[] = "0x22";
  if (::setxattr(source.c_str(), "user.DOSATTRIB", record, sizeof record, 0) != 0) {
    GTEST_SKIP() << "no user extended attributes here";
  }
  const auto target = dir.path() / "copy";
  ASSERT_TRUE(CopyFile(source, target, false).ok());
  char value[64] = {};
  EXPECT_EQ(::getxattr(target.c_str(), "user.DOSATTRIB", value, sizeof value),
            static_cast<ssize_t>(sizeof record));
  EXPECT_STREQ(value, "0x22");
}

}  // namespace
}  // namespace tarnwick
