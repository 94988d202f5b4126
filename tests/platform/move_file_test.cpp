#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <thread>

#include "platform/files.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::ReadWholeFile;
using testing::TempDir;

ino_t InodeOf(const std::filesystem::path& path) {
  struct stat info {};
  return ::lstat(path.c_str(), &info) == 0 ? info.st_ino : 0;
}

size_t EntryCount(const std::filesystem::path& folder) {
  size_t count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder)) ++count;
  return count;
}

TEST(MoveFileNoReplaceTest, RenamesAndReportsErrorsByNumber) {
  TempDir dir;
  const auto a = dir.WriteFile("a.txt", "alpha");
  const auto b = dir.path() / "b.txt";
  ASSERT_TRUE(MoveFileNoReplace(a, b).ok());
  EXPECT_FALSE(std::filesystem::exists(a));
  EXPECT_EQ(ReadWholeFile(b), "alpha");

  EXPECT_EQ(MoveFileNoReplace(a, dir.path() / "c.txt").number, 53);
  EXPECT_EQ(MoveFileNoReplace(b, dir.path() / "missing" / "c.txt").number, 76);
  EXPECT_EQ(MoveFileNoReplace(b, dir.path() / "missing" / "c.txt").description, "Path not found");
  EXPECT_EQ(MoveFileNoReplace("", b).number, 52);
  EXPECT_EQ(ReadWholeFile(b), "alpha");
}

TEST(MoveFileNoReplaceTest, ExistingTargetIsNeverReplaced) {
  TempDir dir;
  const auto a = dir.WriteFile("a.txt", "source");
  const auto b = dir.WriteFile("b.txt", "target");
  const FileStatus status = MoveFileNoReplace(a, b);
  EXPECT_EQ(status.number, 58);
  EXPECT_EQ(status.description, "File already exists");
  EXPECT_EQ(ReadWholeFile(a), "source");
  EXPECT_EQ(ReadWholeFile(b), "target");
  EXPECT_EQ(EntryCount(dir.path()), 2u);  // No temporary name left behind.

  // An existing folder is a target too.
  std::filesystem::create_directory(dir.path() / "folder");
  EXPECT_EQ(MoveFileNoReplace(a, dir.path() / "folder").number, 58);
  EXPECT_EQ(ReadWholeFile(a), "source");
}

TEST(MoveFileNoReplaceTest, MovesFoldersAndOddByteNames) {
  TempDir dir;
  dir.WriteFile("old/inner.txt", "x");
  ASSERT_TRUE(MoveFileNoReplace(dir.path() / "old", dir.path() / "new").ok());
  EXPECT_EQ(ReadWholeFile(dir.path() / "new" / "inner.txt"), "x");

  // Names that are not UTF-8 pass through as bytes.
  const auto odd = dir.WriteFile("caf\xE9 \xFF.txt", "latin1");
  const auto target = dir.path() / "\x80\x81 target";
  ASSERT_TRUE(MoveFileNoReplace(odd, target).ok());
  EXPECT_EQ(ReadWholeFile(target), "latin1");
}

TEST(MoveFileNoReplaceTest, SameNameAndHardLinkAliases) {
  TempDir dir;
  const auto a = dir.WriteFile("a.txt", "one");
  // The same name: through a temporary name and back, so nothing changes.
  EXPECT_TRUE(MoveFileNoReplace(a, a).ok());
  EXPECT_EQ(ReadWholeFile(a), "one");
  EXPECT_EQ(EntryCount(dir.path()), 1u);

  // Two hard links of one file are two names: the move must not drop one.
  const auto link = dir.path() / "A.txt";
  ASSERT_EQ(::link(a.c_str(), link.c_str()), 0);
  EXPECT_EQ(MoveFileNoReplace(a, link).number, 58);
  EXPECT_EQ(ReadWholeFile(a), "one");
  EXPECT_EQ(ReadWholeFile(link), "one");
  EXPECT_EQ(EntryCount(dir.path()), 2u);
}

