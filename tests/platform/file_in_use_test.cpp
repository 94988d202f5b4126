#include "platform/file_in_use.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::TempDir;

TEST(FileInUseTest, SeesDescriptorsOfThisProcess) {
  TempDir dir;
  const auto file = dir.WriteFile("file.txt", "x");
  EXPECT_FALSE(IsFileInUse(file));
  const int reader = ::open(file.c_str(), O_RDONLY);
  ASSERT_GE(reader, 0);
  EXPECT_TRUE(IsFileInUse(file));
  ::close(reader);
  EXPECT_FALSE(IsFileInUse(file));
  const int writer = ::open(file.c_str(), O_WRONLY);
  EXPECT_TRUE(IsFileInUse(file));
  ::close(writer);
  EXPECT_FALSE(IsFileInUse(file));
  EXPECT_FALSE(IsFileInUse(dir.path() / "missing"));
  EXPECT_FALSE(IsFileInUse(dir.path()));
}

// A child holds the file open until told to stop through a pipe.
TEST(FileInUseTest, SeesDescriptorsOfAnotherProcess) {
  TempDir dir;
  const auto file = dir.WriteFile("held.txt", "x");
  int ready[2], release[2];
  ASSERT_EQ(::pipe(ready), 0);
  ASSERT_EQ(::pipe(release), 0);
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    const int fd = ::open(file.c_str(), O_RDWR);
    char byte = fd >= 0 ? 'y' : 'n';
    (void)!::write(ready[1], &byte, 1);
    (void)!::read(release[0], &byte, 1);
    _exit(0);
  }
  char byte = 0;
  ASSERT_EQ(::read(ready[0], &byte, 1), 1);
  ASSERT_EQ(byte, 'y');
  EXPECT_TRUE(IsFileInUse(file));
  (void)!::write(release[1], "x", 1);
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_FALSE(IsFileInUse(file));
  for (int fd : {ready[0], ready[1], release[0], release[1]}) ::close(fd);
}

// Without ownership the lease is refused and the scan of /proc answers. Only
// root can make a process that does not own the file.
TEST(FileInUseTest, ScanWhenLeaseIsRefused) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs root to act as another user";
  TempDir dir;
  const auto file = dir.WriteFile("owned-by-root.txt", "x");
  ::chmod(dir.path().c_str(), 0755);
  ::chmod(file.c_str(), 0644);
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    if (::setgid(65534) != 0 || ::setuid(65534) != 0) _exit(10);
    if (IsFileInUse(file)) _exit(11);
    const int fd = ::open(file.c_str(), O_RDONLY);
    if (fd < 0) _exit(12);
    if (!IsFileInUse(file)) _exit(13);
    ::close(fd);
    if (IsFileInUse(file)) _exit(14);
    _exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

// The scan of a run: a file held by another process is seen, and no longer
// once the process let go and the scan is taken again (a max age of 0 takes
// it at every question).
TEST(FileInUseTest, TheScanOfARunSeesWhatTheSingleTestSees) {
  TempDir dir;
  const auto held = dir.WriteFile("held.txt", "x");
  const auto free = dir.WriteFile("free.txt", "x");
  int ready[2], release[2];
  ASSERT_EQ(::pipe(ready), 0);
  ASSERT_EQ(::pipe(release), 0);
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    const int fd = ::open(held.c_str(), O_RDONLY);
    char byte = fd >= 0 ? 'y' : 'n';
    (void)!::write(ready[1], &byte, 1);
    (void)!::read(release[0], &byte, 1);
    _exit(0);
  }
  char byte = 0;
  ASSERT_EQ(::read(ready[0], &byte, 1), 1);
  ASSERT_EQ(byte, 'y');
  OpenFileScan scan(std::chrono::milliseconds(0));
  EXPECT_TRUE(scan.IsFileInUse(held));
  EXPECT_FALSE(scan.IsFileInUse(free));
  EXPECT_FALSE(scan.IsFileInUse(dir.path() / "missing"));
  EXPECT_FALSE(scan.IsFileInUse(dir.path()));
  (void)!::write(release[1], "x", 1);
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_FALSE(scan.IsFileInUse(held));
  // This process's own descriptors count too.
  const int own = ::open(free.c_str(), O_RDONLY);
  EXPECT_TRUE(scan.IsFileInUse(free));
  ::close(own);
  for (int fd : {ready[0], ready[1], release[0], release[1]}) ::close(fd);
}

// A row of the list brings the identity its fill read: no stat for a file
// that is not open, and a yes made sure of by the path.
TEST(FileInUseTest, TheScanJudgesAKnownIdentityAndChecksAYes) {
  TempDir dir;
  const std::filesystem::path file = dir.WriteFile("known.txt", "a");
  const std::filesystem::path other = dir.WriteFile("other.txt", "b");
  const auto identity = [](const std::filesystem::path& path) {
    struct stat info {};
    ::stat(path.c_str(), &info);
    return std::pair<std::uint64_t, std::uint64_t>(
        (static_cast<std::uint64_t>(major(info.st_dev)) << 32) | minor(info.st_dev), info.st_ino);
  };
  const auto [device, inode] = identity(file);
  OpenFileScan scan(std::chrono::milliseconds(0));
  EXPECT_FALSE(scan.IsFileInUse(file, device, inode));
  const int held = ::open(file.c_str(), O_RDONLY);
  EXPECT_TRUE(scan.IsFileInUse(file, device, inode));
  // The identity of an open file given with the path of a file that is not
  // open (an inode passed on since the fill): the path decides.
  EXPECT_FALSE(scan.IsFileInUse(other, device, inode));
  ::close(held);
  EXPECT_FALSE(scan.IsFileInUse(file, device, inode));
}

}  // namespace
}  // namespace tarnwick
