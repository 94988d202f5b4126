#include "platform/file_times.h"

#include <gtest/gtest.h>

#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::TempDir;

FileTime At(long long seconds, long nanoseconds) {
  return FileTime(std::chrono::seconds(seconds) + std::chrono::nanoseconds(nanoseconds));
}

TEST(FileTimesTest, SetAndGetKeepNanoseconds) {
  TempDir dir;
  const auto file = dir.WriteFile("file", "x");
  for (const auto& [write, access] :
       {std::pair{At(1700000000, 1), At(1600000000, 999999999)},
        std::pair{At(946684800, 500000000), At(946684800, 500000000)},
        // Before 1970 the nanoseconds still count forward from a whole second.
        std::pair{At(-86400, 250000000), At(-1, 750000000)}}) {
    ASSERT_TRUE(SetFileTimes(file, write, access).ok());
    const FileResult<FileTimes> times = GetFileTimes(file);
    ASSERT_TRUE(times.ok());
    EXPECT_EQ(times.value().last_write, write);
    EXPECT_EQ(times.value().last_access, access);
  }
}

TEST(FileTimesTest, CreationIsBirthOrLastWrite) {
  TempDir dir;
  const auto before = std::chrono::system_clock::now() - std::chrono::seconds(5);
  const auto file = dir.WriteFile("file", "x");
  ASSERT_TRUE(SetFileTimes(file, At(1000000000, 0), At(1000000000, 0)).ok());
  const FileTimes times = GetFileTimes(file).value();
  if (times.created_is_birth_time) {
    // Setting the other stamps leaves the birth time of the file alone.
    EXPECT_GT(times.created, before);
  } else {
    EXPECT_EQ(times.created, times.last_write);
  }
}

TEST(FileTimesTest, ErrorsAndFolders) {
  TempDir dir;
  EXPECT_EQ(GetFileTimes(dir.path() / "missing").status().number, 53);
  EXPECT_EQ(GetFileTimes(dir.path() / "no" / "missing").status().number, 76);
  EXPECT_EQ(SetFileTimes(dir.path() / "missing", At(0, 0), At(0, 0)).number, 53);
  ASSERT_TRUE(SetFileTimes(dir.path(), At(1500000000, 42), At(1500000000, 43)).ok());
  EXPECT_EQ(GetFileTimes(dir.path()).value().last_write, At(1500000000, 42));
}

}  // namespace
}  // namespace tarnwick