TEST(MoveFileNoReplaceTest, MovesAcrossFileSystemsByCopying) {
  TempDir dir;
  const std::filesystem::path shm = "/dev/shm";
  struct stat here {
  }, there{};
  if (::stat(shm.c_str(), &there) != 0 || ::access(shm.c_str(), W_OK) != 0 ||
      ::stat(dir.path().c_str(), &here) != 0 || here.st_dev == there.st_dev) {
    GTEST_SKIP() << "no second writable file system at /dev/shm";
  }
  const auto target = shm / ("tarnwick-move-" + std::to_string(::getpid()));
  const auto source = dir.WriteFile("far.bin", std::string(100000, 'z'));
  ::chmod(source.c_str(), 0640);
  ASSERT_TRUE(MoveFileNoReplace(source, target).ok());
  EXPECT_FALSE(std::filesystem::exists(source));
  EXPECT_EQ(ReadWholeFile(target), std::string(100000, 'z'));
  struct stat moved {};
  ::stat(target.c_str(), &moved);
  EXPECT_EQ(moved.st_mode & 0777, 0640u);

  // Back again onto an existing name: refused, both kept.
  const auto occupied = dir.WriteFile("far.bin", "occupied");
  EXPECT_EQ(MoveFileNoReplace(target, occupied).number, 58);
  EXPECT_EQ(ReadWholeFile(occupied), "occupied");
  EXPECT_TRUE(std::filesystem::exists(target));
  std::filesystem::remove(target);

  // A folder cannot cross.
  std::filesystem::create_directory(dir.path() / "folder");
  const auto folder_target = shm / ("tarnwick-folder-" + std::to_string(::getpid()));
  EXPECT_EQ(MoveFileNoReplace(dir.path() / "folder", folder_target).number, 74);
  EXPECT_TRUE(std::filesystem::is_directory(dir.path() / "folder"));
}

// A second thread keeps creating the target while this one moves files onto
// that name. Whatever the interleaving, a file the other thread created is
// never replaced: when it looks again, its file is still there.
TEST(MoveFileNoReplaceTest, RaceWithConcurrentCreatorNeverReplaces) {
  TempDir dir;
  const auto source = dir.path() / "source";
  const auto target = dir.path() / "target";
  std::atomic<bool> stop{false};
  std::atomic<int> replaced{0}, created{0};

  std::thread creator([&] {
    while (!stop.load()) {
      const int fd = ::open(target.c_str(), O_CREAT | O_EXCL | O_WRONLY, 0600);
      if (fd < 0) {
        std::this_thread::yield();
        continue;
      }
      ++created;
      struct stat mine {};
      ::fstat(fd, &mine);
      std::this_thread::yield();
      if (InodeOf(target) != mine.st_ino) ++replaced;
      ::unlink(target.c_str());  // Only this thread's own file can be at this name.
      ::close(fd);
    }
  });

  int moved = 0, refused = 0, other = 0;
  for (int i = 0; i < 3000; ++i) {
    const int fd = ::open(source.c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600);
    ASSERT_GE(fd, 0);
    struct stat mine {};
    ::fstat(fd, &mine);
    ::close(fd);
    const FileStatus status = MoveFileNoReplace(source, target);
    if (status.ok()) {
      ++moved;
      if (InodeOf(target) != mine.st_ino) ++replaced;
      ::unlink(target.c_str());
    } else if (status.number == 58) {
      ++refused;
      ::unlink(source.c_str());
    } else {
      ++other;
    }
  }
  stop = true;
  creator.join();
  EXPECT_EQ(replaced.load(), 0);
  EXPECT_EQ(other, 0);
  EXPECT_EQ(moved + refused, 3000);
  RecordProperty("moved", moved);
  RecordProperty("refused", refused);
  RecordProperty("created", created.load());
}

}  // namespace
}  // namespace tarnwick
