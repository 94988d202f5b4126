// Small reads of MediaFile come from a window of the file: they must give
// exactly what reads of the file itself give, at the end and after writes.
#include <gtest/gtest.h>

#include <string>

#include "media/media_file.h"
#include "support/temp_dir.h"

namespace tarnwick {
namespace {

using testing::TempDir;

TEST(MediaFileWindowTest, SmallReadsMatchTheFileEverywhere) {
  TempDir dir;
  std::string content;
  for (int i = 0; i < 10000; ++i) content.push_back(static_cast<char>(i * 7 % 251));
  const auto path = dir.WriteFile("f.bin", content);
  MediaFile file(path, MediaFile::Mode::kReadWrite);
  for (std::int64_t at : {0, 1, 4095, 4096, 8190, 9872, 9990, 9999, 10000, 12000}) {
    for (std::size_t count : {1u, 10u, 128u, 4096u, 5000u}) {
      std::vector<std::uint8_t> got(count, 0xEE);
      const std::size_t read = file.ReadInto(at, got.data(), count);
      const std::size_t want = at >= 10000 ? 0 : std::min<std::size_t>(count, 10000 - at);
      ASSERT_EQ(read, want) << at << " " << count;
      for (std::size_t i = 0; i < read; ++i) {
        ASSERT_EQ(got[i], static_cast<std::uint8_t>(content[at + i])) << at << " " << i;
      }
    }
  }
  const std::uint8_t changed[] = {1, 2, 3};
  ASSERT_EQ(file.ReadAt(100, 3)[0], static_cast<std::uint8_t>(content[100]));
  ASSERT_TRUE(file.WriteAt(100, changed, 3));
  EXPECT_EQ(file.ReadAt(100, 3), std::vector<std::uint8_t>({1, 2, 3}));
  ASSERT_TRUE(file.Truncate(50));
  EXPECT_EQ(file.ReadAt(40, 20)[15], 0);
  EXPECT_EQ(file.ReadInto(40, std::vector<std::uint8_t>(20).data(), 20), 10u);
}

}  // namespace
}  // namespace tarnwick
